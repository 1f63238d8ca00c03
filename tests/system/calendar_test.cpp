#include "system/calendar.h"

#include <gtest/gtest.h>

#include "core/traps.h"

namespace torvenhall::test
{
namespace
{

using namespace std::chrono;

TEST(Calendar, ExactlyTheDaysThatExistCanBeMadeAndReadBack)
{
    for (const int y : {99, 100, 1900, 1999, 2000, 2001, 2004, 2100, 9999, 10000}) {
        for (const int m : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 257}) {
            for (int d = -1; d <= 257; ++d) {
                const Date expected{year{y}, month(static_cast<unsigned>(m)),
                                    day(static_cast<unsigned>(d))};
                const bool exists =
                    y >= 100 && y <= 9999 && m > 0 && m < 13 && d > 0 && d < 32 && expected.ok();
                Date made;
                ASSERT_EQ(ErrorOf([&] { made = MakeDate(d, m, y); }).number,
                          exists ? 0 : error::TypeMismatch)
                    << d << "." << m << "." << y;
                if (exists) {
                    ASSERT_EQ(made, expected);
                    ASSERT_EQ(ReadDate(DateText(made)), expected);
                }
            }
        }
    }
}

TEST(Calendar, AMinuteOfTheDayIsMadeAndReadBackAndNoOther)
{
    for (int hour = -1; hour <= 24; ++hour) {
        for (int minute = -1; minute <= 60; ++minute) {
            TimeOfDay made;
            const bool exists = ErrorOf([&] { made = MakeTime(hour, minute); }).number == 0;
            ASSERT_EQ(exists, hour >= 0 && hour < 24 && minute >= 0 && minute < 60);
            if (exists) {
                ASSERT_EQ(ReadTime(TimeText(made)), (TimeOfDay{hour, minute}));
            }
        }
    }
}

TEST(Calendar, TextsAreFixedWhateverTheLocale)
{
    EXPECT_EQ(TimeText({7, 5}), "07:05");
    EXPECT_EQ(DateText(MakeDate(1, 2, 345)), "01.02.0345");
    const char* const genitives[]{"января", "февраля", "марта",    "апреля",  "мая",    "июня",
                                  "июля",   "августа", "сентября", "октября", "ноября", "декабря"};
    for (int m = 1; m <= 12; ++m) {
        EXPECT_EQ(LongDateText(MakeDate(9, m, 2001)),
                  std::string("9 ") + genitives[m - 1] + " 2001");
    }
}

TEST(Calendar, AnythingElseThanATimeOrADateIsATypeMismatch)
{
    EXPECT_EQ(ReadTime("7:5"), (TimeOfDay{7, 5}));
    EXPECT_EQ(ReadDate("1.2.2001"), MakeDate(1, 2, 2001));
    for (const char* text :
         {"", "7", ":", "7:", ":5", "24:00", "7:5:0", "007:05", "+7:05", " 7:05"}) {
        EXPECT_EQ(ErrorOf([&] { ReadTime(text); }).number, error::TypeMismatch) << text;
    }
    for (const char* text : {"", "1.2", "1.2.01", "1.2.20010", "1.2.2001.", "1..2001", "29.02.2001",
                             "2001-02-01", "1.2.2oo1"}) {
        EXPECT_EQ(ErrorOf([&] { ReadDate(text); }).number, error::TypeMismatch) << text;
    }
}

} // namespace
} // namespace torvenhall::test
