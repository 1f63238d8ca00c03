#include "app/commandline.h"

using namespace torvenhall;

TEST(CommandLine, AnswersWithoutADisplayOrTellsWhatIsWrong)
{
    const QString known = TORVENHALL_TEST_DATA "known-life.QVS";
    const std::tuple<QStringList, std::optional<int>, QByteArray> asked[]{
        {{"--help"}, 0, "--tour"},
        {{"--version"}, 0, "1.5"},
        {{"--show", known}, 0, "29.02.2004"},
        {{"--show", "no such game"}, 1, "no such game"},
        {{"--show", TORVENHALL_ASSETS "License.txt"}, 1, ": "}, // which is none of a game's lines
        {{"no such game"}, 1, "no such game"},
        {{"--no-such-option"}, 2, "no-such-option"},
        {{"--tour"}, 2, ""},
        {{"--tour", "/proc/pictures"}, 1, "/proc/pictures"},
        {{"--scale", "9"}, 2, "--scale"},
        {{known, known}, 2, ""},
        {{"--still", "--scale", "2", known}, std::nullopt, ""},
    };
    for (const auto& [arguments, code, words] : asked) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const CommandLine line = ReadCommandLine(QStringList("torvenhall") + arguments);
        const std::string said =
            testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr();
        EXPECT_EQ(line.ended, code);
        EXPECT_NE(said.find(words.toStdString()), std::string::npos) << said;
        if (!code) {
            EXPECT_EQ(line.savedGame, known);
            EXPECT_EQ(line.scale, 2);
        }
    }
}
