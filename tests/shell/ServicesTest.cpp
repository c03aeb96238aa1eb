// The plain toolkit services that the logic and the data file use.
#include <gtest/gtest.h>

#include "AppPath.h"
#include "DateTime.h"
#include "NumberText.h"
#include "QBColor.h"
#include "Twips.h"

// Str keeps a blank for the sign of numbers from 0 up; rounding for display sends ties to the
// even neighbour, also for negative numbers.
TEST(NumberText, StrAndRoundingToEven)
{
    EXPECT_EQ(Str(0), " 0");
    EXPECT_EQ(Str(1270), " 1270");
    EXPECT_EQ(Str(-5), "-5");
    const struct { double value; long rounded; } cases[] = {
        {245.5, 246}, {246.5, 246}, {0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {245.49, 245}, {245.51, 246},
    };
    for (const auto& c : cases)
        EXPECT_EQ(RoundToEven(c.value), c.rounded) << c.value;
}

// Dates read "mmm. d, yyyy" in English, day without a leading zero; the clock can be pinned.
TEST(DateTime, FormatAndPinnedClock)
{
    EXPECT_EQ(FormatDate({2026, 11, 3}), "Nov. 3, 2026");
    EXPECT_EQ(FormatDate({1999, 1, 31}), "Jan. 31, 1999");
    EXPECT_EQ(FormatDate({2000, 5, 10}), "May. 10, 2000");
    SetClock([] { return DateTime{2026, 2, 28, 13, 5, 7, 250}; });
    EXPECT_DOUBLE_EQ(Now().SecondsSinceMidnight(), 13 * 3600 + 5 * 60 + 7.25);
    EXPECT_TRUE(Now().SameDay({2026, 2, 28, 0, 0, 0}));
    EXPECT_FALSE(Now().SameDay({2025, 2, 28, 13, 5, 7}));
    SetClock({});
    EXPECT_GE(Now().year, 2024);
}

// Files beside the program are joined with one separator, whatever the path was given with.
TEST(AppPath, JoinsWithOneSeparator)
{
    SetAppPath("/opt/zarvo/");
    EXPECT_EQ(AppPath(), "/opt/zarvo");
    EXPECT_EQ(AppFile("Zarvo.dat"), "/opt/zarvo/Zarvo.dat");
    SetAppPath("");
    EXPECT_EQ(AppFile("Zarvo.dat"), "./Zarvo.dat");
}

TEST(Palette, QBColorAndTwips)
{
    EXPECT_EQ(QBColor(0), 0x000000u);
    EXPECT_EQ(QBColor(7), 0xC0C0C0u);
    EXPECT_EQ(QBColor(8), 0x808080u);
    EXPECT_EQ(QBColor(15), 0xFFFFFFu);
    EXPECT_EQ(TwipsToPixels(4575), 305);
    EXPECT_EQ(TwipsToPixels(-30), -2);
    EXPECT_EQ(TwipsToPixels(PixelsToTwips(41)), 41);
}
