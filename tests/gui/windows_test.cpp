// Every window at the present scale and font: the right words, all of them
// whole, each in its own place.

#include <QApplication>
#include <QComboBox>
#include <QPalette>
#include <QSet>

#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "support/looks.h"
#include "support/windows.h"
#include "ui/frmEducation.h"
#include "ui/frmHard.h"
#include "ui/frmSoft.h"
#include "ui/widgets/boxes.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"

namespace torvenhall::test
{
namespace
{

constexpr double LeastContrast = 4.5;

void ExpectNone(const QStringList& findings)
{
    EXPECT_TRUE(findings.isEmpty()) << findings.join('\n').toStdString();
}

bool HasText(const QWidget& window, const QString& text)
{
    const auto labels = window.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->text() == text; });
}

TEST_F(EveryWindow, HasItsTitleAndItsControlsWithTheirWords)
{
    ForEach([](const WindowRow& row, QWidget& window) {
        EXPECT_EQ(window.objectName(), row.name);
        EXPECT_EQ(window.windowTitle(), row.title);
        for (const QString& controls : row.controls.split('|')) {
            const QString text = controls.section('=', 1);
            for (const QString& name : controls.section('=', 0, 0).split(',')) {
                const auto* found = window.findChild<QWidget*>(name);
                EXPECT_TRUE(name.isEmpty() ? HasText(window, text)
                                           : found && (text == "*" || TextOf(*found) == text))
                    << controls.toStdString();
            }
        }
    });
}

TEST_F(EveryWindow, NamesNoTwoControlsAlike)
{
    ForEach([](const WindowRow&, QWidget& window) {
        QSet<QString> names;
        for (const QObject* each : window.findChildren<QObject*>()) {
            const QString name = each->objectName();
            const bool own = each->isWidgetType() || qobject_cast<const QAction*>(each);
            if (own && !name.isEmpty() && !name.startsWith("qt_")) {
                EXPECT_FALSE(names.contains(name)) << name.toStdString();
                names << name;
            }
        }
    });
}

TEST_F(EveryWindow, OffersThreeLevelsOfDifficulty)
{
    Show(AllWindows()[1], [](const WindowRow&, QWidget& window) {
        const auto& levels = Control<QComboBox>(&window, "Combo1");
        EXPECT_EQ(levels.itemText(0) + levels.itemText(1) + levels.itemText(2),
                  "СложныйНормальныйПростой");
        EXPECT_EQ(levels.count(), 3);
        EXPECT_EQ(levels.currentIndex(), 1);
    });
}

TEST_F(EveryWindow, ShowsEveryTextWholeAndApart)
{
    ShowTheLongestTexts();
    ForEach([](const WindowRow&, QWidget& window) { ExpectNone(TextFindings(window)); });
}

TEST_F(EveryWindow, ShowsEverySiteAndTheLongestStatusWhole)
{
    Show(AllWindows()[11], [](const WindowRow&, QWidget& window) {
        window.findChild<QWidget*>("Picture1")->setEnabled(true);
        for (auto* status : {"Label1", "Label2"}) {
            window.findChild<QLabel*>(status)->setText("Status: Receiving 10240 Data...");
        }
        for (int site = 0; site < 3; ++site) {
            Click("frmNetwork", QString("cmdChangeLocation%1").arg(site));
            ExpectNone(TextFindings(window));
        }
    });
}

TEST_F(EveryWindow, HasItsSizeAndFitsASmallScreen)
{
    // 7765 by 6630 twips of 1440 to the inch of 96 units
    EXPECT_EQ(Main().width(), qRound(7765 / 15.0 * UnitScale()));
    EXPECT_EQ(Main().height(), qRound(6630 / 15.0 * UnitScale()));
    EXPECT_EQ(Main().minimumSize(), Main().maximumSize());
    if (UnitScale() > 1) {
        GTEST_SKIP() << "the font is enlarged";
    }
    constexpr int frame = 32; // of the desktop's window manager
    ForEach([](const WindowRow&, QWidget& window) {
        EXPECT_LE(window.width(), 1024);
        EXPECT_LE(window.height(), 600 - frame);
    });
}

TEST_F(EveryWindow, OffersEveryItemOfTheCatalogueAndEveryCourseWhole)
{
    const auto last = [](auto name, int category, int index) {
        while (index > 0 && name(category, index).empty()) {
            --index;
        }
        return index;
    };
    const auto show = [](GameWindow&& window) {
        window.Load();
        window.show();
        ExpectNone(TextFindings(window));
    };
    for (int step = 0; step <= 11; ++step) {
        SCOPED_TRACE(step);
        for (int i = 0; i < HardwareCategories; ++i) {
            HardwareField(i) = last(GetHardwareName, i, step);
        }
        for (int i = 0; i < SoftwareCategories; ++i) {
            SoftwareField(i) = last(GetSoftwareName, i, step);
        }
        show(frmHard(frontEnd.Board(), nullptr));
        show(frmSoft(frontEnd.Board(), nullptr));
    }
    for (const auto& [rank, mind, attends] :
         {std::tuple{1, 20, True}, {8, 20, False}, {1, 100, True}, {8, 100, False}}) {
        GameState.Education = rank;
        GameState.Intelligence = mind;
        GameState.AttendCourses = GameState.AttendSchool = attends;
        show(frmEducation(frontEnd.Board(), nullptr));
    }
}

TEST_F(EveryWindow, BoxesShowTheirTextWhole)
{
    for (const MessageBox& box : {
             MessageBox{"Сохранить игру сейчас???", "Вопрос", Icon::Question, Buttons::YesNo},
             MessageBox{"Вам это не по карману", "Тонкий кошелёк"},
             MessageBox{"Приобретите компьютер с Windows 98 и Adobe Photoshop 6 и сканером Mustek "
                        "600 CP, станьте Ламером и поумнейте до 60%",
                        "Нифига!"},
             MessageBox{"Вы умерли голодной смертью!", "Желаю тебе быть большим и тольстым"},
             MessageBox{"<b>Файл</b> &игры", "", Icon::Critical},
         }) {
        GameMessageBox shown(box, nullptr);
        shown.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));
        EXPECT_EQ(shown.text().toStdString(), box.text);
        EXPECT_EQ(shown.textFormat(), Qt::PlainText);
        EXPECT_EQ(shown.windowTitle().toStdString(), box.title);
        QStringList captions;
        for (const QAbstractButton* button : shown.buttons()) {
            captions << TextOf(*button);
        }
        captions.sort();
        EXPECT_EQ(captions.join(' '), box.buttons == Buttons::YesNo ? "Да Нет" : "OK");
        ExpectNone(TextFindings(shown));
    }
    InputWindow input("Введите чит:", "Torvenhall 1.5", nullptr);
    input.show();
    ExpectNone(TextFindings(input));
}

TEST_F(EveryWindow, HasTextsThatCanBeReadOnWhatLiesBehindThem)
{
    // The full colour of thin letters appears only where they are large.
    if (qApp->devicePixelRatio() < 2 && UnitScale() < 1.4) {
        GTEST_SKIP() << "measured at the larger scales";
    }
    const auto look = [](const WindowRow&, QWidget& window) {
        ExpectNone(ContrastFindings(window, LeastContrast));
    };
    ShowTheLongestTexts(); // in danger, all prices out of reach
    ForEach(look);
    EnterRules([] {
        SetMoney(1000000);
        SetHappy(50);
        SetEatLevel(50);
        SetHealth(50);
    });
    ForEach(look);
}

TEST(Palette, OfTheToolkitsOwnControlsCanBeRead)
{
    const QPalette palette = QApplication::palette();
    using Role = QPalette::ColorRole;
    for (const auto& [text, behind] :
         {std::pair<Role, Role>{QPalette::WindowText, QPalette::Window},
          {QPalette::Text, QPalette::Base},
          {QPalette::Text, QPalette::AlternateBase},
          {QPalette::ButtonText, QPalette::Button},
          {QPalette::HighlightedText, QPalette::Highlight},
          {QPalette::ToolTipText, QPalette::ToolTipBase}}) {
        EXPECT_GE(Contrast(palette.color(text).rgb(), palette.color(behind).rgb()), LeastContrast)
            << int(text) << " on " << int(behind);
    }
}

TEST_F(EveryWindow, LooksTheSameOnLightAndDarkDesktops)
{
    std::map<QString, QImage> light;
    for (const Qt::GlobalColor desktop : {Qt::white, Qt::black}) {
        QApplication::setPalette(QPalette(desktop));
        ApplyTheme(*qobject_cast<QApplication*>(qApp));
        ForEach([&](const WindowRow& row, QWidget& window) {
            // A text cursor that blinks would be the only difference.
            if (QWidget* focused = window.focusWidget()) {
                focused->clearFocus();
            }
            const QImage picture = Render(window);
            EXPECT_EQ(light.try_emplace(row.title, picture).first->second, picture);
        });
    }
}

} // namespace
} // namespace torvenhall::test
