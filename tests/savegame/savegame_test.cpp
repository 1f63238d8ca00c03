#include "savegame/savegame.h"

#include "core/title.h"
#include "equipment/basEquipment.h"
#include "events/message.h"
#include "savegame/format.h"
#include "savegame/recovery.h"
#include "support/life.h"
#include "system/codepage.h"
#include "system/text.h"

using namespace torvenhall;

class SavedGames : public BegunLife
{
protected:
    SavedGames() { MakeDirectory(folder + "SAVE"); }

    std::string PathOf(const std::string& file) const { return folder + "SAVE/" + file; }

    void Save(const std::optional<std::string>& name)
    {
        player.games = {name, std::nullopt};
        EnterRules(SaveGame);
    }
    void Load(const std::optional<std::string>& name)
    {
        player.games = {name};
        EnterRules(LoadGame);
    }
    /// Loads a game of these lines and sees that its file is as it was.
    void Load(const SavedGame& lines)
    {
        std::string text = lines.front();
        for (std::size_t i = 1; i < lines.size(); ++i) {
            text += "\r\n" + lines[i];
        }
        const std::string bytes = ShiftCharsDown(ToWindows1251(text));
        ReplaceFile(PathOf("lines.QVS"), bytes);
        Load("lines");
        EXPECT_EQ(ReadWholeFile(PathOf("lines.QVS")), bytes);
    }
    const std::string known = ReadWholeFile(TORVENHALL_TEST_DATA "known-life.QVS");
    static std::string Now() { return EncodeGame(GameState); }
};

TEST_F(SavedGames, TheKeptGameLoadsThroughItsSettersInOrderAndEveryLineHasItsFieldAndItsKind)
{
    ReplaceFile(PathOf("kept.Qvs"), known);
    Load("kept");
    lines = Happened();
    EXPECT_EQ(Now(), known);
    Given("CurrWork=99 HardPrinter=4 AttendSchool=-1 Married=-1"); // 99 keeps pay and title
    const Game life = GameState;
    const SavedGame good = DecodeGame(Now());
    const Texts texts{"0", "8", "40000", "3000000000", "6:30", "1.2.2003", "семь", ""};
    lines.push_back("line | " + Joined(texts, " | ") + " | nothing");
    for (std::size_t line = 2; line <= SavedLines; ++line) {
        Texts outcomes{std::to_string(line)};
        for (const std::string& text : texts) {
            GameState = life;
            player.boxes.clear();
            SavedGame changed = good;
            changed[line - 1] = text;
            Load(changed);
            const std::string fields = ChangedFields(life);
            outcomes.push_back(fields.empty() ? std::to_string(ErrorTold()) : fields);
        }
        lines.push_back(Joined(outcomes, " | "));
    }
    ExpectKept("saved.txt", lines);
}

TEST_F(SavedGames, TheDialogsAskInTheGamesWordsAndAnEmptyNameIsACancel)
{
    for (const char* name : {"", "a", "Бета", "альфа", "a b", "game.qvs"}) {
        Save(name);
    }
    for (const char* file : {"a.qvs", "c.Qvs", ".qvs", "d.qvsx", "e"}) {
        ReplaceFile(PathOf(file), "");
    }
    MakeDirectory(PathOf("folder.qvs"));
    for (const std::optional<std::string>& name : {std::optional<std::string>(), {""}, {"b"}}) {
        Load(name);
    }
    EXPECT_TRUE(FileExists(PathOf("game.qvs.QVS")));
    std::filesystem::rename(PathOf("folder.qvs"), PathOf("folder.QVS"));
    Save("../a");
    Save("folder");
    for (const std::string& told : Happened()) {
        lines.push_back(ReplaceAll(told, folder, "FOLDER/"));
    }
    EXPECT_FALSE(std::filesystem::exists(folder + "a.QVS"));
    ExpectKept("dialogs.txt", lines);
}

TEST_F(SavedGames, AHostileNameIsRefusedClearlyOrListedAndLoadedAndNothingLeavesTheFolder)
{
    const std::string deep = folder + "deep/er/";
    std::filesystem::create_directories(deep);
    SetDirectories(folder, deep);
    LetLifeGo(); // only what is saved is written
    // In the file's lines \HH is a byte, LONG the longest name.
    ExpectEach("names.txt", [&](const std::string& line) {
        std::string name = ReplaceAll(line, "LONG", std::string(251, 'n'));
        for (std::size_t at = 0; (at = name.find('\\', at)) != std::string::npos; ++at) {
            name.replace(at, 3, 1, static_cast<char>(std::stoi(name.substr(at + 1, 2), {}, 16)));
        }
        Save(name);
        const std::string asked = Happened().back(), trouble = asked.substr(asked.rfind('|') + 2);
        GameState.Money = 1;
        Load(name);
        const bool loaded = GameState.Money == 15;
        EXPECT_EQ(ListSavedGames(), loaded ? Texts{name} : Texts{});
        EXPECT_TRUE(!loaded || std::filesystem::remove(deep + "SAVE/" + name + ".QVS"));
        GameState.Money = 15;
        return loaded && trouble == "Сохранить" ? "listed and loaded" : trouble;
    });
    EXPECT_EQ(std::distance(std::filesystem::recursive_directory_iterator(folder), {}), 4);
}

TEST_F(SavedGames, TheFolderIsMadeWhenItIsNeededAndWithoutAPlaceForItNothingIsAsked)
{
    const auto remove = [this] { std::filesystem::remove_all(folder + "SAVE"); };
    Meanwhile(remove);
    Save("kept");
    EXPECT_EQ(ListSavedGames(), Texts{"kept"});
    remove();
    ReplaceFile(folder + "SAVE", "a file in its place");
    player.journal.clear();
    EnterRules(SaveGame);
    EXPECT_EQ(Happened().size(), 1U) << "told, and no name asked for";
}

TEST_F(SavedGames, ARefusedGameLeavesTheLifeAndWhatRunsInItAlone)
{
    const std::string before = Now();
    SavedGame other = DecodeGame(known);
    const auto loadsDuringAMessage = [&] {
        Meanwhile([&] { Load(other); });
        EnterRules([] {
            ShowMessage("Ёж");
            SetMoney(1);
        });
        return Joined(Told()) + " " + LabelShown(lblMoney);
    };
    for (const char* title : {"", "marshend torvenhall 1.5", "Marshend Torvenhall 1.5 "}) {
        other.front() = title;
        EXPECT_EQ(loadsDuringAMessage(), "x Загрузка игры: Некорректная версия $1");
    }
    SetMoney(15);
    other.resize(SavedLines + 1);
    for (const std::string_view title : {ApplicationTitle, std::string_view("other")}) {
        other.front() = title;
        Load(other);
        EXPECT_EQ(ErrorTold(), error::Subscript) << "too many lines, before anything else";
    }
    EXPECT_EQ(Now(), before);
    other = DecodeGame(known);
    EXPECT_EQ(loadsDuringAMessage(), " $-1234567") << "a good game ends the life before";
    EXPECT_EQ(LabelShown(lblMessage), "");
}

TEST_F(SavedGames, AProgramThatLostItsHardwareIsToldAndKeptAndTheClockWaits)
{
    SavedGame lines = DecodeGame(known);
    lines[9] = "0";
    Meanwhile([] { Tick(10); });
    Load(lines);
    EXPECT_EQ(Joined(Told()), "i Ну у Вас и запросы...: Слабая машинка!!!! Нужен Pentium 133, 1.3 "
                              "Gb IDE, 16 Mb RAM, S3 Trio 64V+");
    EXPECT_EQ(GameState.SoftOS, 3);
    EXPECT_EQ(LabelShown(lblOs), "Microsoft Windows 98");
    EXPECT_EQ(LabelShown(lblTime), "29 февраля 2004 г. - 23:45");
    lines[2] = "-80";
    NextLifeIs("Пётр");
    Load(lines);
    EXPECT_EQ(Told().size(), 1U) << "one death";
    ExpectFreshLife("Пётр");
}

TEST_F(SavedGames, OnlyTrueAndFalseAreWrittenALineBreakShiftsNoLineAndTheFirstGameIsTheSecond)
{
    Given("SoftOS=1 AttendCourses=5 AttendSchool=5 Married=5 WifeFound=5");
    InstallSoftware(5, 1);
    GameState.PlayerName = "a\r\nb";
    const SavedGame saved = DecodeGame(Now());
    EXPECT_EQ(Joined({saved[5], saved[23], saved[26], saved[27], saved[33], saved[34]}),
              "a b, 2, -1, -1, -1, -1");
    Load(saved);
    EXPECT_EQ(LabelShown(lblGames), "Duke 3 for MSDOS");
    EXPECT_EQ(DecodeGame(""), SavedGame{""});
    Load(SavedGame(saved.begin(), saved.end() - 1));
    EXPECT_EQ(ErrorTold(), error::TypeMismatch) << "a line is missing";
}
