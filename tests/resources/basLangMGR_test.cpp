#include "resources/basLangMGR.h"

#include "core/traps.h"
#include "support/life.h"
#include "system/codepage.h"
#include "system/files.h"

namespace torvenhall::test
{
namespace
{

class Languages : public Life
{
protected:
    Languages()
    {
        LangFiles().clear();
        LangDescription = LangCopyright = "as before";
    }

    std::string File(const std::string& utf8)
    {
        const std::string path = Folder() + "язык.LNG";
        ReplaceFile(path, ToWindows1251(utf8));
        return path;
    }
};

TEST_F(Languages, AValueIsFoundAsAnIniFileHasIt)
{
    using namespace std::string_literals;
    const std::pair<std::string, std::string> files[]{
        {"[General]\r\nDescription=Русский\r\n", "Русский"},
        {"[General]\nDescription=Русский", "Русский"},
        {"[GENERAL]\r\ndescription=x", "x"},
        {"  [ General ]  \r\n  Description  =x", "x"},
        {"[Other]\r\nDescription=no\r\n[General]\r\nDescription=x", "x"},
        {"[General]\r\n[Other]\r\nDescription=no", ""},
        {"Description=no\r\n[General]\r\n", ""},
        {"[General]\r\n;Description=no\r\nDescription=x", "x"},
        {"[General]\r\nDescription=first\r\nDescription=second", "first"},
        {"[General]\r\nDescriptions=no", ""},
        {"[General]\r\nDescription", ""},
        {"[General]\r\nDescription=", ""},
        {"[General]\r\nDescription=a=b;c", "a=b;c"},
        {"[General]\r\nDescription=x \t ", "x"},
        {"[General]\r\nDescription=  x", "  x"},
        {"[General]\r\nDescription=\" x \"", " x"},
        {"[General]\r\nDescription= 'x'", "x"},
        {"[General]\r\nDescription=\"x'", "\"x'"},
        {"[General]\r\nDescription=\"", "\""},
        {"[General]\r\nDescription=x\0y"s, "x"},
        {"[General]\r\nDescription=" + std::string(1500, 'x'), std::string(1023, 'x')},
        {"", ""},
    };
    for (const auto& [text, value] : files) {
        EXPECT_EQ(ReadLangString(File(text), "General", "Description"), value) << text;
    }
    EXPECT_EQ(ReadLangString(Folder() + "none", "General", "Description"), "");
    EXPECT_EQ(ReadLangString(Folder(), "General", "Description"), "");
}

TEST_F(Languages, SelectingReadsBothTextsOfTheItemCountedFromOneOrReportsThatThereIsNone)
{
    LangFiles() = {Folder() + "none", File("[General]\r\nCopyright=я\r\nDescription=Русский")};
    for (const int index : {-1, 0, 3}) {
        EXPECT_EQ(ErrorOf([&] { SelectLanguage(index); }).number, error::Subscript);
        EXPECT_EQ(ErrorTold(), error::Subscript) << index;
        EXPECT_EQ(LangDescription, "as before");
    }
    SelectLanguage(2);
    EXPECT_EQ(LangDescription, "Русский");
    EXPECT_EQ(LangCopyright, "я");
    SelectLanguage(1);
    EXPECT_EQ(LangDescription + LangCopyright, "");
}

TEST_F(Languages, ATextIsCutAtItsFirstNul)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(CutAtNul("ab\0c\0"sv), "ab");
    EXPECT_EQ(CutAtNul("abc"), "abc");
}

} // namespace
} // namespace torvenhall::test
