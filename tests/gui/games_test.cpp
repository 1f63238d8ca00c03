// The dialog that saves and loads, through the real windows.

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>

#include "support/play.h"

namespace torvenhall::test
{
namespace
{

QListWidget& List(QWidget& dialog)
{
    return *dialog.findChild<QListWidget*>("List1");
}

QLineEdit& Name(QWidget& dialog)
{
    return *dialog.findChild<QLineEdit*>("Text1");
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
        SaveAs("Вечер", 100);
        SaveAs("Утро", 200);
        Set([] { SetMoney(15); });
    }

    void SaveAs(const QString& name, int money)
    {
        Set([money] { SetMoney(money); });
        player.When("frmLocGame", [name](QWidget& dialog) {
            Type(Name(dialog), name);
            Click(*dialog.findChild<QAbstractButton*>("Command1"));
        });
        Choose("mnuFileSavegame");
    }

    void Load(const Player::Reaction& reaction)
    {
        player.When("frmLocGame", reaction);
        Choose("mnuFileLoadgame");
    }
};

TEST_F(Games, TheNameIsTypedForSavingAndOnlyPickedForLoading)
{
    const auto look = [](const QString& title, const QString& confirm, bool typed) {
        return [=](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            EXPECT_EQ(TextOf(*dialog.findChild<QAbstractButton*>("Command1")), confirm);
            EXPECT_EQ(Name(dialog).isEnabled(), typed);
            EXPECT_EQ(Name(dialog).text(), "");
            ASSERT_EQ(List(dialog).count(), 2);
            EXPECT_EQ(List(dialog).item(0)->text(), "Вечер");
            EXPECT_EQ(List(dialog).item(1)->text(), "Утро");
            ClickRow(dialog, 1);
            EXPECT_EQ(Name(dialog).text(), "Утро");
            Press(dialog, Qt::Key_Escape);
        };
    };
    player.When("frmLocGame", look("Сохранение игры", "Сохранить", true));
    Choose("mnuFileSavegame");
    player.When("frmLocGame", look("Загрузка игры", "Загрузить", false));
    Choose("mnuFileLoadgame");
    EXPECT_EQ(GameState.Money, 15);
}

TEST_F(Games, ConfirmingLoadsThePickedGame)
{
    const std::vector<Player::Reaction> ways{
        [](QWidget& dialog) {
            ClickRow(dialog, 1);
            Click(*dialog.findChild<QAbstractButton*>("Command1"));
        },
        [](QWidget& dialog) { ClickRow(dialog, 1, true); },
        [](QWidget& dialog) {
            ClickRow(dialog, 1);
            Press(List(dialog), Qt::Key_Return);
        },
        [](QWidget& dialog) {
            Press(List(dialog), Qt::Key_Down);
            Press(List(dialog), Qt::Key_Down);
            List(dialog).setCurrentRow(1);
            Press(List(dialog), Qt::Key_Return);
        },
    };
    for (std::size_t i = 0; i < ways.size(); ++i) {
        SCOPED_TRACE(i);
        Set([] { SetMoney(15); });
        Load(ways[i]);
        EXPECT_EQ(GameState.Money, 200);
        EXPECT_EQ(TextOf("frmMain", "lblMoney"), "$200");
    }
    EXPECT_TRUE(player.boxes.empty());
}

TEST_F(Games, CancellingLoadsAndWritesNothing)
{
    const std::vector<Player::Reaction> ways{
        [](QWidget& dialog) { Click(*dialog.findChild<QAbstractButton*>("Command2")); },
        [](QWidget& dialog) { Press(dialog, Qt::Key_Escape); },
        [](QWidget& dialog) { dialog.close(); },
        // confirming without a name
        [](QWidget& dialog) {
            Name(dialog).clear();
            Click(*dialog.findChild<QAbstractButton*>("Command1"));
        },
    };
    for (std::size_t i = 0; i < ways.size(); ++i) {
        SCOPED_TRACE(i);
        const auto pickFirst = [&, i](QWidget& dialog) {
            ClickRow(dialog, 0);
            ways[i](dialog);
        };
        Load(pickFirst);
        EXPECT_EQ(GameState.Money, 15);
        QFile evening(Folder() + "SAVE/Вечер.QVS");
        ASSERT_TRUE(evening.open(QIODevice::ReadOnly));
        const QByteArray before = evening.readAll();
        player.When("frmLocGame", pickFirst);
        Choose("mnuFileSavegame");
        evening.seek(0);
        EXPECT_EQ(evening.readAll(), before);
        EXPECT_EQ(SavedFiles().size(), 2);
    }
}

TEST_F(Games, AnImpossibleNameComesBackForMending)
{
    // the last one is possible, but a folder stands in its place
    QDir(Folder()).mkpath("SAVE/Ночь.QVS/полна");
    for (const QString& name :
         {QString("a/b"), QString("../x"), QString(300, QChar(0x44F)), QString("Ночь")}) {
        player.boxes.clear();
        player.When("frmLocGame", [name](QWidget& dialog) {
            Name(dialog).setText(name);
            Click(*dialog.findChild<QAbstractButton*>("Command1"));
        });
        player.When("frmLocGame", [name](QWidget& dialog) {
            EXPECT_EQ(Name(dialog).text(), name);
            Press(dialog, Qt::Key_Escape);
        });
        Choose("mnuFileSavegame");
        EXPECT_EQ(player.boxes.size(), 1U);
        EXPECT_EQ(SavedFiles().size(), 2);
    }
}

TEST_F(Games, APausedLifeIsSavedAndContinuedInAnotherRun)
{
    Set([] {
        SetMoney(321);
        SetIntelligence(40);
    });
    Type(Main(), "p");
    player.When("frmLocGame", [](QWidget& dialog) {
        Type(Name(dialog), "Жизнь");
        Click(*dialog.findChild<QAbstractButton*>("Command1"));
    });
    Click("frmPause", "Command2");
    Click("frmPause", "Command3");
    EXPECT_TRUE(Main().isMinimized());
    EXPECT_TRUE(IsShown("frmPause"));
    EXPECT_FALSE(Main().findChild<QTimer*>("tmrTime")->isActive());
    // when another person plays meanwhile
    player.NextLifeIs("Другой");
    Choose("mnuFileNewgame");
    Load([](QWidget& dialog) {
        const auto found = List(dialog).findItems("Жизнь", Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        ClickRow(dialog, List(dialog).row(found.first()), true);
    });
    EXPECT_EQ(TextOf("frmMain", "lblMoney"), "$321");
    EXPECT_EQ(TextOf("frmMain", "lblEducation"), "40%");
    EXPECT_EQ(Main().windowTitle(), "Marshend Torvenhall 1.5 - Иван");
}

} // namespace
} // namespace torvenhall::test
