// The dialog that saves and loads, through the real windows.

#include <QLineEdit>
#include <QListWidget>
#include <QMenu>

#include "support/play.h"

using namespace torvenhall;
using namespace torvenhall::test;

struct Games : Play {
    Games()
    {
        // given two lives on disk, told apart by their money
        for (const auto& [name, money] : {std::pair{"Вечер", 100}, {"Утро", 200}}) {
            SetMoney(money);
            player.SavesAs(name);
            Choose("mnuFileSavegame");
        }
        SetMoney(15);
    }

    static QString Name() { return Control<QLineEdit>("frmLocGame", "Text1").text(); }
    static void ClickRow(int row, bool twice = false)
    {
        auto& list = Control<QListWidget>("frmLocGame", "List1");
        const QPoint place = list.visualItemRect(list.item(row)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        if (twice) {
            QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        }
    }
};

TEST_F(Games, ConfirmingLoadsThePickedGame)
{
    // In the freshly opened dialog no row is chosen, so Enter loads none.
    for (const QString way : {"click, button", "click, Enter", "double click", "arrow, button",
                              "arrow, Enter", "Enter"}) {
        SetMoney(15);
        player.When("frmLocGame", [way] {
            auto& list = Control<QListWidget>("frmLocGame", "List1");
            EXPECT_TRUE(QTest::qWaitForWindowActive(list.window()));
            if (way.contains("click")) {
                ClickRow(1, way == "double click");
            } else if (way.contains("arrow")) {
                list.setCurrentRow(0);
                Press(list, Qt::Key_Down);
            }
            EXPECT_TRUE(way == "double click" || Name() == (way == "Enter" ? "" : "Утро"));
            if (way.contains("button")) {
                Click("frmLocGame", "Command1");
            } else if (way.contains("Enter")) {
                Press(list, Qt::Key_Return);
            }
            if (way == "Enter") {
                Leave("frmLocGame", "Esc");
            }
        });
        Choose("mnuFileLoadgame");
        EXPECT_EQ(GameState.Money, way == "Enter" ? 15 : 200) << way.toStdString();
    }
    EXPECT_TRUE(player.boxes.empty());
}

TEST_F(Games, CancellingLoadsAndWritesNothing)
{
    const QString evening = Folder() + "SAVE/Вечер.QVS";
    const QDateTime before = QFileInfo(evening).lastModified();
    for (const QString way : {"Command2", "Esc", "close", "Command1"}) {
        for (const char* item : {"mnuFileLoadgame", "mnuFileSavegame"}) {
            player.When("frmLocGame", [&way] {
                ClickRow(0, Control<QLineEdit>("frmLocGame", "Text1").isEnabled());
                EXPECT_EQ(Name(), "Вечер") << "a double click saves nothing";
                if (way == "Command1") { // confirming without a name
                    Control<QLineEdit>("frmLocGame", "Text1").clear();
                }
                Leave("frmLocGame", way);
            });
            Choose(item);
            EXPECT_EQ(QFileInfo(evening).lastModified(), before);
            EXPECT_EQ(SavedFiles().size() + GameState.Money.value(), 2 + 15);
        }
    }
}

TEST_F(Games, APausedLifeIsSavedAndContinuedAfterAnotherOne)
{
    SetMoney(321);
    Type(Main(), "p");
    const auto& veil = Control<QWidget>("frmMain", "PauseVeil"); // clicks go through
    auto& button = Control("frmMain", "cmdShop");
    EXPECT_TRUE(veil.isVisible() && veil.geometry() == veil.parentWidget()->rect());
    EXPECT_EQ(veil.parentWidget()->childAt(button.geometry().center()), &button);
    player.When("frmLocGame", [] {
        auto& name = Control<QLineEdit>("frmLocGame", "Text1");
        const QMenu* menu = name.createStandardContextMenu();
        EXPECT_EQ(menu->actions().first()->text().section('\t', 0, 0).remove('&'),
                  "Отменить действие");
        Type(name, "Жизнь");
        Click("frmLocGame", "Command1");
    });
    Click("frmPause", "Command2");
    // A mark at the beginning is part of the name.
    QDir(Folder() + "SAVE").rename("Жизнь.QVS", QChar(QChar::ByteOrderMark) + QString("Жизнь.QVS"));
    Click("frmPause", "Command3");
    EXPECT_TRUE(Main().isMinimized() && Find("frmPause") && !ClockTicks());
    player.NextLifeIs("<b>Пётр</b>", 2);
    Choose("mnuFileNewgame");
    EXPECT_EQ(GameState.WinMoney, 5000);
    ExpectFreshLife("<b>Пётр</b>");
    player.When("frmLocGame", [] { ClickRow(2, true); }); // "Вечер", "Утро", "Жизнь"
    Choose("mnuFileLoadgame");
    EXPECT_EQ(TextOf("frmMain", "lblMoney"), "$321");
    EXPECT_EQ(Main().windowTitle(), "Marshend Torvenhall 1.5 - Иван");
}
