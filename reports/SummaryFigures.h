#pragma once
// The figures of frmSummary: per player the Left, Right, Bonus and Total points and the
// Zarvos, the totals row under them, and how far the grid shrinks for fewer than eight
// players. Plain C++: the window only shows what this gives.
#include <cstdint>
#include <vector>

// All sums are 16-bit, as the cells are.
struct SummaryLine {
    std::int16_t Left = 0, Right = 0, Bonus = 0, Total = 0, Zarvos = 0;
};

struct SummaryFigures {
    std::vector<SummaryLine> players;   // index p - 1 for player p
    SummaryLine totals;
};

// FillSummaryGrid's numbers from gScores, for every player of gPlayerNames. Open categories
// count as nothing, so a half-played card gives the totals of what is on it.
SummaryFigures SumSummaryGrid();

// ArrangeSummaryGrid's Shift in twips: one row height up for each missing player of eight.
int SummaryShift(int players);
