#pragma once
// Small routines on the shared state alone.
#include <string>

// Rows 1..13 of every player to EmptyCell, the bonus row to 0. gScores must be sized.
void ClearScoreboard();

// The name for the screen: "< Player 1 >" shows as "Player 1"; a known name as it stands.
std::string PlayerDisplayName(int player);

// One fresh record per player of gPlayerNames; all zero but SessionLow 9999.
void ClearSessionStats();

// Sum of rows 1..14 of `player` that are above -1, the bonus row included.
int PlayerTotal(int player);

// The placeholder text of a seat, "< Player 1 >" to "< Player 8 >".
std::string PlaceholderName(int seat);

// The text without the blanks at its ends.
std::string TrimBlanks(const std::string& text);
