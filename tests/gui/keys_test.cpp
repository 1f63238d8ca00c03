// The keys of the main window: "p" pauses, "w" opens the cheat console, and
// nothing else does.

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "support/play.h"

namespace torvenhall::test
{
namespace
{

class Keys : public Play
{
protected:
    Keys() { Begin(); }

    /// One stroke, as the toolkit delivers it to the widget with the focus.
    static void Stroke(QWidget& where, const QString& text, Qt::KeyboardModifiers held = {},
                       bool repeats = false)
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, text[0].toUpper().unicode(), held, text, repeats);
            QApplication::sendEvent(&where, &event);
        }
    }

    void ExpectNothingHappened(const QString& what)
    {
        EXPECT_TRUE(ClockTicks() && !Find("frmPause") && player.dialogs.empty())
            << what.toStdString();
    }
};

TEST_F(Keys, PausesWithPInBothAlphabetsWhereverTheFocusIs)
{
    for (QWidget* focused : std::initializer_list<QWidget*>{&Main(), &Control("frmMain", "cmdHard"),
                                                            &Control("frmMain", "cmdInInet")}) {
        for (const QString key : {"p", "з"}) {
            focused->setFocus();
            Stroke(*focused, key);
            EXPECT_FALSE(ClockTicks());
            Click("frmPause", "Command1");
            ExpectNothingHappened("resumed");
        }
    }
}

TEST_F(Keys, OpensTheCheatConsoleWithWInBothAlphabetsAndEscLeavesIt)
{
    for (const auto& [key, end, money] : {std::tuple{"w", Qt::Key_Escape, 15},
                                          {"w", Qt::Key_Return, 5015},
                                          {"ц", Qt::Key_Return, 10015}}) {
        player.When("InputBox", [end = end](QWidget& box) {
            EXPECT_EQ(box.windowTitle(), "Torvenhall 1.5");
            EXPECT_EQ(TextOf(Control<QLabel>(&box, "Prompt")), "Введите чит:");
            auto& entry = Control<QLineEdit>(&box, "Text1");
            EXPECT_EQ(entry.text(), "");
            Type(entry, "QUOKKAFOX");
            Press(entry, end);
        });
        Stroke(Control("frmMain", "cmdWork"), key);
        EXPECT_EQ(GameState.Money, money);
    }
}

TEST_F(Keys, OtherStrokesDoNothing)
{
    QWidget& button = Control("frmMain", "cmdShop");
    for (const QString key : {"P", "W", "З", "Ц", "q", "1"}) {
        Stroke(button, key, key == key.toUpper() ? Qt::ShiftModifier : Qt::NoModifier);
        ExpectNothingHappened(key);
    }
    QMenu& menu = *Main().menuBar()->actions().first()->menu();
    for (const QString key : {"p", "з", "w", "ц"}) {
        for (const auto held : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
            Stroke(button, key, held);
        }
        Stroke(button, key, {}, true);
        // Opened by its bar, a menu hands keys that it does not use on.
        Main().menuBar()->setActiveAction(Main().menuBar()->actions().first());
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&menu));
        Stroke(menu, key);
        menu.close();
        Click("frmMain", "cmdHealth");
        QWidget& other = *Find("frmHospital");
        Stroke(other.focusWidget() ? *other.focusWidget() : other, key);
        Click("frmHospital", "Command8");
        ExpectNothingHappened(key);
    }
}

TEST_F(Keys, SaveLoadAndHelpHaveShortcuts)
{
    for (const auto& [key, title] :
         {std::pair{Qt::Key_S, "Сохранение игры"}, {Qt::Key_O, "Загрузка игры"}}) {
        player.When("frmLocGame", [title = title](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            Click(Control(&dialog, "Command2"));
        });
        Press(Main(), key, Qt::ControlModifier);
    }
    // given no read-me beside the program
    Press(Main(), Qt::Key_F1);
    ASSERT_EQ(player.boxes.size(), 1U);
    EXPECT_TRUE(player.boxes[0].startsWith("Ошибка: Файл справочной информации"));
}

TEST_F(Keys, AFurtherStrokeWhilePausedKeepsOnePauseWindow)
{
    Stroke(Main(), "p");
    Stroke(Main(), "p");
    EXPECT_EQ(OpenWindows(), (QStringList{"frmMain", "frmPause"}));
    // when the main window is used beside the pause
    Click("frmMain", "cmdShop");
    EXPECT_TRUE(Find("frmShop") && !ClockTicks());
}

} // namespace
} // namespace torvenhall::test
