#include "savegame/savegame.h"

#include <filesystem>

#include "activities/work.h"
#include "core/basGame.h"
#include "core/entry.h"
#include "core/life.h"
#include "core/outside.h"
#include "equipment/basEquipment.h"
#include "events/family.h"
#include "events/message.h"
#include "savegame/format.h"
#include "savegame/known_life.h"
#include "support/life.h"
#include "system/basSystem.h"
#include "system/codepage.h"

namespace torvenhall::test
{
namespace
{

using Texts = std::vector<std::string>;

class SavedGames : public Life
{
protected:
    SavedGames() { Begin(); }

    std::string PathOf(const std::string& file) const { return Folder() + "SAVE/" + file; }

    void Save(const std::string& name)
    {
        player.games.emplace_back(name);
        EnterRules(SaveGame);
    }

    /// Loads the game and sees that its file is as it was.
    void Load(const std::string& name)
    {
        const std::string before = ReadWholeFile(PathOf(name + ".QVS"));
        player.games.emplace_back(name);
        EnterRules(LoadGame);
        EXPECT_EQ(ReadWholeFile(PathOf(name + ".QVS")), before);
    }

    /// Puts a file with these lines there, and loads it.
    void LoadLines(const SavedGame& lines)
    {
        std::string text = lines.front();
        for (std::size_t i = 1; i < lines.size(); ++i) {
            text += "\r\n" + lines[i];
        }
        Write("lines", ShiftCharsDown(ToWindows1251(text)));
        Load("lines");
    }

    void Write(const std::string& name, const std::string& bytes)
    {
        MakeDirectory(Folder() + "SAVE");
        ReplaceFile(PathOf(name + ".QVS"), bytes);
    }

    static SavedGame LinesOf(const GameStateRecord& life) { return DecodeGame(EncodeGame(life)); }

    /// A rich life made as the game makes it, so that its labels show it.
    void LiveWell()
    {
        int category = 0;
        for (const int part : {10, 7, 7, 7, 6, 6, 6, 6, 4}) {
            InstallHardware(category++, part, false);
        }
        category = 0;
        for (const int item : {8, 4, 5, 4, 5, 6}) {
            InstallSoftware(category++, item);
        }
        SetWork(12);
        SetMoney(-7);
        SetHappy(-30);
        SetHealth(-31);
        SetEatLevel(120);
        SetEducation(7);
        SetIntelligence(110);
        SetGameSpeed(60);
        SetSoftSize(44);
        GameState.Married = GameState.WifeFound = GameState.AttendSchool = True;
        GameState.Daughters = 2;
        GameState.Alimony = 50;
        ShowFamily();
        ShowLabel(Label::lblMessage, "");
    }
};

TEST_F(SavedGames, ALifeThatIsLoadedEqualsTheSavedOneInEveryFieldAndLabel)
{
    LiveWell();
    Tick(3);
    const std::string saved = EncodeGame(GameState);
    const Int16 target = GameState.WinMoney;
    const auto labels = player.labels;
    const auto colours = player.colours;
    Save("игра");
    Begin(2, "Пётр");
    Load("игра");
    EXPECT_EQ(EncodeGame(GameState), saved);
    EXPECT_EQ(GameState.WinMoney, target);
    EXPECT_EQ(player.labels, labels);
    EXPECT_EQ(player.colours, colours);
    EXPECT_EQ(player.title, "Marshend Torvenhall 1.5 - Иван");
    EXPECT_TRUE(player.boxes.empty());
}

TEST_F(SavedGames, TheFirstGameIsSavedAsTheSecondAndShownSo)
{
    LiveWell();
    InstallSoftware(5, 1);
    EXPECT_EQ(LabelShown(Label::lblGames), "DOOM-II");
    Save("a");
    Load("a");
    EXPECT_EQ(GameState.SoftGames, 2);
    EXPECT_EQ(LabelShown(Label::lblGames), "Duke 3 for MSDOS");
}

TEST_F(SavedGames, TheDialogsAskInTheGamesWords)
{
    Save("a");
    Load("a");
    ASSERT_EQ(player.gameQuestions.size(), 2U);
    const GameNameQuestion& saving = player.gameQuestions[0];
    EXPECT_EQ((Texts{saving.caption, saving.heading, saving.confirm, saving.name}),
              (Texts{"Сохранение игры", "Доступные игры:", "Сохранить", ""}));
    const GameNameQuestion& loading = player.gameQuestions[1];
    EXPECT_EQ((Texts{loading.caption, loading.heading, loading.confirm, loading.name}),
              (Texts{"Загрузка игры", "Доступные игры:", "Загрузить", ""}));
    EXPECT_TRUE(saving.saving);
    EXPECT_FALSE(loading.saving);
    EXPECT_EQ(loading.games, Texts{"a"});
}

TEST_F(SavedGames, CancellingAndAnEmptyNameWriteAndLoadNothing)
{
    for (const std::optional<std::string>& answer : {std::optional<std::string>(), {""}}) {
        for (void (*const command)() : {SaveGame, LoadGame}) {
            player.games.push_back(answer);
            EnterRules(command);
        }
    }
    EXPECT_TRUE(ListSavedGames().empty());
    EXPECT_TRUE(player.boxes.empty());
    EXPECT_EQ(GameState.PlayerName, "Иван");
}

TEST_F(SavedGames, TheListIsSortedAndKnowsTheExtensionInAnyCase)
{
    EXPECT_TRUE(ListSavedGames().empty());
    Save("Бета");
    Save("альфа");
    Save("a b");
    Save("game.qvs");
    for (const char* file : {"a.qvs", "a.QVS", "c.Qvs", ".qvs", "d.qvsx", "e"}) {
        ReplaceFile(PathOf(file), "");
    }
    MakeDirectory(PathOf("folder.qvs"));
    EXPECT_EQ(ListSavedGames(), (Texts{"a", "a b", "c", "game.qvs", "альфа", "Бета"}));
    EXPECT_TRUE(FileExists(PathOf("game.qvs.QVS")));
}

TEST_F(SavedGames, WhatIsListedLoadsWhateverTheCaseOfItsExtension)
{
    MakeDirectory(Folder() + "SAVE");
    ReplaceFile(PathOf("a.qvs"), EncodeGame(KnownLife()));
    player.games.emplace_back("a");
    EnterRules(LoadGame);
    EXPECT_EQ(GameState.PlayerName, "Ёжик Петров");
}

TEST_F(SavedGames, ARefusedNameIsReportedAndTheDialogComesBackWithIt)
{
    for (const std::string& name :
         {std::string("../a"), std::string("a/b"), std::string(300, 'a')}) {
        player.Forget();
        player.games = {name, "good"};
        EnterRules(SaveGame);
        ASSERT_EQ(player.boxes.size(), 1U) << name;
        EXPECT_NE(player.boxes[0].text.find("№ 52 : Недопустимое имя файла."), std::string::npos);
        ASSERT_EQ(player.gameQuestions.size(), 2U);
        EXPECT_EQ(player.gameQuestions[1].name, name);
    }
    EXPECT_EQ(ListSavedGames(), Texts{"good"});
    EXPECT_FALSE(std::filesystem::exists(Folder() + "a.QVS"));
}

TEST_F(SavedGames, AFailedWriteIsReportedAndTheDialogComesBackUntilItIsCancelled)
{
    MakeDirectory(Folder() + "SAVE");
    MakeDirectory(PathOf("a.QVS"));
    player.games = {"a", std::nullopt};
    EnterRules(SaveGame);
    ASSERT_EQ(player.boxes.size(), 1U);
    EXPECT_NE(player.boxes[0].text.find("№ 75"), std::string::npos);
    EXPECT_EQ(player.gameQuestions.back().name, "a");
}

TEST_F(SavedGames, GivenNoPlaceForTheFolderSavingReportsAndAsksNothing)
{
    ReplaceFile(Folder() + "SAVE", "a file in its place");
    EnterRules(SaveGame);
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_TRUE(player.gameQuestions.empty());
}

TEST_F(SavedGames, ADeathWhileTheSaveDialogIsOpenSavesNothing)
{
    player.names.push_back(NewPlayer{"Пётр", 1});
    player.whileDialogOpen.emplace_back([] { EnterRules([] { SetHealth(-50); }); });
    Save("a");
    EXPECT_TRUE(ListSavedGames().empty());
    EXPECT_EQ(GameState.PlayerName, "Пётр");
}

TEST_F(SavedGames, TheProgramsEndWhileTheSaveDialogIsOpenSavesNothing)
{
    player.games.emplace_back("late");
    player.whileDialogOpen.emplace_back([] { EnterRules([] { EndProgram(); }); });
    EnterRules(SaveGame);
    EXPECT_TRUE(ListSavedGames().empty());
}

TEST_F(SavedGames, AFolderThatVanishesWhileTheDialogIsOpenIsMadeAgain)
{
    player.games.emplace_back("kept");
    player.whileDialogOpen.emplace_back([this] { std::filesystem::remove(Folder() + "SAVE"); });
    EnterRules(SaveGame);
    EXPECT_EQ(ListSavedGames(), Texts{"kept"});
}

TEST_F(SavedGames, BothRefusalsOfALoadHaveTheStopSign)
{
    player.games.emplace_back("nothing");
    EnterRules(LoadGame);
    SavedGame lines = LinesOf(KnownLife());
    lines.front() = "other";
    LoadLines(lines);
    ASSERT_EQ(player.boxes.size(), 2U);
    EXPECT_EQ(player.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(player.boxes[1].icon, Icon::Critical);
}

TEST_F(SavedGames, AGameThatVanishedIsTold)
{
    Save("a");
    player.Forget();
    player.games.emplace_back("a");
    player.whileDialogOpen.emplace_back([this] { DeleteFile(PathOf("a.QVS")); });
    EnterRules(LoadGame);
    EXPECT_EQ(player.BoxTexts(), Texts{"Ошибка: Файл игры a.QVS не найден!"});
}

TEST_F(SavedGames, AnotherReleasesGameIsRefusedWhole)
{
    const std::string before = EncodeGame(GameState);
    for (const char* title : {"", "marshend torvenhall 1.5", "Marshend Torvenhall 1.5 "}) {
        player.Forget();
        SavedGame lines = LinesOf(KnownLife());
        lines.front() = title;
        LoadLines(lines);
        EXPECT_EQ(player.BoxTexts(), Texts{"Загрузка игры: Некорректная версия"}) << title;
        EXPECT_EQ(EncodeGame(GameState), before);
    }
}

TEST_F(SavedGames, TooManyLinesAreAnErrorBeforeAnythingElse)
{
    const std::string before = EncodeGame(GameState);
    for (const std::string& title : {std::string(ApplicationTitle), std::string("other")}) {
        player.Forget();
        std::string text = title;
        for (int i = 0; i < 38; ++i) {
            text += "\r\n1";
        }
        Write("long", ShiftCharsDown(text));
        Load("long");
        ASSERT_EQ(player.boxes.size(), 1U);
        EXPECT_NE(player.boxes[0].text.find("№ 9 "), std::string::npos);
        EXPECT_EQ(EncodeGame(GameState), before);
    }
}

TEST_F(SavedGames, EachDamagedLineStopsTheLoadThereAndIsReported)
{
    struct Damage {
        std::string text;
        int narrow, wide, calendar; ///< error in a 16-bit, a 32-bit, a date line
    };
    const Damage damages[]{
        {"", 13, 13, 13}, {"семь", 13, 13, 13}, {"40000", 6, 0, 13}, {"3000000000", 6, 6, 13}};
    const SavedGame good = LinesOf(KnownLife());
    for (std::size_t line = 2; line <= SavedLines; ++line) {
        for (const Damage& damage : damages) {
            const bool isText = line == 6 || line == 9;
            const bool isBoolean = line == 27 || line == 28; // any number is read
            const int number = isText                   ? 0
                               : line == 2 || isBoolean ? damage.wide
                               : line == 4 || line == 5 ? damage.calendar
                                                        : damage.narrow;
            if (number == 0) {
                continue;
            }
            SCOPED_TRACE(std::to_string(line) + " " + damage.text);
            Begin();
            const SavedGame before = LinesOf(GameState);
            SavedGame damaged = good;
            damaged[line - 1] = damage.text;
            LoadLines(damaged);
            const SavedGame after = LinesOf(GameState);
            for (std::size_t i = 1; i <= SavedLines; ++i) {
                EXPECT_EQ(after[i - 1], i < line ? good[i - 1] : before[i - 1]) << "line " << i;
            }
            ASSERT_EQ(player.boxes.size(), 1U);
            EXPECT_NE(player.boxes[0].text.find(number == 13 ? "Несовпадение типов" : "№ 6 "),
                      std::string::npos);
        }
    }
}

TEST_F(SavedGames, GivenAFileCutShortItsLinesAreAppliedAndTheRestKeepsItsValues)
{
    Write("short", ShiftCharsDown("Marshend Torvenhall 1.5\r\n100\r\n-5\r\n12:30\r\n03.02.2001"));
    Load("short");
    EXPECT_EQ(GameState.Money, 100);
    EXPECT_EQ(GameState.Happy, -5);
    EXPECT_EQ(GameState.PlayerName, "Иван");
    EXPECT_EQ(GameState.Health, 40);
    EXPECT_EQ(LabelShown(Label::lblTime), "3 февраля 2001 г. - 12:30");
    EXPECT_EQ(player.boxes.size(), 1U);
}

TEST_F(SavedGames, AProgramWhoseHardwareIsGoneIsToldAndKept)
{
    for (int category = 0; category < 4; ++category) {
        InstallHardware(category, 2, false);
    }
    InstallSoftware(0, 3);
    InstallSoftware(1, 2);
    InstallHardware(0, 0, false);
    Save("a");
    Begin();
    Load("a");
    EXPECT_EQ(player.BoxTexts(),
              Texts{"Ну у Вас и запросы...: Слабая машинка!!!! Нужен Pentium 133, 1.3 Gb IDE, "
                    "16 Mb RAM, S3 Trio 64V+"});
    EXPECT_EQ(GameState.SoftOS, 3);
    EXPECT_EQ(LabelShown(Label::lblOs), "Microsoft Windows 98");
    EXPECT_EQ(LabelShown(Label::lblAntiv), "Antivirial Toolkit Pro");
    EXPECT_EQ(LabelShown(Label::lblhard0), "Нет вооще");
}

TEST_F(SavedGames, AFatalMoodInAFileIsOneDeathAndThenACleanLife)
{
    SavedGame lines = LinesOf(KnownLife());
    lines[2] = "-80";
    player.names.push_back(NewPlayer{"Пётр", 1});
    LoadLines(lines);
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(GameState.PlayerName, "Пётр");
    EXPECT_EQ(GameState.Money, 15);
    EXPECT_EQ(GameState.GameDate, FirstDay);
    EXPECT_EQ(player.title, "Marshend Torvenhall 1.5 - Пётр");
}

TEST_F(SavedGames, NoTickRunsWhileALoadShowsABox)
{
    SavedGame lines = LinesOf(KnownLife());
    lines[30] = "-1"; // no difficulty: the game asks to look again
    player.whileBoxOpen.emplace_back([this] { Tick(10); });
    LoadLines(lines);
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_EQ(GameState.GameLevel, 1);
    EXPECT_EQ(LabelShown(Label::lblTime), "29 февраля 2004 г. - 23:45");
}

TEST_F(SavedGames, AMessageOfTheLifeBeforeIsNotTypedOn)
{
    Write("known", EncodeGame(KnownLife()));
    player.duringWait.emplace_back([] {});
    player.duringWait.emplace_back([this] { Load("known"); });
    EnterRules([] {
        ShowMessage("Сообщение");
        SetMoney(1);
    });
    EXPECT_EQ(GameState.Money, -1234567);
    EXPECT_EQ(LabelShown(Label::lblMessage), "");
}

} // namespace
} // namespace torvenhall::test
