// What the main window and the places in town do beside showing their texts:
// what the game changes in an open window, the messages, the gauges.

#include <QHelpEvent>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "equipment/basEquipment.h"
#include "resources/basLangMGR.h"
#include "support/play.h"
#include "ui/frmLang.h"
#include "ui/widgets/metrics.h"

using namespace torvenhall;
using namespace torvenhall::test;

struct Activities : Play {
    static QLabel& LabelOf(Label label)
    {
        return Control<QLabel>("frmMain", Text(LabelNames[label]));
    }
};

TEST_F(Activities, AClickOnALanguageTellsAboutIt)
{
    ReplaceFile(Utf8(Folder() + "English.LNG"),
                "[General]\nDescription=English\nCopyright=nobody\n");
    LangFiles() = {Utf8(Folder() + "English.LNG")};
    frmLang window(nullptr);
    window.show();
    auto& list = Control<QListWidget>("frmLang", "List1");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(list.item(0)->text(), "English");
    EXPECT_EQ(Control<QPlainTextEdit>("frmLang", "Text1").toPlainText(),
              "Description: English\nCopyright: nobody");
    LangFiles().clear();
}

TEST_F(Activities, WhatTheGameChangesShowsInAnOpenWindow)
{
    // milk is spilt on the best processor; only a shop opened anew offers one again
    InstallHardware(0, 10, false);
    for (const bool sells : {false, true}) {
        Click("frmMain", "cmdHard");
        EXPECT_EQ(Control("frmHard", "cmdUpggrade0").isEnabled(), sells);
        InstallHardware(0, 0, false);
        Do([] { Windows().ReloadWindow("frmHard"); });
        EXPECT_EQ(TextOf("frmHard", "cmdUpggrade0"), "Процессор - 486 DX2-66 MHz - $25");
        EXPECT_EQ(Control("frmHard", "cmdUpggrade0").isEnabled(), sells);
        Click("frmHard", "Command8");
    }
    // the last month of courses
    SetEducation(7);
    GameState.AttendCourses = True;
    Click("frmMain", "cmdSchool");
    Control("frmEducation", "Command2").setFocus();
    JustBeforeMidnight();
    GameState.GameDate = std::chrono::year{2001} / 1 / 31;
    Tick();
    EXPECT_FALSE(Control("frmEducation", "Command2").isEnabled());
    EXPECT_TRUE(Control("frmEducation", "Command8").hasFocus()) << "no other button to press";
}

TEST_F(Activities, TheMessageLineRemembersItsLastTenMessages)
{
    QStringList lastTen;
    for (int message = 1; message <= 12; ++message) {
        lastTen = (lastTen << QString("Письмо № %1").arg(message)).mid(message > 10 ? 1 : 0);
        for (int typed = 0; typed <= lastTen.last().size(); ++typed) {
            ShowLabel(Label::lblMessage, Utf8(lastTen.last().left(typed)));
        }
    }
    const QLabel& line = LabelOf(Label::lblMessage);
    EXPECT_EQ(line.accessibleDescription(), lastTen.join('\n'));
    EXPECT_EQ(QTextDocumentFragment::fromHtml(line.toolTip()).toPlainText(), lastTen.join('\n'));
}

TEST_F(Activities, EveryStatisticIsSpokenHoveredAndGauged)
{
    ShowLabel(Label::lblHealth, "-30%", TextColour::Red);
    EXPECT_EQ(LabelOf(Label::lblHealth).accessibleName(), "Здоровье: -30%, опасно");
    ShowLabel(Label::lblGames, "Quake I");
    const auto tip = [](Label label) {
        QWidget& shown = LabelOf(label);
        QHelpEvent hovered(QEvent::ToolTip, {}, shown.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&shown, &hovered);
        return QToolTip::text();
    };
    EXPECT_EQ(tip(Label::lblGames), "Quake I");
    EXPECT_TRUE(tip(Label::lblEat).contains("смерть при −35%"));
    EXPECT_FALSE(tip(Label::lblEat).contains("<img")) << "one day is no past";
    GameState.GameDate = MakeDate(2, 1, 2001);
    SetEatLevel(70);
    EXPECT_TRUE(tip(Label::lblEat).contains("<img"));
    EXPECT_EQ(LabelOf(Label::lblMoney).accessibleDescription(),
              "для победы нужно больше $10000, не хватает $9986");
    const std::tuple<Label, void (*)(), bool> changes[]{
        {Label::lblMoney, [] { SetMoney(4000); }, true},
        {Label::lblMoney, [] { Choose("mnuLevelEasy"); }, true},
        {Label::lblMoney, [] { SetHappy(60); }, false},
        {Label::lblHappy, [] { SetHappy(-30); }, true},
        {Label::lblEat, [] { SetEatLevel(10); }, true},
        {Label::lblHealth, [] { SetHealth(90); }, true},
        {Label::lblEducation, [] { SetIntelligence(70); }, true},
        {Label::lblStatus, [] { SetEducation(6); }, true},
    };
    for (const auto& [label, change, shows] : changes) {
        const QWidget& shown = LabelOf(label); // whose gauge lies in the foot of its tile
        const QRect gauge(shown.mapTo(&Main(), QPoint(0, shown.height())),
                          QSize(shown.width(), Px(5)));
        const auto picture = [&] { return Main().grab().toImage().copy(gauge); };
        const QImage before = picture();
        change();
        EXPECT_EQ(picture() != before, shows) << LabelNames[label];
    }
}
