// What the main window does beside showing its labels.

#include <QLabel>
#include <QTextDocumentFragment>

#include "core/waits.h"
#include "support/play.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"

namespace torvenhall::test
{
namespace
{

class Dashboard : public Play
{
protected:
    Dashboard() { Begin(); }

    static void Show(Label label, const QString& text, TextColour colour = TextColour::LightCyan)
    {
        EnterRules([&] { ShowLabel(label, Utf8(text), colour); });
    }
    static QLabel& Shown(Label label) { return Control<QLabel>("frmMain", Text(LabelName(label))); }
};

TEST_F(Dashboard, IsVeiledWhilePausedAndClicksGoThrough)
{
    const auto& veil = Control<QWidget>("frmMain", "PauseVeil");
    const auto& button = Control("frmMain", "cmdShop");
    EXPECT_FALSE(veil.isVisible());
    Type(Main(), "p");
    EXPECT_TRUE(veil.isVisible());
    EXPECT_EQ(veil.geometry(), veil.parentWidget()->rect());
    EXPECT_EQ(veil.parentWidget()->childAt(button.geometry().center()), &button);
    Click("frmPause", "Command1");
    EXPECT_FALSE(veil.isVisible());
}

TEST_F(Dashboard, HoveringShowsTheFullNameOfEveryPartAndProgram)
{
    for (auto i = static_cast<int>(Label::lblhard0); i <= static_cast<int>(Label::lblOther); ++i) {
        const auto label = static_cast<Label>(i);
        EXPECT_EQ(Shown(label).toolTip(), Shown(label).text());
        Show(label, QString("Intel %1").arg(i));
        EXPECT_EQ(Shown(label).toolTip(), QString("Intel %1").arg(i));
    }
}

TEST_F(Dashboard, TheMessageLineRemembersItsLastTenMessages)
{
    QStringList lastTen;
    for (int message = 1; message <= 12; ++message) {
        const QString text = QString("Письмо № %1").arg(message);
        for (int typed = 0; typed <= text.size(); ++typed) {
            Show(Label::lblMessage, text.left(typed));
        }
        lastTen = (lastTen << text).mid(message > 10 ? 1 : 0);
    }
    Show(Label::lblMessage, "");
    const QLabel& line = Shown(Label::lblMessage);
    EXPECT_EQ(line.accessibleDescription(), lastTen.join('\n'));
    EXPECT_EQ(QTextDocumentFragment::fromHtml(line.toolTip()).toPlainText(), lastTen.join('\n'));
}

TEST_F(Dashboard, AScreenReaderIsToldOfDangerAndOfRecovery)
{
    for (const Label vital : {Label::lblHappy, Label::lblEat, Label::lblHealth}) {
        Show(vital, "-30%", TextColour::Red);
        EXPECT_TRUE(Shown(vital).accessibleName().endsWith(": -30%, опасно"));
        Show(vital, "30%");
        EXPECT_TRUE(Shown(vital).accessibleName().endsWith(": 30%"));
    }
}

TEST_F(Dashboard, TheLevelChangesTheSumThatFillsTheMoneysGauge)
{
    EnterRules([] { SetMoney(4000); });
    const QPoint below = Shown(Label::lblMoney).geometry().bottomLeft() + QPoint(2, Px(2));
    QWidget* gauge = nullptr;
    for (QWidget* each : Main().findChildren<QWidget*>()) {
        gauge = dynamic_cast<Gauge*>(each) && each->geometry().contains(below) ? each : gauge;
    }
    ASSERT_TRUE(gauge);
    const QImage normal = gauge->grab().toImage();
    for (const auto& [level, same] :
         {std::pair{"mnuLevelEasy", false}, {"mnuLevelHard", false}, {"mnuLevelMiddle", true}}) {
        Choose(level);
        EXPECT_EQ(gauge->grab().toImage() == normal, same) << level;
    }
}

} // namespace
} // namespace torvenhall::test
