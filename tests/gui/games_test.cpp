// The dialog that saves and loads, through the real windows.

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>

#include "support/play.h"

namespace torvenhall::test
{
namespace
{

QListWidget& List(QWidget& dialog)
{
    return Control<QListWidget>(&dialog, "List1");
}
QLineEdit& Name(QWidget& dialog)
{
    return Control<QLineEdit>(&dialog, "Text1");
}
void Confirm(QWidget& dialog)
{
    Click(Control(&dialog, "Command1"));
}

void ClickRow(QWidget& dialog, int row, bool twice = false)
{
    QListWidget& list = List(dialog);
    const QPoint place = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    if (twice) {
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    }
}

class Games : public Play
{
protected:
    Games()
    {
        Begin();
        // given two lives on disk, told apart by their money
        for (const auto& [name, money] : {std::pair{"Вечер", 100}, {"Утро", 200}}) {
            EnterRules([money = money] { SetMoney(money); });
            player.SavesAs(name);
            Choose("mnuFileSavegame");
        }
        EnterRules([] { SetMoney(15); });
    }

    void Open(const char* item, const Player::Reaction& reaction)
    {
        player.When("frmLocGame", reaction);
        Choose(item);
    }
};

TEST_F(Games, TheNameIsTypedForSavingAndOnlyPickedForLoading)
{
    for (const auto& [item, title, typed] : {std::tuple{"mnuFileSavegame", "Сохранение игры", true},
                                             {"mnuFileLoadgame", "Загрузка игры", false}}) {
        Open(item, [title = title, typed = typed](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            EXPECT_EQ(Name(dialog).isEnabled(), typed);
            EXPECT_EQ(Name(dialog).text(), "");
            EXPECT_EQ(List(dialog).count(), 2);
            EXPECT_EQ(List(dialog).item(0)->text(), "Вечер");
            ClickRow(dialog, 1);
            EXPECT_EQ(Name(dialog).text(), "Утро");
            Press(dialog, Qt::Key_Escape);
        });
    }
    EXPECT_EQ(GameState.Money, 15);
}

TEST_F(Games, ConfirmingLoadsThePickedGame)
{
    // Enter in the freshly opened dialog takes the row that has the focus.
    for (const QString way : {"click, button", "click, Enter", "double click", "arrow, button",
                              "arrow, Enter", "Enter"}) {
        EnterRules([] { SetMoney(15); });
        Open("mnuFileLoadgame", [way](QWidget& dialog) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
            if (way.contains("click")) {
                ClickRow(dialog, 1, way == "double click");
            } else if (way.contains("arrow")) {
                List(dialog).setCurrentRow(0);
                Press(List(dialog), Qt::Key_Down);
            }
            if (way.contains("button")) {
                Confirm(dialog);
            } else if (way.contains("Enter")) {
                Press(*dialog.focusWidget(), Qt::Key_Return);
            }
        });
        EXPECT_EQ(TextOf("frmMain", "lblMoney"), way == "Enter" ? "$100" : "$200")
            << way.toStdString();
    }
    EXPECT_TRUE(player.boxes.empty());
}

TEST_F(Games, CancellingLoadsAndWritesNothing)
{
    const std::vector<Player::Reaction> ways{
        [](QWidget& dialog) { Click(Control(&dialog, "Command2")); },
        [](QWidget& dialog) { Press(dialog, Qt::Key_Escape); },
        [](QWidget& dialog) { dialog.close(); },
        // confirming without a name
        [](QWidget& dialog) {
            Name(dialog).clear();
            Confirm(dialog);
        },
    };
    QFile evening(Folder() + "SAVE/Вечер.QVS");
    ASSERT_TRUE(evening.open(QIODevice::ReadOnly));
    const QByteArray before = evening.readAll();
    for (const auto& way : ways) {
        for (const char* item : {"mnuFileLoadgame", "mnuFileSavegame"}) {
            Open(item, [&](QWidget& dialog) {
                ClickRow(dialog, 0);
                way(dialog);
            });
            evening.seek(0);
            EXPECT_EQ(evening.readAll(), before);
            EXPECT_EQ(GameState.Money, 15);
            EXPECT_EQ(SavedFiles().size(), 2);
        }
    }
}

TEST_F(Games, AnImpossibleNameComesBackForMending)
{
    // the last one is possible, but a folder stands in its place
    QDir(Folder()).mkpath("SAVE/Ночь.QVS/полна");
    for (const QString& name : {QString("../x"), QString(300, QChar(0x44F)), QString("Ночь")}) {
        player.boxes.clear();
        player.SavesAs(name);
        player.When("frmLocGame", [name](QWidget& dialog) {
            EXPECT_EQ(Name(dialog).text(), name);
            Press(dialog, Qt::Key_Escape);
        });
        Choose("mnuFileSavegame");
        EXPECT_EQ(player.boxes.size(), 1U);
        EXPECT_EQ(SavedFiles().size(), 2);
    }
}

TEST_F(Games, APausedLifeIsSavedAndContinuedAfterAnotherOne)
{
    EnterRules([] { SetMoney(321); });
    Type(Main(), "p");
    player.SavesAs("Жизнь");
    Click("frmPause", "Command2");
    Click("frmPause", "Command3");
    EXPECT_TRUE(Main().isMinimized() && Find("frmPause") && !ClockTicks());
    player.NextLifeIs("Другой");
    Choose("mnuFileNewgame");
    Open("mnuFileLoadgame", [](QWidget& dialog) {
        ClickRow(dialog, 1, true); // "Вечер", "Жизнь", "Утро"
    });
    EXPECT_EQ(TextOf("frmMain", "lblMoney"), "$321");
    EXPECT_EQ(Main().windowTitle(), "Marshend Torvenhall 1.5 - Иван");
}

} // namespace
} // namespace torvenhall::test
