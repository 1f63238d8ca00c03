// The rows of the places in town: what their captions say, what a row shows
// beforehand, what a purchase moves, and where the focus goes.

#include <QApplication>
#include <QEnterEvent>
#include <QLabel>
#include <QVariantAnimation>

#include "core/waits.h"
#include "support/play.h"
#include "ui/widgets/caption.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/gauge.h"
#include "ui/widgets/quietlife.h"

using namespace torvenhall;
using namespace torvenhall::test;

struct Rows : Play {
    /// The pieces of a caption, each coloured one in brackets with its tone.
    static std::string Pieces(const QString& caption, bool wages = false)
    {
        QString joined, shown;
        for (const auto& [text, tone] : SplitCaption(caption, wages)) {
            joined += text;
            shown += tone == Tone::Plain ? text : QString("[%1]").arg(text + " gl$"[int(tone)]);
        }
        EXPECT_EQ(joined, caption);
        return Utf8(shown);
    }
    /// The ghosts of the strip's bars, from left to right, in percent of a bar.
    static QList<int> Ghosts(const QString& window)
    {
        QList<int> ghosts;
        for (QWidget* each : Find(window)->findChildren<QWidget*>()) {
            if (const auto* gauge = dynamic_cast<const Gauge*>(each)) {
                ghosts << qRound(gauge->Ghost() * 100);
            }
        }
        return ghosts;
    }
    static bool Moves()
    {
        for (const auto* each : qApp->activeWindow()->findChildren<QVariantAnimation*>()) {
            if (each->state() == QAbstractAnimation::Running) {
                return true;
            }
        }
        return false;
    }
};

TEST_F(Rows, CaptionsComeApartWithoutLosingACharacter)
{
    for (const auto& [caption, pieces] :
         {std::pair{"В казино - +20% - $25", "В казино - [+20%g] [- $25$]"},
          {"Роды - + 75% - 50%h - $250", "Роды - [+ 75%g] [- 50%hl] [- $250$]"},
          {"Выпить спирта+10+10h $25", "Выпить спирта[+10g][+10hg] [$25$]"},
          {"Хэппи-Мил с детьми +20%-$45- -15%h", "Хэппи-Мил с детьми [+20%g][-$45-$] [-15%hl]"},
          {"Яичница с чесноком +15%-$10-20%h", "Яичница с чесноком [+15%g][-$10$][-20%hl]"},
          {"5 мин. отдых - +5% - $5", "5 мин. отдых - [+5%g] [- $5$]"},
          {"Процессор - 486 DX2-66 MHz - $25", "Процессор - 486 DX2-66 MHz [- $25$]"},
          {"Прог-е - Microsoft Visual C++", "Прог-е - Microsoft Visual C++"},
          {"", ""}}) {
        EXPECT_EQ(Pieces(caption), pieces);
    }
    EXPECT_EQ(Pieces("Сантехник -$15", true), "Сантехник -[$15g]");
}

TEST_F(Rows, ARowShowsItsEffectBeforehandAndAPurchaseMovesOnlyForAMoment)
{
    SetMoney(500);
    Click("frmMain", "cmdHealth");
    auto& birth = Control("frmHospital", "Command5");
    const QList<int> none{0, 0, 0, 0};
    EXPECT_EQ(Ghosts("frmHospital"), none) << "the first row has the focus, not the player's eye";
    birth.setFocus(Qt::TabFocusReason);
    const QList<int> effect = Ghosts("frmHospital");
    EXPECT_EQ(effect.mid(1), (QList<int>{-50, 0, 75}));
    EXPECT_LT(effect[0], 0);
    QEnterEvent enters({1, 1}, {1, 1}, {1, 1});
    QCoreApplication::sendEvent(&Control("frmHospital", "Command2"), &enters);
    EXPECT_EQ(Ghosts("frmHospital").mid(1), (QList<int>{0, 0, 15}));
    QEvent leaves(QEvent::Leave);
    QCoreApplication::sendEvent(&Control("frmHospital", "Command2"), &leaves);
    EXPECT_EQ(Ghosts("frmHospital"), none);

    for (const bool still : {false, true}) {
        SetStillLife(still);
        const int before = GameState.Money.value();
        Click("frmHospital", "Command3");
        bool told = false;
        for (const auto* each : Find("frmHospital")->findChildren<QLabel*>()) {
            told |= each->text() == QString("$%1").arg(before - 20);
        }
        EXPECT_TRUE(told) << "the number is true at once";
        EXPECT_EQ(Moves(), !still);
        EXPECT_TRUE(Until([] { return !Moves(); }));
    }
    SetStillLife(false);
}

TEST_F(Rows, AnOpenWindowFollowsWhatTheGameAllows)
{
    Click("frmMain", "cmdWork");
    auto& engineer = dynamic_cast<GameButton&>(Control("frmWork", "cmdWork2"));
    EXPECT_TRUE(engineer.IsMuted());
    SetIntelligence(35);
    SetEducation(2); // is shown before it is stored
    Settle();
    EXPECT_FALSE(engineer.IsMuted());
    EXPECT_EQ(engineer.accessibleDescription(), "$20 в день, сейчас $0.");
}

TEST_F(Rows, AFinishedCourseBeneathABoxHandsTheFocusToNoOtherButton)
{
    SetIntelligence(90);
    GameState.AttendSchool = True;
    Click("frmMain", "cmdSchool");
    Control("frmEducation", "Command1").setFocus();
    player.reacts = false;
    EnterRules([] { MsgBox("", "", Icon::Information); });
    EXPECT_TRUE(Until([] { return QApplication::activeWindow() == Find("MessageBox"); }));
    Do([] { Windows().DisableButton("frmEducation", "Command1"); });
    Say("OK");
    EXPECT_TRUE(Until([] { return Control("frmEducation", "Command8").hasFocus(); }));
}
