#pragma once
// Table HighScores: the ten best games. Rows are only ever overwritten, never added or
// deleted, so the table keeps its ten rows. The routines work on the file that the caller
// has opened with OpenDataFile, and the caller closes it.
#include <string>

#include "DateTime.h"
#include "Recordset.h"

// True when `score` beats the lowest row strictly; false too when the table has no row.
bool BeatsLowestHighScore(int score);

// The new entry over the row that is lowest at this moment, if `score` still beats it
// strictly; else nothing is written. Read and write are one write transaction, so another
// running game that ended a card since the last read is neither overwritten nor missed.
// False only when the file did not take the write.
bool EnterHighScore(const std::string& player, int score, const DateTime& date);

// The rows for the High Scores dialog: lowest score first, the newer row first among equal
// scores (the dialog fills its lines from the bottom).
Recordset OpenHighScoresForDialog();
