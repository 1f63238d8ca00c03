// The life in hand: what outlives a program that stops without its normal end.

#include "savegame/recovery.h"

#include "game/commands.h"
#include "savegame/savegame.h"
#include "support/life.h"
#include "system/text.h"

using namespace torvenhall;

class Recovery : public BegunLife
{
protected:
    std::string File(int number = 1) const
    {
        return folder + "RECOVERY/life-" + std::to_string(number) + ".QVS";
    }
    bool IsKept() const { return FileExists(File()); }
    /// A life that is kept, and the program stops at once.
    void Stop(const std::string& fields = "Money=77 HardCPU=10")
    {
        Assign(fields);
        KeepLife();
        Restart();
    }
    void Restart()
    {
        StartRules({&player, &dice, &player}, folder);
        player.programEnded = false;
        NextLifeIs("Пётр");
    }
    /// The next program's first box is answered so; what it told.
    std::string Answered(Answer answer)
    {
        player.answers = {answer};
        EnterRules(Main);
        return Joined(Told());
    }
};

TEST_F(Recovery, ALifeGoesOnUnderItsNamePausedAndNothingOfItIsLost)
{
    Assign("Married=-1 WifeFound=-1 Sons=2");
    const std::string offered = "? Прерванная игра: Прошлая игра прервалась, но не потеряна: Иван, "
                                "1 января 2001 г., $77.\n\nПродолжить её? «Нет» удалит её "
                                "навсегда.";
    Stop();
    const std::string kept = ReadWholeFile(File());
    EXPECT_EQ(Answered(Answer::Yes), offered);
    EXPECT_EQ(EncodeGame(GameState), kept);
    EXPECT_EQ(LabelShown(lblFamily) + LabelShown(lblMoney), "PRST:2:0$77");
    EXPECT_EQ(Joined({player.journal.end() - 3, player.journal.end()}),
              "show main window, timer off, open frmPause");
    EXPECT_TRUE(IsKept()) << "until the life ends or is safe";
    Restart();
    EXPECT_EQ(Answered(Answer::No), offered);
    ExpectFreshLife("Пётр");
    EXPECT_FALSE(IsKept());
}

TEST_F(Recovery, OnlyANormalEndOrAnotherLifeRemovesTheFile)
{
    struct {
        const char* what;
        std::function<void()> ends;
        bool keeps;
    } const ends[]{
        {"no, not saved", [&] { player.answers = {Answer::No}, EnterRules(CloseProgram); }, false},
        {"saved",
         [&] { player.answers = {Answer::Yes}, player.games = {"a"}, EnterRules(CloseProgram); },
         false},
        {"not saved for whatever reason",
         [&] {
             player.answers = {Answer::Yes}, player.games = {"a/b", std::nullopt};
             EnterRules(CloseProgram);
         },
         true},
        {"from outside", [] { EnterRules(EndFromOutside); }, true},
        {"a new game", [] { EnterRules(NewGame); }, false},
        {"killed while a game is asked for",
         [&] { player.games = {std::nullopt}, Meanwhile(KeepLife), EnterRules(LoadGame); }, true},
        {"a new game after all not", [&] { player.names = {std::nullopt}, EnterRules(NewGame); },
         true},
        {"a death", [] { EnterRules([] { SetHealth(-50); }); }, false},
        {"from outside, dead",
         [&] {
             Meanwhile([] { EnterRules(EndFromOutside); });
             EnterRules([] { SetHealth(-50); });
         },
         false},
    };
    for (const auto& [what, end, keeps] : ends) {
        Stop();
        Answered(Answer::Yes);
        SetMoney(88);
        end();
        EXPECT_EQ(IsKept(), keeps) << what;
        EXPECT_FALSE(keeps && ReadWholeFile(File()) != EncodeGame(GameState)) << what;
        std::filesystem::remove(File());
        Restart();
        EnterRules(Main);
        NextLifeIs("Пётр");
    }
}

TEST_F(Recovery, ADamagedOneIsSetAsideEachProgramHasItsOwnAndABegunDayIsLivedAgain)
{
    JustBeforeMidnight();
    dice.otherwise = DrawOf(6, 25); // a burglary is told
    Meanwhile([&] { player.names = {std::nullopt}, EnterRules(NewGame); });
    EnterTick();
    EXPECT_EQ(DecodeGame(ReadWholeFile(File()))[3], "23:59");
    const auto others = LockFile(folder + "RECOVERY/life-2.lock");
    ReplaceFile(File(2), "of another program that runs");
    ReplaceFile(folder + "RECOVERY/life-3.QVS", "?");
    Restart();
    Texts told = Split(Answered(Answer::No), ", ! ");
    EXPECT_EQ(ReplaceAll(told.back(), folder, ""),
              "Прерванная игра: Прошлая игра прервалась, а её файл повреждён. Он отложен: "
              "RECOVERY/life-3.damaged");
    EXPECT_TRUE(!IsKept() && FileExists(File(2)) && !FileExists(File(3)));
    ExpectFreshLife("Пётр");
    KeepLife();
    EXPECT_TRUE(IsKept());
    ReplaceFile(File(), "?");
    KeepLife();
    EXPECT_EQ(ReadWholeFile(File()), "?") << "what has not changed is not written again";
}
