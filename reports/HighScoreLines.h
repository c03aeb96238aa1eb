#pragma once
// What the High Scores window shows, read from the open data file.
#include <array>
#include <string>

#include "DateTime.h"

constexpr int HighScoreRows = 10;

// One line of the window. A value that cannot be read (empty, or text where a score or a date
// belongs) stays empty, and the rest of the line and the other lines still show.
struct HighScoreLine {
    std::string player, score, date;   // date as "mmm. d, yyyy"
    bool bold = false;                 // an entry of the day `today`
};

// The table's rows, best at index 0. The query runs lowest score first, newer first among
// equal scores, and fills from index 9 upwards, so the older of two equal entries stands
// above; with fewer than ten rows the top lines stay empty.
std::array<HighScoreLine, HighScoreRows> ReadHighScoreLines(const DateTime& today);
