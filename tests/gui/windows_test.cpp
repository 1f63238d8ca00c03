// Every window at the present scale and font: the right words, all of them
// whole, each in its own place.

#include <QApplication>
#include <QComboBox>
#include <QPalette>
#include <QSet>

#include "equipment/catalogue.h"
#include "support/looks.h"
#include "support/windows.h"
#include "ui/frmEducation.h"
#include "ui/frmHard.h"
#include "ui/frmSoft.h"
#include "ui/support/boxes.h"
#include "ui/support/label.h"
#include "ui/support/metrics.h"
#include "ui/support/text.h"
#include "ui/support/theme.h"

namespace torvenhall::test
{
namespace
{

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
        for (const QString& control : row.controls.split('|')) {
            const QString name = control.section('=', 0, 0), text = control.section('=', 1);
            if (name.isEmpty()) {
                EXPECT_TRUE(HasText(window, text)) << text.toStdString();
                continue;
            }
            const auto* found = window.findChild<QWidget*>(name);
            ASSERT_TRUE(found) << name.toStdString();
            if (text != "*") {
                EXPECT_EQ(TextOf(*found), text) << name.toStdString();
            }
        }
    });
}

TEST_F(EveryWindow, TheMainOneHasALabelForEachDisplay)
{
    for (std::size_t i = 0; i < LabelCount; ++i) {
        const QString name = Text(LabelName(static_cast<Label>(i)));
        EXPECT_TRUE(Main().findChild<QLabel*>(name)) << name.toStdString();
    }
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
    const Shown shown(AllWindows()[1], frontEnd);
    const auto* levels = shown->findChild<QComboBox*>("Combo1");
    ASSERT_EQ(levels->count(), 3);
    EXPECT_EQ(levels->itemText(0), "Сложный");
    EXPECT_EQ(levels->itemText(1), "Нормальный");
    EXPECT_EQ(levels->itemText(2), "Простой");
    EXPECT_EQ(levels->currentIndex(), 1);
}

TEST_F(EveryWindow, ShowsEveryTextWholeAndApart)
{
    ShowTheLongestTexts();
    ForEach([](const WindowRow&, QWidget& window) { ExpectNone(TextFindings(window)); });
}

TEST_F(EveryWindow, ShowsEverySiteAndTheLongestStatusWhole)
{
    ForEach([](const WindowRow& row, QWidget& window) {
        if (row.name != "frmNetwork") {
            return;
        }
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

TEST_F(EveryWindow, FitsASmallScreen)
{
    if (UnitScale() > 1) {
        GTEST_SKIP() << "the font is enlarged";
    }
    constexpr int frame = 32; // of the desktop's window manager
    ForEach([](const WindowRow&, QWidget& window) {
        EXPECT_LE(window.width(), 1024);
        EXPECT_LE(window.height(), 600 - frame);
    });
}

TEST_F(EveryWindow, IsAsLargeAsItsTwipsSay)
{
    // 7765 by 6630 twips of 1440 to the inch of 96 units
    EXPECT_EQ(Main().width(), qRound(7765 / 15.0 * UnitScale()));
    EXPECT_EQ(Main().height(), qRound(6630 / 15.0 * UnitScale()));
    EXPECT_EQ(Main().minimumSize(), Main().maximumSize());
}

TEST_F(EveryWindow, OffersEveryItemOfTheCatalogueWhole)
{
    for (int step = 0; step <= 11; ++step) {
        SCOPED_TRACE(step);
        Set([step] {
            const auto installed = [step](auto name, int category) {
                return std::min(step, [&] {
                    int last = 0;
                    while (!name(category, last + 1).empty()) {
                        ++last;
                    }
                    return last;
                }());
            };
            auto& state = GameState;
            Int16* hardware[] = {&state.HardCPU,   &state.HardRAM,     &state.HardVideo,
                                 &state.HardHDD,   &state.HardCDROM,   &state.HardComm,
                                 &state.HardSound, &state.HardScanner, &state.HardPrinter};
            Int16* software[] = {&state.SoftOS,      &state.SoftAntivirus, &state.SoftProgramming,
                                 &state.SoftGraphic, &state.SoftBrowser,   &state.SoftGames};
            for (int i = 0; i < HardwareCategories; ++i) {
                *hardware[i] = installed(GetHardwareName, i);
            }
            for (int i = 0; i < SoftwareCategories; ++i) {
                *software[i] = installed(GetSoftwareName, i);
            }
        });
        frmHard hard(frontEnd.Board(), nullptr);
        frmSoft soft(frontEnd.Board(), nullptr);
        for (GameWindow* shop : std::initializer_list<GameWindow*>{&hard, &soft}) {
            shop->Load();
            shop->show();
            ExpectNone(TextFindings(*shop));
        }
    }
}

TEST_F(EveryWindow, ShowsEveryCaptionOfTheSchoolWhole)
{
    for (const auto& [rank, mind, attends] :
         {std::tuple{1, 20, True}, {8, 20, False}, {1, 100, True}, {8, 100, False}}) {
        GameState.Education = rank;
        GameState.Intelligence = mind;
        GameState.AttendCourses = GameState.AttendSchool = attends;
        frmEducation window(frontEnd.Board(), nullptr);
        window.Load();
        window.show();
        ExpectNone(TextFindings(window));
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
            if (desktop == Qt::white) {
                light[row.title] = picture;
            } else {
                EXPECT_EQ(picture, light[row.title]);
            }
        });
    }
}

} // namespace
} // namespace torvenhall::test
