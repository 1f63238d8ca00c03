#include "savegame/savegame.h"

#include <filesystem>

#include "activities/work.h"
#include "core/basGame.h"
#include "core/life.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "events/family.h"
#include "events/message.h"
#include "game/entry.h"
#include "savegame/format.h"
#include "savegame/known_life.h"
#include "support/life.h"
#include "system/basSystem.h"
#include "system/codepage.h"

namespace torvenhall::test
{
namespace
{

class SavedGames : public BegunLife
{
protected:
    SavedGames() { MakeDirectory(Folder() + "SAVE"); }

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
        ReplaceFile(PathOf("lines.QVS"), ShiftCharsDown(ToWindows1251(text)));
        Load("lines");
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
        Set(-30, -31, 120, -7);
        SetEducation(7);
        SetIntelligence(110);
        SetGameSpeed(60);
        SetSoftSize(44);
        GameState.Married = GameState.WifeFound = GameState.AttendSchool = True;
        GameState.Daughters = 2;
        GameState.Alimony = 50;
        ShowFamily();
        ShowLabel(lblMessage, "");
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
    EXPECT_EQ(LabelShown(lblGames), "DOOM-II");
    Save("a");
    Load("a");
    EXPECT_EQ(GameState.SoftGames, 2);
    EXPECT_EQ(LabelShown(lblGames), "Duke 3 for MSDOS");
}

TEST_F(SavedGames, TheDialogsAskInTheGamesWordsAndAnEmptyNameIsACancel)
{
    Save("");
    Save("a");
    Load("a");
    for (const std::optional<std::string>& answer : {std::optional<std::string>(), {""}}) {
        player.games = {answer, answer};
        EnterRules(SaveGame);
        EnterRules(LoadGame);
    }
    EXPECT_EQ(ListSavedGames(), Texts{"a"});
    EXPECT_EQ(Told(), Texts{});
    const GameNameQuestion& saving = player.gameQuestions.at(1);
    EXPECT_EQ((Texts{saving.caption, saving.heading, saving.confirm, saving.name}),
              (Texts{"Сохранение игры", "Доступные игры:", "Сохранить", ""}));
    const GameNameQuestion& loading = player.gameQuestions.at(2);
    EXPECT_EQ((Texts{loading.caption, loading.heading, loading.confirm, loading.name}),
              (Texts{"Загрузка игры", "Доступные игры:", "Загрузить", ""}));
    EXPECT_TRUE(saving.saving);
    EXPECT_FALSE(loading.saving);
    EXPECT_EQ(loading.games, Texts{"a"});
}

TEST_F(SavedGames, TheListIsSortedKnowsTheExtensionInAnyCaseAndWhatIsListedLoads)
{
    for (const char* name : {"Бета", "альфа", "a b", "game.qvs"}) {
        Save(name);
    }
    for (const char* file : {"a.qvs", "a.QVS", ".qvs", "d.qvsx", "e"}) {
        ReplaceFile(PathOf(file), "");
    }
    ReplaceFile(PathOf("c.Qvs"), EncodeGame(KnownLife()));
    MakeDirectory(PathOf("folder.qvs"));
    EXPECT_EQ(ListSavedGames(), (Texts{"a", "a b", "c", "game.qvs", "альфа", "Бета"}));
    EXPECT_TRUE(FileExists(PathOf("game.qvs.QVS")));
    player.games.emplace_back("c");
    EnterRules(LoadGame);
    EXPECT_EQ(GameState.PlayerName, "Ёжик Петров");
}

TEST_F(SavedGames, ARefusedNameOrAFailedWriteIsReportedAndTheDialogComesBackWithTheName)
{
    MakeDirectory(PathOf("folder.QVS"));
    const std::pair<std::string, int> names[]{
        {"../a", 52}, {"a/b", 52}, {std::string(300, 'a'), 52}, {"folder", 75}};
    for (const auto& [name, number] : names) {
        player.Forget();
        player.games = {name, number == 52 ? std::optional<std::string>("good") : std::nullopt};
        EnterRules(SaveGame);
        EXPECT_EQ(ErrorTold(), number) << name;
        ASSERT_EQ(player.gameQuestions.size(), 2U);
        EXPECT_EQ(player.gameQuestions[1].name, name);
    }
    EXPECT_EQ(ListSavedGames(), Texts{"good"});
    EXPECT_FALSE(std::filesystem::exists(Folder() + "a.QVS"));
}

TEST_F(SavedGames, TheFolderIsMadeWhenNeededAndGivenNoPlaceForItSavingAsksNothing)
{
    const auto remove = [this] { std::filesystem::remove(Folder() + "SAVE"); };
    remove();
    EXPECT_EQ(ListSavedGames(), Texts{});
    player.whileDialogOpen.emplace_back(remove);
    Save("kept");
    EXPECT_EQ(ListSavedGames(), Texts{"kept"}) << "it vanished while the dialog was open";

    std::filesystem::remove_all(Folder() + "SAVE");
    ReplaceFile(Folder() + "SAVE", "a file in its place");
    player.Forget();
    EnterRules(SaveGame);
    EXPECT_EQ(player.boxes.size(), 1U);
    EXPECT_TRUE(player.gameQuestions.empty());
}

TEST_F(SavedGames, ADeathOrTheProgramsEndWhileTheSaveDialogIsOpenSavesNothing)
{
    NextLifeIs("Пётр");
    void (*const ends[])(){[] { SetHealth(-50); }, [] { EndProgram(); }};
    for (void (*const end)() : ends) {
        player.whileDialogOpen.emplace_back([end] { EnterRules(end); });
        player.whileDialogOpen.emplace_back(); // the name dialog
        Save("a");
        EXPECT_TRUE(ListSavedGames().empty());
        EXPECT_EQ(GameState.PlayerName, "Пётр");
    }
}

TEST_F(SavedGames, AGameThatVanishedIsTold)
{
    player.games.emplace_back("a");
    EnterRules(LoadGame);
    EXPECT_EQ(Told(), Texts{"x Ошибка: Файл игры a.QVS не найден!"});
}

TEST_F(SavedGames, AnotherReleasesGameIsRefusedWholeAndTooManyLinesAreAnErrorBeforeThat)
{
    const std::string before = EncodeGame(GameState);
    for (const char* title : {"", "marshend torvenhall 1.5", "Marshend Torvenhall 1.5 "}) {
        SavedGame lines = LinesOf(KnownLife());
        lines.front() = title;
        LoadLines(lines);
        EXPECT_EQ(Told(), Texts{"x Загрузка игры: Некорректная версия"}) << title;
        EXPECT_EQ(EncodeGame(GameState), before);
    }
    for (const std::string& title : {std::string(ApplicationTitle), std::string("other")}) {
        SavedGame lines(39, "1");
        lines.front() = title;
        LoadLines(lines);
        EXPECT_EQ(ErrorTold(), 9);
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
            EXPECT_EQ(ErrorTold(), number);
        }
    }
}

TEST_F(SavedGames, GivenAFileCutShortItsLinesAreAppliedAndTheRestKeepsItsValues)
{
    LoadLines({"Marshend Torvenhall 1.5", "100", "-5", "12:30", "03.02.2001"});
    EXPECT_EQ(GameState.Money, 100);
    EXPECT_EQ(GameState.Happy, -5);
    EXPECT_EQ(GameState.PlayerName, "Иван");
    EXPECT_EQ(GameState.Health, 40);
    EXPECT_EQ(LabelShown(lblTime), "3 февраля 2001 г. - 12:30");
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
    EXPECT_EQ(Told(),
              Texts{"i Ну у Вас и запросы...: Слабая машинка!!!! Нужен Pentium 133, 1.3 Gb IDE, "
                    "16 Mb RAM, S3 Trio 64V+"});
    EXPECT_EQ(GameState.SoftOS, 3);
    EXPECT_EQ(LabelShown(lblOs), "Microsoft Windows 98");
    EXPECT_EQ(LabelShown(lblAntiv), "Antivirial Toolkit Pro");
    EXPECT_EQ(LabelShown(lblhard0), "Нет вооще");
}

TEST_F(SavedGames, AFatalMoodInAFileIsOneDeathAndThenACleanLife)
{
    SavedGame lines = LinesOf(KnownLife());
    lines[2] = "-80";
    NextLifeIs("Пётр");
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
    EXPECT_EQ(LabelShown(lblTime), "29 февраля 2004 г. - 23:45");
}

TEST_F(SavedGames, AMessageOfTheLifeBeforeIsNotTypedOn)
{
    ReplaceFile(PathOf("known.QVS"), EncodeGame(KnownLife()));
    player.duringWait.emplace_back([] {});
    player.duringWait.emplace_back([this] { Load("known"); });
    EnterRules([] {
        ShowMessage("Сообщение");
        SetMoney(1);
    });
    EXPECT_EQ(GameState.Money, -1234567);
    EXPECT_EQ(LabelShown(lblMessage), "");
}

} // namespace
} // namespace torvenhall::test
