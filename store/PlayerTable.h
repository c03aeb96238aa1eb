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

// The end-of-game steps on the current row of that set, each stored at once. The first two
// give true when `total` set a record: strictly below LowScore, strictly above HighScore,
// or the figure was empty.
bool UpdateLowScore(Recordset& statistics, int total);
bool UpdateHighScore(Recordset& statistics, int total);
// AverageScore becomes the mean with this game, from the old GamesPlayed; then GamesPlayed
// grows by one. False when the row could not be stored.
bool CountGame(Recordset& statistics, int total);
