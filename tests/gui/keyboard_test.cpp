// Every window without a mouse: mnemonics, Tab, Esc, Enter, the keys of the
// main window, and what a screen reader is told.

#include <QAccessible>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QShortcut>

#include "network/network.h"
#include "support/play.h"
#include "ui/windows.h"

using namespace torvenhall;
using namespace torvenhall::test;

using Keyboard = Play;

TEST_F(Keyboard, TabVisitsAllThatCanBeUsedAndShowsAndSaysWhereItIs)
{
    ForEachWindow([](QWidget& window) {
        if (window.objectName() == "MessageBox") {
            return; // the toolkit's own
        }
        QSet<QWidget*> stops;
        for (QWidget* each : window.findChildren<QWidget*>()) {
            const bool isStop = each->isVisible() && each->isEnabled() && !each->focusProxy() &&
                                each->window() == &window && (each->focusPolicy() & Qt::TabFocus) &&
                                !each->objectName().startsWith("qt_");
            stops += isStop ? QSet<QWidget*>{each} : QSet<QWidget*>();
        }
        QList<QWidget*> visited;
        if (!window.focusWidget()) {
            Press(window, Qt::Key_Tab);
        }
        for (; !visited.contains(window.focusWidget()); Press(*visited.last(), Qt::Key_Tab)) {
            visited << window.focusWidget();
        }
        EXPECT_TRUE(QSet(visited.begin(), visited.end()) == stops);
        for (QWidget* each : stops) {
            each->setFocus(Qt::TabFocusReason);
            const QImage focused = window.grab().toImage();
            each->clearFocus();
            EXPECT_NE(focused, window.grab().toImage()) << each->objectName().toStdString();
            QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(each);
            EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty());
            const auto* button = qobject_cast<QPushButton*>(each);
            EXPECT_FALSE(button && (button->isDefault() || button->autoDefault()));
            EXPECT_TRUE(TextOf(*each) != "Назад" || each == visited.last());
        }
    });
}

TEST_F(Keyboard, EnterCostsNothingAndEscTheCloseBoxAndTheWayBackCloseWhatTheyMay)
{
    SetMoney(5000);
    player.reacts = false;
    for (const WindowRow& row : WindowTable()) {
        const QString name = Text(row.name);
        const QString back = name == "frmVirus"                         ? "Esc"
                             : name == "frmNetwork"                     ? "Command9"
                             : name == "frmPause" || name == "frmAbout" ? "Command1"
                                                                        : "Command8";
        for (const QString& way :
             {QString("Return"), QString("Esc"), QString("Enter"), QString("close"), back}) {
            name == "frmPause" ? Type(Main(), "p") : Do([&row] { Windows().OpenWindow(row.name); });
            QWidget& shown = *Find(name);
            EXPECT_EQ(shown.isModal(), name != "frmPause");
            EXPECT_EQ(ClockTicks(), name != "frmPause");
            if (way == "Return" || way == "Enter") {
                Press(shown.focusWidget() ? *shown.focusWidget() : shown,
                      way == "Enter" ? Qt::Key_Enter : Qt::Key_Return);
                EXPECT_TRUE(player.boxes.isEmpty()) << row.name;
                continue;
            }
            Leave(name, way);
            EXPECT_EQ(Find(name) != nullptr, name == "frmVirus") << row.name;
            EXPECT_TRUE(ClockTicks());
        }
    }
    EXPECT_EQ(GameState.Money - GameState.AttendSchool, 5000);
    EXPECT_EQ(Network().inetStatus, "Status: Disconnected");
    // the virus and a question insist on an answer
    Click("frmVirus", "Command2");
    EXPECT_EQ(player.boxes, QStringList{"Сообщение: Вирус сожрал 250 баксов!"});
    Say("OK");
    EXPECT_EQ(QApplication::activeWindow(), &Main());
    Choose("mnuFileExit");
    for (const char* way : {"Esc", "close"}) {
        Leave("MessageBox", way);
        EXPECT_TRUE(Find("MessageBox"));
    }
}

TEST_F(Keyboard, F1OpensTheManualInEveryWindow)
{
    ForEachWindow([this](QWidget& window) {
        player.boxes.clear();
        EXPECT_TRUE(Until([&] { return QApplication::activeWindow() == &window; }));
        Press(window, Qt::Key_F1); // given no manual beside the program
        for (const auto* key : window.findChildren<QShortcut*>()) {
            EXPECT_FALSE(key->autoRepeat());
        }
        EXPECT_TRUE(player.boxes.value(0).startsWith("Ошибка: Файл справочной информации"));
        for (QWidget* box : Visible().values("MessageBox")) {
            box == &window ? void() : void(box->close());
        }
        Settle();
    });
}

TEST_F(Keyboard, PauseAndCheatKeysActWhereverTheFocusIsAndOthersDoNot)
{
    auto& button = Control("frmMain", "cmdInInet");
    for (const QString key : {"p", "з"}) {
        Type(key == "p" ? static_cast<QWidget&>(Main()) : button, key + key); // one pause window
        EXPECT_EQ(OpenWindows(), (QStringList{"frmMain", "frmPause"}));
        Click("frmPause", "Command1");
        EXPECT_TRUE(ClockTicks() && !Control<QWidget>("frmMain", "PauseVeil").isVisible());
    }
    for (const auto& [key, end, money] : {std::tuple{"w", Qt::Key_Escape, 15},
                                          {"w", Qt::Key_Return, 5015},
                                          {"ц", Qt::Key_Return, 10015}}) {
        player.When("InputBox", [end = end] {
            auto& entry = Control<QLineEdit>("InputBox", "Text1");
            Type(entry, "QUOKKAFOX");
            Press(entry, end);
        });
        Type(button, key);
        EXPECT_EQ(GameState.Money, money);
    }
    Type(button, "PWЗЦq1", Qt::ShiftModifier);
    QMenu& menu = *Main().menuBar()->actions().first()->menu();
    for (const QString key : {"p", "з", "w", "ц"}) {
        for (const auto held : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
            Type(button, key, held);
        }
        QKeyEvent repeated(QEvent::KeyPress, 0, Qt::NoModifier, key, true);
        QApplication::sendEvent(&button, &repeated);
        // Opened by its bar, a menu hands keys that it does not use on.
        Main().menuBar()->setActiveAction(Main().menuBar()->actions().first());
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&menu));
        Type(menu, key);
        menu.close();
        Click("frmMain", "cmdHealth");
        Type(*Find("frmHospital"), key);
        Click("frmHospital", "Command8");
        EXPECT_EQ(OpenWindows(), QStringList{"frmMain"}) << key.toStdString();
    }
}
