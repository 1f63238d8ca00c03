// Every window without a mouse: mnemonics, Tab, Esc, Enter, and what a screen
// reader is told.

#include <QAccessible>
#include <QKeySequence>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>

#include "network/network.h"
#include "support/looks.h"
#include "support/windows.h"

namespace torvenhall::test
{
namespace
{

std::string Describe(const QWidget& control)
{
    return (control.objectName() + ' ' + TextOf(control)).toStdString();
}

QList<QWidget*> TabStops(const QWidget& window)
{
    QList<QWidget*> stops;
    for (QWidget* each : window.findChildren<QWidget*>()) {
        if (each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus) &&
            each->window() == &window && !each->focusProxy() &&
            !each->objectName().startsWith("qt_")) {
            stops << each;
        }
    }
    return stops;
}

/// The controls that Tab visits in turn, until it comes round.
QList<QWidget*> TabThrough(QWidget& window)
{
    QList<QWidget*> visited;
    for (QWidget* now = window.focusWidget(); now && !visited.contains(now);
         now = window.focusWidget()) {
        visited << now;
        Press(*now, Qt::Key_Tab);
    }
    return visited;
}

TEST_F(EveryWindow, UsesNoMnemonicTwice)
{
    ForEach([](const WindowRow&, QWidget& window) {
        QSet<QString> used;
        const auto check = [&](const QString& text) {
            const QString key = QKeySequence::mnemonic(text).toString();
            EXPECT_TRUE(key.isEmpty() || !used.contains(key)) << text.toStdString();
            used << key;
        };
        for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
            check(button->text());
        }
        for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
            for (const QAction* action : bar->actions()) {
                EXPECT_FALSE(QKeySequence::mnemonic(action->text()).isEmpty());
                check(action->text());
            }
        }
    });
}

TEST_F(EveryWindow, LeadsTabThroughAllThatCanBeUsedAndNothingElse)
{
    ForEach([](const WindowRow&, QWidget& window) {
        const QList<QWidget*> stops = TabStops(window);
        if (window.focusWidget() == nullptr && !stops.isEmpty()) {
            Press(window, Qt::Key_Tab);
        }
        const QList<QWidget*> visited = TabThrough(window);
        for (QWidget* each : stops) {
            EXPECT_TRUE(visited.contains(each)) << Describe(*each) << " is out of reach";
        }
        for (QWidget* each : visited) {
            EXPECT_TRUE(each->isVisible()) << Describe(*each) << " is hidden";
        }
        // The way back comes last.
        const auto* back = window.findChild<QPushButton*>("Command8");
        if (back && TextOf(*back) == "Назад" && !visited.isEmpty()) {
            EXPECT_EQ(visited.last(), back);
        }
    });
}

TEST_F(EveryWindow, ShowsTheFocusNamesItsControlsAndHasNoDefaultButton)
{
    ForEach([](const WindowRow&, QWidget& window) {
        for (QWidget* each : TabStops(window)) {
            each->setFocus(Qt::TabFocusReason);
            const QImage focused = Render(window);
            each->clearFocus();
            EXPECT_NE(focused, Render(window)) << Describe(*each);
            QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(each);
            EXPECT_TRUE(reader && !reader->text(QAccessible::Name).isEmpty()) << Describe(*each);
        }
        for (const QPushButton* button : window.findChildren<QPushButton*>()) {
            EXPECT_FALSE(button->isDefault() || button->autoDefault()) << Describe(*button);
        }
    });
}

TEST_F(EveryWindow, TellsAScreenReaderEachStatisticsNameAndValue)
{
    EnterRules([] {
        SetMoney(4210);
        SetHappy(62);
        SetEatLevel(-3);
        SetHealth(17);
        SetIntelligence(80);
        SetEducation(5);
    });
    for (const auto& [control, told] : {std::pair{"lblMoney", "Бюджет: $4210"},
                                        {"lblHappy", "Настроение: 62%"},
                                        {"lblEat", "Сытость: -3%"},
                                        {"lblHealth", "Здоровье: 17%"},
                                        {"lblEducation", "Образование: 80%"},
                                        {"lblStatus", "Статус: PROG-ER"},
                                        {"lblFamily", "Семья: NO WIFE"}}) {
        auto* reader = QAccessible::queryAccessibleInterface(&Control<QWidget>(&Main(), control));
        EXPECT_TRUE(reader->text(QAccessible::Name).startsWith(told)) << control;
    }
}

class Esc : public Play
{
protected:
    Esc() { Begin(); }
};

constexpr std::pair<const char*, const char*> Activities[] = {
    {"cmdHard", "frmHard"},       {"cmdSoft", "frmSoft"}, {"cmdHappy", "frmHappy"},
    {"cmdHealth", "frmHospital"}, {"cmdShop", "frmShop"}, {"cmdWork", "frmWork"},
    {"cmdSchool", "frmEducation"}};

TEST_F(Esc, ClosesWhatTheWayBackAndTheCloseBoxClose)
{
    for (const auto& [button, window] : Activities) {
        const std::function<void(QWidget&)> ways[]{
            [](QWidget& open) { Press(open, Qt::Key_Escape); },
            [](QWidget& open) { open.close(); },
            [](QWidget& open) { Click(Control(&open, "Command8")); },
        };
        for (const auto& close : ways) {
            Click("frmMain", button);
            ASSERT_TRUE(Find(window) && Find(window)->isModal()) << window;
            close(*Find(window));
            EXPECT_FALSE(Find(window)) << window << " way " << &close - ways;
        }
    }
}

TEST_F(Esc, ResumesThePausedGame)
{
    for (const bool byKey : {true, false}) {
        Type(Main(), "p");
        ASSERT_FALSE(ClockTicks());
        byKey ? Press(*Find("frmPause"), Qt::Key_Escape) : void(Find("frmPause")->close());
        EXPECT_TRUE(ClockTicks() && !Find("frmPause"));
    }
}

TEST_F(Esc, DoesNotAnswerAQuestionNorSpareTheVirus)
{
    const auto insist = [](QWidget& window) {
        Press(window, Qt::Key_Escape);
        window.close();
        for (auto* button : window.findChildren<QPushButton*>()) {
            Press(*button, Qt::Key_Escape);
        }
        EXPECT_TRUE(window.isVisible());
    };
    player.When("MessageBox", [&](QWidget& box) {
        insist(box);
        ClickCaption(box, "Да");
    });
    EXPECT_EQ(frontEnd.ShowMessageBox({"Сохранить?", "Вопрос", Icon::Question, Buttons::YesNo}),
              Answer::Yes);
    player.When("frmVirus", [&](QWidget& window) {
        insist(window);
        Click(Control(&window, "Command2"));
    });
    EnterRules([] { Windows().OpenWindow(Window::frmVirus); });
    EXPECT_EQ(player.boxes.back(), "Сообщение: Вирус сожрал 1 баксов!");
    EXPECT_EQ(GameState.Money, 14);
}

TEST_F(Esc, EnterInAFreshlyOpenedWindowCostsNothing)
{
    EnterRules([] { SetMoney(5000); });
    GameState.HardComm = GameState.SoftBrowser = 1;
    auto opened = std::vector(std::begin(Activities), std::end(Activities));
    opened.emplace_back("cmdInInet", "frmNetwork");
    for (const auto& [button, window] : opened) {
        Click("frmMain", button);
        QWidget& shown = *Find(window);
        for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
            Press(shown.focusWidget() ? *shown.focusWidget() : shown, key);
            QTest::qWait(120); // an animated click takes its time
        }
        EXPECT_EQ(GameState.Money, 5000) << window;
        EXPECT_EQ(Network().inetStatus, "Status: Disconnected");
        if (Find(window)) {
            Press(*Find(window), Qt::Key_Escape);
        }
    }
}

} // namespace
} // namespace torvenhall::test
