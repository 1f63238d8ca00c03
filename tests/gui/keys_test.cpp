// The keys of the main window: "p" pauses, "w" opens the cheat console, and
// nothing else does.

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

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
    static void Stroke(QWidget& where, const QString& text, Qt::KeyboardModifiers modifiers = {},
                       bool repeats = false)
    {
        const int key = text[0].toUpper().unicode();
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text, repeats);
        QApplication::sendEvent(&where, &press);
        QKeyEvent release(QEvent::KeyRelease, key, modifiers, text, repeats);
        QApplication::sendEvent(&where, &release);
    }

    void ExpectNothingHappened(const QString& what)
    {
        EXPECT_FALSE(IsShown("frmPause")) << what.toStdString();
        EXPECT_TRUE(player.dialogs.empty()) << what.toStdString();
        EXPECT_TRUE(Main().findChild<QTimer*>("tmrTime")->isActive()) << what.toStdString();
    }
};

TEST_F(Keys, PausesWithPInBothAlphabetsWhereverTheFocusIs)
{
    for (QWidget* focused : std::initializer_list<QWidget*>{
             &Main(), &Control<>("frmMain", "cmdHard"), &Control<>("frmMain", "cmdInInet")}) {
        for (const QString key : {"p", "з"}) {
            focused->setFocus();
            Stroke(*focused, key);
            ASSERT_TRUE(IsShown("frmPause"));
            EXPECT_FALSE(Main().findChild<QTimer*>("tmrTime")->isActive());
            Click("frmPause", "Command1");
            ExpectNothingHappened("resumed");
        }
    }
}

TEST_F(Keys, OpensTheCheatConsoleWithWInBothAlphabets)
{
    for (const QString key : {"w", "ц"}) {
        player.When("InputBox", [](QWidget& box) {
            EXPECT_EQ(box.windowTitle(), "Torvenhall 1.5");
            EXPECT_EQ(TextOf(*box.findChild<QLabel*>("Prompt")), "Введите чит:");
            auto& entry = *box.findChild<QLineEdit*>("Text1");
            EXPECT_EQ(entry.text(), "");
            Type(entry, "QUOKKAFOX");
            Press(entry, Qt::Key_Return);
        });
        Stroke(Control<>("frmMain", "cmdWork"), key);
    }
    EXPECT_EQ(GameState.Money, 10015);
}

TEST_F(Keys, CancellingTheCheatConsoleChangesNothing)
{
    player.When("InputBox", [](QWidget& box) {
        Type(*box.findChild<QLineEdit*>("Text1"), "QUOKKAFOX");
        Press(box, Qt::Key_Escape);
    });
    Stroke(Main(), "w");
    EXPECT_EQ(GameState.Money, 15);
}

TEST_F(Keys, OtherStrokesDoNothing)
{
    QWidget& button = Control<>("frmMain", "cmdShop");
    for (const QString key : {"P", "W", "З", "Ц", "q", "1"}) {
        Stroke(button, key, key == key.toUpper() ? Qt::ShiftModifier : Qt::NoModifier);
        ExpectNothingHappened(key);
    }
    for (const QString key : {"p", "з", "w", "ц"}) {
        for (const Qt::KeyboardModifiers held :
             {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
            Stroke(button, key, held);
        }
        Stroke(button, key, {}, true);
        ExpectNothingHappened(key);
    }
}

TEST_F(Keys, AnOpenMenuKeepsItsKeys)
{
    QMenu& menu = *Main().menuBar()->actions().first()->menu();
    menu.popup(Main().mapToGlobal(QPoint(5, 25)));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
    for (const QString key : {"p", "з", "w", "ц"}) {
        Stroke(menu, key);
    }
    menu.close();
    ExpectNothingHappened("in a menu");
}

TEST_F(Keys, AnotherWindowKeepsItsKeys)
{
    Click("frmMain", "cmdHealth");
    QWidget& window = *Find("frmHospital");
    for (const QString key : {"p", "з", "w", "ц"}) {
        Stroke(window.focusWidget() ? *window.focusWidget() : window, key);
    }
    ExpectNothingHappened("in the hospital");
}

TEST_F(Keys, SaveLoadAndHelpHaveShortcuts)
{
    for (const auto& [key, title] :
         {std::pair{Qt::Key_S, "Сохранение игры"}, {Qt::Key_O, "Загрузка игры"}}) {
        player.When("frmLocGame", [expected = QString(title)](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), expected);
            Click(*dialog.findChild<QAbstractButton*>("Command2"));
        });
        Press(Main(), key, Qt::ControlModifier);
    }
    // given no read-me beside the program
    Press(Main(), Qt::Key_F1);
    ASSERT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(player.boxes[0], "Ошибка: Файл справочной информации '" + Folder() +
                                   "License.txt' не найден или ошибка доступа!");
}

TEST_F(Keys, AFurtherStrokeWhilePausedKeepsOnePauseWindow)
{
    Stroke(Main(), "p");
    Stroke(Main(), "p");
    const auto all = QApplication::topLevelWidgets();
    EXPECT_EQ(std::count_if(all.begin(), all.end(),
                            [](const QWidget* each) {
                                return each->isVisible() && each->objectName() == "frmPause";
                            }),
              1);
    // when the main window is used beside the pause
    Click("frmMain", "cmdShop");
    EXPECT_TRUE(IsShown("frmShop"));
    EXPECT_FALSE(Main().findChild<QTimer*>("tmrTime")->isActive());
}

} // namespace
} // namespace torvenhall::test
