#pragma once
// Table HighScores: the ten best games. Rows are only ever overwritten, never added or
// deleted, so the table keeps its ten rows. The routines work on the file that the caller
// has opened with OpenDataFile, and the caller closes it.
#include <string>

#include "DateTime.h"
#include "Recordset.h"

// Lowest score first: the first row is the one a new high score replaces. Among equal
// lowest scores the store's order decides.
Recordset OpenHighScoresLowestFirst();

// The rows for the High Scores dialog: lowest score first, the newer row first among equal
// scores (the dialog fills its lines from the bottom).
Recordset OpenHighScoresForDialog();

// Overwrites the current row of such a set with a new entry; false when it was not stored.
bool OverwriteHighScore(Recordset& highScores, const std::string& player, int score,
                        const DateTime& date);
