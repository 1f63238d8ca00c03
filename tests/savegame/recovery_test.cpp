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
        {"a new game after all not",
         [&] { player.names = {std::nullopt}, Meanwhile(KeepLife), EnterRules(NewGame); }, true},
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
    EXPECT_FALSE(LockFile(folder + "nowhere/life.lock"));
    ReplaceFile(File(3), "?");
    ReplaceFile(folder + "RECOVERY/life-3.damaged", "an earlier one");
    ReplaceFile(File(4), EncodeGame(GameState) + "?"); // no number in its last line
    ReplaceFile(File(5), "?" + EncodeGame(GameState)); // another title
    ReplaceFile(File(6), "?");
    MakeDirectory(folder + "RECOVERY/life-6.damaged");
    std::filesystem::create_symlink("/proc/self/mem", File(7)); // opens, but cannot be read
    ReplaceFile(folder + "RECOVERY/other.QVS", "");
    ReplaceFile(folder + "RECOVERY/life-8", "");
    Restart();
    const std::string told = ReplaceAll(Answered(Answer::No), folder + "RECOVERY/life-", "");
    EXPECT_EQ(Split(told, ": ").front(), "? Прерванная игра");
    EXPECT_TRUE(told.ends_with(
        "! Прерванная игра: Прошлая игра прервалась, а её файл повреждён. Он отложен: 5.damaged, "
        "x Torvenhall: Возникла непредвиденная ошибка № 75 : Ошибка доступа к файлу или папке: "
        "6.QVS. Программа может некорректно работать. Обратитесь к разработчику!, "
        "x Torvenhall: Возникла непредвиденная ошибка № 57 : Ошибка ввода-вывода устройства: "
        "7.QVS. Программа может некорректно работать. Обратитесь к разработчику!"))
        << told;
    for (const char* aside : {"3.2", "4", "5"}) {
        EXPECT_TRUE(FileExists(folder + "RECOVERY/life-" + aside + ".damaged"));
    }
    EXPECT_TRUE(!IsKept() && FileExists(File(2)) && FileExists(File(7)) && !FileExists(File(3)));
    ExpectFreshLife("Пётр");
    ReplaceFile(File(1), "of a program that has stopped meanwhile");
    KeepLife();
    EXPECT_TRUE(FileExists(File(3))) << "the first that is nobody's";
    ReplaceFile(File(3), "?");
    KeepLife();
    EXPECT_EQ(ReadWholeFile(File(3)), "?") << "what has not changed is not written again";
    EnterRules(EndFromOutside);
    KeepLife();
    EXPECT_EQ(ReadWholeFile(File(3)), "?");
}
