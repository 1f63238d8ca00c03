// Every window without a mouse: mnemonics, Tab, Esc, Enter, and what a screen
// reader is told.

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QKeySequence>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QTimer>

#include "network/network.h"
#include "support/looks.h"
#include "support/windows.h"
#include "ui/support/boxes.h"

namespace torvenhall::test
{
namespace
{

std::string Describe(const QWidget& control)
{
    return (control.objectName() + " \"" + TextOf(control) + '"').toStdString();
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

TEST_F(EveryWindow, ShowsWhereTheFocusIs)
{
    ForEach([](const WindowRow&, QWidget& window) {
        for (QWidget* each : TabStops(window)) {
            each->setFocus(Qt::TabFocusReason);
            const QImage focused = Render(window);
            each->clearFocus();
            EXPECT_NE(focused, Render(window)) << Describe(*each);
        }
    });
}

TEST_F(EveryWindow, HasNoDefaultButton)
{
    ForEach([](const WindowRow&, QWidget& window) {
        for (const QPushButton* button : window.findChildren<QPushButton*>()) {
            EXPECT_FALSE(button->isDefault() || button->autoDefault()) << Describe(*button);
        }
    });
}

TEST_F(EveryWindow, TellsAScreenReaderEveryControlsName)
{
    ForEach([](const WindowRow&, QWidget& window) {
        for (QWidget* each : TabStops(window)) {
            QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(each);
            ASSERT_TRUE(reader) << Describe(*each);
            EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty()) << Describe(*each);
        }
    });
}

TEST_F(EveryWindow, TellsAScreenReaderEachStatisticsNameAndValue)
{
    const Shown shown(AllWindows()[0], frontEnd);
    Set([] {
        SetMoney(4210);
        SetHappy(62);
        SetEatLevel(-3);
        SetHealth(17);
        SetIntelligence(80);
        SetEducation(5);
    });
    for (const auto& [control, name, value] : {std::tuple{"lblMoney", "Бюджет", "$4210"},
                                               {"lblHappy", "Настроение", "62%"},
                                               {"lblEat", "Сытость", "-3%"},
                                               {"lblHealth", "Здоровье", "17%"},
                                               {"lblEducation", "Образование", "80%"},
                                               {"lblStatus", "Статус", "PROG-ER"},
                                               {"lblFamily", "Семья", "NO WIFE"}}) {
        QAccessibleInterface* reader =
            QAccessible::queryAccessibleInterface(shown->findChild<QWidget*>(control));
        ASSERT_TRUE(reader);
        const QString told = reader->text(QAccessible::Name);
        EXPECT_TRUE(told.contains(name)) << control << " is called " << told.toStdString();
        const QString all =
            told + reader->text(QAccessible::Value) + reader->text(QAccessible::Description);
        EXPECT_TRUE(all.contains(value)) << control << " is said to be " << all.toStdString();
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

TEST_F(Esc, ClosesWhatTheWayBackCloses)
{
    for (const auto& [button, window] : Activities) {
        Click("frmMain", button);
        ASSERT_TRUE(IsShown(window));
        EXPECT_TRUE(Find(window)->isModal()) << window;
        Press(*Find(window), Qt::Key_Escape);
        EXPECT_FALSE(IsShown(window)) << window << " by Esc";
        Click("frmMain", button);
        Find(window)->close();
        EXPECT_FALSE(IsShown(window)) << window << " by its close box";
        Click("frmMain", button);
        Click(window, "Command8");
        EXPECT_FALSE(IsShown(window)) << window << " by its way back";
    }
}

TEST_F(Esc, ResumesThePausedGame)
{
    const auto* clock = Main().findChild<QTimer*>("tmrTime");
    for (const bool byKey : {true, false}) {
        Type(Main(), "p");
        ASSERT_FALSE(clock->isActive());
        if (byKey) {
            Press(*Find("frmPause"), Qt::Key_Escape);
        } else {
            Find("frmPause")->close();
        }
        EXPECT_FALSE(IsShown("frmPause"));
        EXPECT_TRUE(clock->isActive());
    }
}

TEST_F(Esc, DoesNotAnswerAQuestion)
{
    const MessageBox question{"Сохранить игру сейчас???", "Вопрос", Icon::Question, Buttons::YesNo};
    player.When("MessageBox", [this](QWidget& box) {
        Press(box, Qt::Key_Escape);
        box.close();
        EXPECT_TRUE(box.isVisible());
        for (auto* button : box.findChildren<QPushButton*>()) {
            Press(*button, Qt::Key_Escape);
        }
        EXPECT_TRUE(box.isVisible());
        for (auto* button : box.findChildren<QPushButton*>()) {
            if (TextOf(*button) == "Да") {
                Click(*button);
            }
        }
    });
    EXPECT_EQ(frontEnd.ShowMessageBox(question), Answer::Yes);
}

TEST_F(Esc, DoesNotSparePlayersTheVirus)
{
    player.When("frmVirus", [](QWidget& window) {
        Press(window, Qt::Key_Escape);
        window.close();
        EXPECT_TRUE(window.isVisible());
        Click(*window.findChild<QAbstractButton*>("Command2"));
    });
    Set([] { Windows().OpenWindow(Window::frmVirus); });
    EXPECT_EQ(player.boxes, std::vector<QString>{"Сообщение: Вирус сожрал 1 баксов!"});
    EXPECT_EQ(GameState.Money, 14);
}

TEST_F(Esc, EnterInAFreshlyOpenedWindowCostsNothing)
{
    Set([] { SetMoney(5000); });
    GameState.HardComm = 1;
    GameState.SoftBrowser = 1;
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
        if (IsShown(window)) {
            Press(*Find(window), Qt::Key_Escape);
        }
    }
}

} // namespace
} // namespace torvenhall::test
