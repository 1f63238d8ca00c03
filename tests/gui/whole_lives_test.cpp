// Three whole lives of one evening, played with the mouse alone: the first is
// won, the second starves, the third is not begun.

#include <QLineEdit>

#include "equipment/basEquipment.h"
#include "game/newgame.h"
#include "support/play.h"

namespace torvenhall::test
{
namespace
{

class WholeLives : public Play
{
protected:
    static void FinishDay()
    {
        const Date today = GameState.GameDate;
        for (int i = 0; i < 100 && GameState.GameDate == today; ++i) {
            EnterTick();
        }
    }

    static void Visit(const char* opener, const char* window,
                      const std::vector<const char*>& buttons)
    {
        Click("frmMain", opener);
        for (const char* button : buttons) {
            Click(window, button);
        }
        Click(window, "Command8");
    }

    /// Opens the shop, the hospital and the places of fun as far as needed.
    static void LookAfterYourself()
    {
        if (GameState.EatLevel < 30 && GameState.Money >= 60) {
            Visit("cmdShop", "frmShop", {"Command5"});
        }
        if (GameState.Health < 0 && GameState.Money >= 100) {
            Visit("cmdHealth", "frmHospital", {"Command2"});
        }
        if (GameState.Happy < 0 && GameState.Money > 75) {
            Visit("cmdHappy", "frmHappy", {"Command3"});
        }
    }

    void TypeCheat(const char* code)
    {
        player.When("InputBox", [code](QWidget& box) {
            Type(Control<QLineEdit>(&box, "Text1"), code);
            Click(Control(&box, "Command1"));
        });
        Type(Main(), "w");
    }

    void Win()
    {
        // a janitor's easy month, school and courses attended
        Visit("cmdWork", "frmWork", {"cmdWork0"});
        TypeCheat("QUOKKAFOX");
        Visit("cmdSchool", "frmEducation", {"Command1", "Command2"});
        while (GameState.Education < 8 || GameState.Intelligence < 100) {
            FinishDay();
            LookAfterYourself();
            ASSERT_TRUE(GameState.GameDate < std::chrono::year{2003} / 1 / 1);
        }
        while (GameState.Money <= 20000) {
            TypeCheat("QUOKKAFOX");
        }
        Click("frmMain", "cmdHard");
        for (int part = 0; part < 9; ++part) {
            auto& button = Control("frmHard", QString("cmdUpggrade%1").arg(part));
            while (button.isEnabled()) {
                Click(button);
            }
        }
        Click("frmHard", "Command8");
        EXPECT_GE(HardwareScore(), 59);
        Visit("cmdWork", "frmWork", {"cmdWork11"});
        EXPECT_EQ(TextOf("frmMain", "lblCurrWork"), "Работа: Босс hack-фирмы ($750/день)");
        // and the boss's wage does the rest
        player.NextLifeIs("Второй", 0);
        while (GameState.CurrWork == 12) {
            FinishDay();
            LookAfterYourself();
        }
    }

    void Starve()
    {
        player.When("frmPlayerName", [](QWidget& dialog) { dialog.close(); });
        for (int day = 0; day < 30 && Find("frmMain"); ++day) {
            FinishDay();
        }
    }
};

TEST_F(WholeLives, OneIsWonOneStarvesOneIsNotBegun)
{
    const int code = RunInEventLoop([this] {
        Begin(2, "Первый");
        Win();
        EXPECT_EQ(player.boxes.back(), "Наконец-то: Вы прошли всю игру");
        ExpectFreshLife("Второй");
        player.boxes.clear();
        Starve();
    });
    EXPECT_EQ(code, 0);
    EXPECT_EQ(player.boxes, std::vector<QString>{"Желаю тебе быть большим и тольстым: Вы умерли "
                                                 "голодной смертью!"});
    EXPECT_TRUE(OpenWindows().isEmpty());
}

} // namespace
} // namespace torvenhall::test
