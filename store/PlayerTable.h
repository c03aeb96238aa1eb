#pragma once
// Table Player: the known players and their all-time statistics, with the PlaceholderRow
// "< Player >" that all placeholder seats share. Every routine works on the file that the
// caller has opened with OpenDataFile, and the caller closes it.
#include <string>
#include <vector>

#include "Recordset.h"

// The key of the row that carries the statistics of every placeholder player.
inline const char* const PlaceholderRowName = "< Player >";

// The known players in the order they were added, without the PlaceholderRow.
std::vector<std::string> KnownPlayerNames();

// A new row with the name and LowScore 9999; the other figures start from the column
// defaults. False when the file refused the row (a name it already has, a locked file);
// the game goes on without a word then.
bool AddPlayer(const std::string& name);

// Deletes the player's row with all its statistics; false when the statement failed.
bool DeletePlayer(const std::string& name);

// The set with HighScore, LowScore, AverageScore and GamesPlayed of the row named `key`;
// RecordCount is 0 when no row has that name.
Recordset OpenPlayerStatistics(const std::string& key);

// The end-of-game steps on the current row of that set, each stored at once.
//
// A figure that a hand edit left as text or NULL is absent, and this game's figure takes its
// place: any total beats an absent HighScore or LowScore, an absent AverageScore counts as the
// total itself, and an absent GamesPlayed, or a negative one, as no game yet. A number beyond
// its column's range keeps its side of every comparison: the scores and the average are read
// within 16 bits, as a mean of 16-bit totals lies there, and GamesPlayed stops at 2147483647.

// True when `total` set a record: strictly below LowScore, strictly above HighScore.
bool UpdateLowScore(Recordset& statistics, int total);
bool UpdateHighScore(Recordset& statistics, int total);
// AverageScore before this game, as the overall-average line compares it.
double StoredAverage(Recordset& statistics, int total);
// AverageScore becomes the mean with this game, from the old GamesPlayed; then GamesPlayed
// grows by one. False when the row could not be stored.
bool CountGame(Recordset& statistics, int total);
