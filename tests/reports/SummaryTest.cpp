// The Scoring Summary's figures on plain code.
#include <gtest/gtest.h>

#include "SummaryFigures.h"
#include "modCommon.h"
#include "modGlobalVars.h"

// Open cells add nothing, so a half-played card sums to its PlayerTotal; the bonus row's
// hundreds are repeat Zarvos and its 35 is none; a zero taken in the Zarvo cell is no Zarvo.
TEST(Summary, SumsEachPlayerAndTheTotalsRow)
{
    const std::vector<std::vector<std::pair<int, int>>> cards = {
        {{CatOnes, 3}, {CatFives, 25}, {CatSixes, 30}, {CatThreeOfAKind, 30}, {CatZarvo, 50}, {CatChance, 30}, {BonusCell, 235}},
        {{CatFours, 16}, {CatFullHouse, 25}, {CatZarvo, 0}, {BonusCell, 35}},
        {},
    };
    // Left, Right, Bonus, Total, Zarvos, worked out by hand.
    const std::vector<std::array<int, 5>> expected = {{58, 110, 235, 403, 3}, {16, 25, 35, 76, 0}, {0, 0, 0, 0, 0}};
    gPlayerNames.ReDim(3);
    gScores.ReDim(3);
    ClearScoreboard();
    for (int p = 1; p <= 3; ++p)
        for (const auto& [row, value] : cards[p - 1])
            gScores[p][row] = std::int16_t(value);
    const SummaryFigures figures = SumSummaryGrid();
    ASSERT_EQ(figures.players.size(), 3u);
    for (int p = 1; p <= 3; ++p) {
        const SummaryLine& l = figures.players[p - 1];
        EXPECT_EQ((std::array<int, 5>{l.Left, l.Right, l.Bonus, l.Total, l.Zarvos}), expected[p - 1]) << p;
        EXPECT_EQ(l.Total, PlayerTotal(p)) << p;
    }
    const SummaryLine& t = figures.totals;
    EXPECT_EQ((std::array<int, 5>{t.Left, t.Right, t.Bonus, t.Total, t.Zarvos}), (std::array<int, 5>{74, 135, 270, 479, 3}));
}

// The grid is laid out for eight: one row height less for each missing player.
TEST(Summary, ShiftForFewerPlayers)
{
    for (const auto& [players, shift] : std::vector<std::pair<int, int>>{{2, -1440}, {5, -720}, {8, 0}})
        EXPECT_EQ(SummaryShift(players), shift) << players;
}
