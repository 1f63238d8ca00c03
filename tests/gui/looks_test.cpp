// Every window at the present scale and font: its words whole, each in its
// own place, and easy to read.

#include <QApplication>
#include <QFontMetricsF>
#include <QLabel>
#include <QMenuBar>
#include <QSettings>

#include <cmath>
#include <functional>

#include "activities/work.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "support/play.h"
#include "ui/widgets/fittext.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/gamelabel.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/scale.h"

using namespace torvenhall;
using namespace torvenhall::test;

namespace
{

// Smaller letters are no longer easy to read.
constexpr double SmallestUnits = 9;
constexpr double LeastContrast = 4.5;

std::string NameOf(const QWidget& control)
{
    return Utf8(control.objectName() + " \"" + Screen::TextOf(control).left(40) + '"');
}

/// What a text takes up in a room, its line's air left out.
QRectF Ink(const QWidget& control, const QRectF& room, const QFont& font)
{
    const auto* label = qobject_cast<const QLabel*>(&control);
    const int flags = label ? static_cast<int>(label->alignment()) : Qt::AlignCenter;
    const int wraps = label && label->wordWrap() ? Qt::TextWordWrap : 0;
    const QFontMetricsF metrics(font);
    const double air = metrics.height() * 0.15;
    return metrics.boundingRect(room, flags | wraps, Screen::TextOf(control))
        .adjusted(0, air, 0, -air);
}

bool IsCut(const QWidget& control)
{
    QRectF room = control.contentsRect();
    QFont font = control.font();
    const auto* label = qobject_cast<const QLabel*>(&control);
    const auto* own = dynamic_cast<const GameLabel*>(label);
    const auto* button = dynamic_cast<const GameButton*>(&control);
    if (own || button) {
        if (own && own->wordWrap()) {
            font.setPixelSize(std::min(font.pixelSize(), Px(SmallestUnits)));
        } else {
            font =
                FitText(Screen::TextOf(control), font, room.width() - (button ? Px(18) : 0)).font;
        }
        const bool fits = own ? own->TextFits() : button->TextFits();
        return !fits || !room.contains(Ink(control, room, font));
    }
    bool cut = false; // the toolkit's own: menus, the texts of boxes, buttons, fields
    for (QAction* item : control.inherits("QMenuBar") ? control.actions() : QList<QAction*>()) {
        cut |= !room.contains(static_cast<const QMenuBar&>(control).actionGeometry(item));
    }
    const bool shows = control.inherits("QAbstractButton") || control.inherits("QComboBox");
    return cut || (label && label->heightForWidth(label->width()) > label->height() + 1) ||
           (shows && control.sizeHint().width() > control.width() + 1) ||
           (control.inherits("QLineEdit") && QFontMetricsF(font).height() > room.height());
}

/// Whether one text lies over another, which is not its shadow.
bool LiesOver(const QWidget& one, const QWidget& other)
{
    const auto place = [](const QWidget& control) {
        const QRectF ink = Ink(control, control.contentsRect(), control.font());
        return control.inherits("QLabel") ? (ink & control.rect()).translated(control.pos())
                                          : QRectF(control.geometry());
    };
    return one.parent() == other.parent() && Screen::TextOf(one) != Screen::TextOf(other) &&
           place(one).adjusted(0.5, 0.5, -0.5, -0.5).intersects(place(other));
}

double Luminance(QRgb colour)
{
    const auto light = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * light(qRed(colour)) + 0.7152 * light(qGreen(colour)) +
           0.0722 * light(qBlue(colour));
}

/// The relation of two colours' relative luminance, 1 to 21.
double Contrast(QRgb one, QRgb other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// The least contrast of a control's letters, which are what differs between
/// two pictures of its window, to what is behind them.
double ContrastOf(const QWidget& control, const QImage& with, const QImage& without)
{
    const int ratio = qRound(with.devicePixelRatio());
    const QRect place(control.mapTo(control.window(), QPoint()) * ratio, control.size() * ratio);
    QRgb ink = 0;
    QSet<QRgb> behind;
    for (int i = 0; i < place.width() * place.height(); ++i) {
        const QPoint at = place.topLeft() + QPoint(i % place.width(), i / place.width());
        const QRgb shown = with.pixel(at);
        if (shown != without.pixel(at)) {
            ink = qGray(shown) > qGray(ink) ? shown : ink;
            behind << without.pixel(at);
        }
    }
    if (const auto* label = dynamic_cast<const GameLabel*>(&control)) {
        ink = label->Colour().rgb();
    }
    double least = 21;
    for (const QRgb each : behind) {
        least = std::min(least, Contrast(ink, each));
    }
    return least;
}

/// The same but for a hair's breadth, by which outlines of letters differ
/// after others have been drawn.
bool LookAlike(const QImage& one, const QImage& other)
{
    const auto alike = [](uchar left, uchar right) { return std::abs(left - right) <= 8; };
    return one.size() == other.size() &&
           std::equal(one.constBits(), one.constBits() + one.sizeInBytes(), other.constBits(),
                      alike);
}

/// No word is cut, lies over another or stands out of its parent.
void ExpectWhole(const QWidget& window)
{
    QList<const QWidget*> texts;
    for (const QWidget* each : window.findChildren<QWidget*>()) {
        const bool isText = !Screen::TextOf(*each).isEmpty();
        if (!each->isVisible() || each->window() != &window ||
            (each->inherits("QLabel") && !isText)) {
            continue;
        }
        EXPECT_FALSE(IsCut(*each)) << NameOf(*each);
        if (isText && !each->objectName().startsWith("qt_")) {
            for (const QWidget* other : texts) {
                EXPECT_FALSE(LiesOver(*each, *other)) << NameOf(*each) << " " << NameOf(*other);
            }
            EXPECT_TRUE(each->parentWidget()->rect().contains(each->geometry())) << NameOf(*each);
            texts << each;
        }
    }
}

/// No text is hard to tell from any pixel behind it.
void ExpectReadable(QWidget& window)
{
    struct Ink {
        QWidget* control;
        std::function<void()> hide, show;
    };
    std::vector<Ink> texts;
    for (QWidget* each : window.findChildren<QWidget*>()) {
        auto* label = dynamic_cast<GameLabel*>(each);
        auto* button = dynamic_cast<GameButton*>(each);
        if (each->isVisible() && label && label->Colour().alpha() == 255) {
            // Its text stays: what it stands on may grow with it.
            texts.push_back({label, [label] { label->SetColour(Qt::transparent); },
                             [label, was = label->Colour()] { label->SetColour(was); }});
        }
        if (each->isVisible() && button) {
            texts.push_back({button, [button] { button->setText({}); },
                             [button, was = button->text()] { button->setText(was); }});
            button->SetGlyph(Glyph::None); // it would move with the text
        }
    }
    const QImage with = window.grab().toImage();
    for (const Ink& each : texts) {
        each.hide();
    }
    const QImage without = window.grab().toImage();
    for (const Ink& each : texts) {
        each.show();
        EXPECT_GE(ContrastOf(*each.control, with, without), LeastContrast) << NameOf(*each.control);
    }
}

} // namespace

struct Looks : Play {
    /// The longest text in every label of the main window, in red where one
    /// may turn red.
    static void ShowTheLongestTexts()
    {
        SetEducation(5);
        SetMoney(-2147480000);
        SetWork(10);
        for (const Label vital : {Label::lblHappy, Label::lblEat, Label::lblHealth}) {
            ShowLabel(vital, "-32767%", TextColour::Red);
        }
        ShowLabel(Label::lblEducation, "-32767%");
        ShowLabel(Label::lblFamily, "PRST:10:10");
        ShowLabel(Label::lblTime, "28 сентября 2001 г. - 23:30");
        ShowLabel(Label::lblOther, "32767 Мб");
        ShowLabel(Label::lblMessage,
                  "Сообщение от майора милиции Treivaib: Сынок, ты попал на такие налоги!!!! Ты "
                  "вчера вывел свою жену под Ниогарский Водопад, т.к. она тебе изменила, но чтобы "
                  "ты её не убил вооще, она тебе дала $150 (какая жена твоя богатая)!!!");
    }

    static void OpenWhole(std::string_view window)
    {
        Do([window] { Windows().OpenWindow(window); });
        ExpectWhole(*Find(Text(window)));
    }
};

TEST_F(Looks, EveryTextIsWholeAndApartAndEveryWindowFitsASmallScreen)
{
    // 7765 by 6630 twips of 1440 to the inch of 96 units
    EXPECT_EQ(Main().size(), (QSizeF(7765, 6630) / 15 * UnitScale()).toSize());
    EXPECT_EQ(Main().minimumSize(), Main().maximumSize());
    ShowTheLongestTexts();
    ForEachWindow([](QWidget& window) {
        ExpectWhole(window);
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            EXPECT_TRUE(label->text().isEmpty() || label->textFormat() == Qt::PlainText);
        }
        constexpr int frame = 32; // of the desktop's window manager
        EXPECT_LE(window.width() / UnitScale(), 1024);
        EXPECT_LE(window.height() / UnitScale(), 600 - frame);
        EXPECT_GT(window.width(), window.fontMetrics().horizontalAdvance(window.windowTitle()));
    });
}

TEST_F(Looks, EveryPartProgramCourseAndSiteIsWhole)
{
    for (int step = 0; step <= 11; ++step) {
        SCOPED_TRACE(step);
        for (int i = 0; i < HardwareCategories; ++i) {
            InstallHardware(i, GetHardwareName(i, step).empty() ? 0 : step, false);
        }
        for (int i = 0; i < SoftwareCategories; ++i) {
            SoftwareField(i) = GetSoftwareName(i, step).empty() ? 0 : step;
            ShowSoftware(i);
        }
        ExpectWhole(Main());
        OpenWhole("frmHard");
        OpenWhole("frmSoft");
    }
    for (const auto& [rank, mind] : {std::pair{1, 20}, {8, 20}, {1, 100}, {8, 100}}) {
        GameState.Education = rank;
        GameState.Intelligence = mind;
        GameState.AttendCourses = GameState.AttendSchool = rank == 1 ? True : False;
        OpenWhole("frmEducation");
    }
    OpenWhole("frmNetwork");
    Control<QWidget>("frmNetwork", "Picture1").setEnabled(true);
    for (const QString site : {"0", "1", "2"}) {
        for (const char* status : {"Label1", "Label2"}) {
            Control<QLabel>("frmNetwork", status).setText("Status: Receiving 10240 Data...");
        }
        QTest::mouseClick(&Control("frmNetwork", "cmdChangeLocation" + site), Qt::LeftButton);
        ExpectWhole(*Find("frmNetwork"));
    }
}

TEST_F(Looks, EveryTextCanBeReadOnWhatLiesBehindIt)
{
    const QPalette palette = QApplication::palette();
    for (const auto& [text, behind] :
         {std::pair{QPalette::WindowText, QPalette::Window}, // the toolkit's own controls
          {QPalette::Text, QPalette::Base},
          {QPalette::Text, QPalette::AlternateBase},
          {QPalette::ButtonText, QPalette::Button},
          {QPalette::HighlightedText, QPalette::Highlight},
          {QPalette::ToolTipText, QPalette::ToolTipBase}}) {
        EXPECT_GE(Contrast(palette.color(text).rgb(), palette.color(behind).rgb()), LeastContrast);
    }
    // The full colour of thin letters appears only where they are large.
    if (qApp->devicePixelRatio() < 2) {
        GTEST_SKIP() << "measured at the larger scales";
    }
    ShowTheLongestTexts(); // in danger, all prices out of reach
    ForEachWindow(ExpectReadable);
    SetMoney(1000000);
    SetHappy(50);
    SetEatLevel(50);
    SetHealth(50);
    ForEachWindow(ExpectReadable);
}

/// Not looked at in every scale and font: it goes through them itself.
struct Scales : Looks {
};

TEST_F(Scales, EveryWindowChangesItsScaleByKeysAndIsAsBeforeAfterwards)
{
    ShowTheLongestTexts();
    QTest::qWait(300); // no number is lit up any more
    const double scale = UnitScale();
    ForEachWindow([&](QWidget& window) {
        EXPECT_TRUE(Until([&] { return QApplication::activeWindow() == &window; }));
        const QImage before = window.grab().toImage();
        for (const auto& [key, larger] : {std::pair{Qt::Key_Plus, 1.25}, {Qt::Key_Equal, 1.5}}) {
            QTest::keyClick(&window, key, Qt::ControlModifier);
            Settle();
            EXPECT_DOUBLE_EQ(UnitScale(), scale * larger);
            ExpectWhole(window);
        }
        EXPECT_GT(window.width(), before.width() / window.devicePixelRatioF() * 1.3);
        QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_EQ(QSettings(QSettings::IniFormat, QSettings::UserScope, "torvenhall", "torvenhall")
                      .value("scale"),
                  1.25);
        QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
        Settle();
        const QImage after = window.grab().toImage();
        // The toolkit lays out a box's text by half a pixel.
        EXPECT_TRUE(window.inherits("QMessageBox") ? after.size() == before.size()
                                                   : LookAlike(after, before));
    });
    EXPECT_EQ(FittingScale({0, 0, 1920, 1080}), 2);
    EXPECT_EQ(FittingScale({0, 0, 1024, 600}), 1);
    EXPECT_EQ(FittingScale({0, 0, 7680, 4320}), 4);
}
