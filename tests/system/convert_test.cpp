#include "system/convert.h"

#include <gtest/gtest.h>

#include <limits>

#include "core/traps.h"

namespace torvenhall::test
{
namespace
{

template <class Body>
int NumberOf(Body&& body)
{
    return ErrorOf(body).number;
}

TEST(Convert, AHalfGoesToTheEvenNeighbour)
{
    const std::pair<double, int> halves[]{{0.5, 0},   {1.5, 2},  {2.5, 2},  {-0.5, 0}, {-1.5, -2},
                                          {-2.5, -2}, {2.49, 2}, {2.51, 3}, {7.0, 7}};
    for (const auto& [number, whole] : halves) {
        EXPECT_EQ(ToInt16(number), whole) << number;
        EXPECT_EQ(Round(number), whole) << number;
    }
}

TEST(Convert, ANumberThatRoundsOutOfItsWidthIsAnOverflow)
{
    EXPECT_EQ(ToInt16(32767.49), 32767);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
    EXPECT_EQ(ToInt32(-2147483648.5), std::numeric_limits<int>::min());
    const double tooLarge[]{32767.5, -32769, 1e300, std::numeric_limits<double>::infinity(),
                            std::numeric_limits<double>::quiet_NaN()};
    for (const double number : tooLarge) {
        EXPECT_EQ(NumberOf([&] { ToInt16(number); }), error::Overflow) << number;
    }
    EXPECT_EQ(NumberOf([] { ToInt32(2147483647.5); }), error::Overflow);
}

TEST(Convert, NumbersPrintPlainNeverAsMinusZeroAndOnlyNegativeOnesHaveNoRoot)
{
    const std::pair<double, const char*> texts[]{
        {-0.0, "0"}, {10, "10"}, {-3, "-3"}, {21474836, "21474836"}, {2.5, "2.5"}};
    for (const auto& [number, text] : texts) {
        EXPECT_EQ(DecimalOf(number), text);
    }
    EXPECT_EQ(Decimal(-2147483647 - 1), "-2147483648");
    EXPECT_EQ(SquareRoot(9), 3);
    EXPECT_EQ(SquareRoot(-0.0), 0);
    EXPECT_EQ(NumberOf([] { SquareRoot(-1); }), error::InvalidCall);
}

TEST(Convert, AWholeNumberIsReadOrItsTroubleNamed)
{
    const std::pair<const char*, int> good[]{
        {"0", 0}, {"-32768", -32768}, {"+32767", 32767}, {" 12\t", 12}, {"007", 7}};
    for (const auto& [text, number] : good) {
        EXPECT_EQ(ReadInt16(text), number) << text;
    }
    for (const char* text : {"", " ", "пять", "1.5", "1 2", "+-1", "--1", "0x10"}) {
        EXPECT_EQ(NumberOf([&] { ReadInt16(text); }), error::TypeMismatch) << text;
    }
    for (const char* text : {"32768", "-32769", "99999999999999999999"}) {
        EXPECT_EQ(NumberOf([&] { ReadInt16(text); }), error::Overflow) << text;
    }
    EXPECT_EQ(ReadInt32("32768"), 32768);
    EXPECT_EQ(NumberOf([] { ReadInt32("2147483648"); }), error::Overflow);
}

} // namespace
} // namespace torvenhall::test
