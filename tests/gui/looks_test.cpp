// Every window at the present scale and font: its words whole, each in its
// own place, and easy to read.

#include <QApplication>
#include <QLabel>

#include "activities/work.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "support/looks.h"
#include "support/play.h"
#include "ui/widgets/metrics.h"

using namespace torvenhall;
using namespace torvenhall::test;

constexpr double LeastContrast = 4.5;

struct Looks : Play {
    static void ExpectNone(const QStringList& findings)
    {
        EXPECT_TRUE(findings.isEmpty()) << findings.join('\n').toStdString();
    }

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

    static void ExpectWhole(std::string_view window)
    {
        Do([window] { Windows().OpenWindow(window); });
        ExpectNone(TextFindings(*Find(Text(window))));
    }
};

TEST_F(Looks, EveryTextIsWholeAndApartAndEveryWindowFitsASmallScreen)
{
    // 7765 by 6630 twips of 1440 to the inch of 96 units
    EXPECT_EQ(Main().size(), (QSizeF(7765, 6630) / 15 * UnitScale()).toSize());
    EXPECT_EQ(Main().minimumSize(), Main().maximumSize());
    ShowTheLongestTexts();
    ForEachWindow([](QWidget& window) {
        ExpectNone(TextFindings(window));
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
        ExpectNone(TextFindings(Main()));
        ExpectWhole("frmHard");
        ExpectWhole("frmSoft");
    }
    for (const auto& [rank, mind] : {std::pair{1, 20}, {8, 20}, {1, 100}, {8, 100}}) {
        GameState.Education = rank;
        GameState.Intelligence = mind;
        GameState.AttendCourses = GameState.AttendSchool = rank == 1 ? True : False;
        ExpectWhole("frmEducation");
    }
    ExpectWhole("frmNetwork");
    Control<QWidget>("frmNetwork", "Picture1").setEnabled(true);
    for (const QString site : {"0", "1", "2"}) {
        for (const char* status : {"Label1", "Label2"}) {
            Control<QLabel>("frmNetwork", status).setText("Status: Receiving 10240 Data...");
        }
        QTest::mouseClick(&Control("frmNetwork", "cmdChangeLocation" + site), Qt::LeftButton);
        ExpectNone(TextFindings(*Find("frmNetwork")));
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
    const auto look = [](QWidget& window) { ExpectNone(ContrastFindings(window, LeastContrast)); };
    ForEachWindow(look);
    SetMoney(1000000);
    SetHappy(50);
    SetEatLevel(50);
    SetHealth(50);
    ForEachWindow(look);
}
