#include "SummaryFigures.h"

#include "modGlobalVars.h"

namespace {
std::int16_t FilledSum(const ScoreCard& card, int firstRow, int lastRow)
{
    std::int16_t sum = 0;
    for (int row = firstRow; row <= lastRow; ++row)
        if (card[row] > EmptyCell)
            sum = std::int16_t(sum + card[row]);
    return sum;
}

// The bonus row's hundreds are the repeat awards (the 35 of the upper bonus drops out); the
// Zarvo scored in its own category counts once more, a zero taken there does not.
std::int16_t ZarvosOf(const ScoreCard& card)
{
    return std::int16_t(card[BonusCell] / 100 + (card[CatZarvo] > 0 ? 1 : 0));
}
}

SummaryFigures SumSummaryGrid()
{
    SummaryFigures figures;
    SummaryLine& sums = figures.totals;
    for (int p = 1; p <= gPlayerNames.UBound(); ++p) {
        const ScoreCard& card = gScores[p];
        SummaryLine line;
        line.Left = FilledSum(card, CatOnes, CatSixes);
        line.Right = FilledSum(card, CatThreeOfAKind, CatChance);
        line.Bonus = card[BonusCell];
        line.Total = std::int16_t(line.Left + line.Right + line.Bonus);
        line.Zarvos = ZarvosOf(card);
        sums.Left = std::int16_t(sums.Left + line.Left);
        sums.Right = std::int16_t(sums.Right + line.Right);
        sums.Bonus = std::int16_t(sums.Bonus + line.Bonus);
        sums.Total = std::int16_t(sums.Total + line.Total);
        sums.Zarvos = std::int16_t(sums.Zarvos + line.Zarvos);
        figures.players.push_back(line);
    }
    return figures;
}

int SummaryShift(int players) { return (players - MaxPlayers) * 240; }
