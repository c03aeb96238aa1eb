// The Scoring Summary's figures on plain code.
#include <gtest/gtest.h>

#include "SummaryFigures.h"
#include "modCommon.h"
#include "modGlobalVars.h"

// Open cells add nothing, so a half-played card sums to its PlayerTotal; the bonus row's hundreds are repeat
// Zarvos and its 35 is none; a zero taken in the Zarvo cell is no Zarvo. The grid, laid out for eight players,
// shrinks one row height for each missing one.
TEST(Summary, SumsEachPlayerAndTheTotalsRow)
{
    const std::vector<std::vector<std::pair<int, int>>> cards = {
        {{CatOnes, 3}, {CatFives, 25}, {CatSixes, 30}, {CatThreeOfAKind, 30}, {CatZarvo, 50}, {CatChance, 30}, {BonusCell, 235}},
        {{CatFours, 16}, {CatFullHouse, 25}, {CatZarvo, 0}, {BonusCell, 35}}, {}};
    // Left, Right, Bonus, Total, Zarvos of each player and of the totals row, worked out by hand.
    const std::vector<std::array<int, 5>> expected = {{58, 110, 235, 403, 3}, {16, 25, 35, 76, 0}, {0, 0, 0, 0, 0}, {74, 135, 270, 479, 3}};
    gPlayerNames.ReDim(3), gScores.ReDim(3), ClearScoreboard();
    for (int p = 1; p <= 3; ++p)
        for (const auto& [row, value] : cards[p - 1])
            gScores[p][row] = std::int16_t(value);
    SummaryFigures figures = SumSummaryGrid();
    figures.players.push_back(figures.totals);
    std::vector<std::array<int, 5>> sums;
    for (const SummaryLine& l : figures.players)
        sums.push_back({l.Left, l.Right, l.Bonus, l.Total, l.Zarvos});
    EXPECT_EQ(sums, expected);
    EXPECT_EQ((std::array{SummaryShift(2), SummaryShift(5), SummaryShift(8)}), (std::array{-1440, -720, 0}));
}
