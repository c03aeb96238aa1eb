#include "HighScoreLines.h"

#include <optional>

#include "HighScoreTable.h"

namespace {
std::optional<DateTime> ReadDate(const Variant& value)
{
    // CDate falls back to a default for anything that holds no date; a real date gives back
    // the day it was read from.
    const DateTime date = value.CDate();
    const std::string day = Variant(date).CStr().substr(0, 10);
    if (value.CStr().compare(0, day.size(), day) != 0 || date.month < 1 || date.month > 12)
        return std::nullopt;
    return date;
}

// A score is a whole number; anything else in its place is left out.
std::optional<std::string> ReadScore(const Variant& value)
{
    const std::string text = value.CStr();
    if (text != std::to_string(value.CLng()))
        return std::nullopt;
    return text;
}
}

std::array<HighScoreLine, HighScoreRows> ReadHighScoreLines(const DateTime& today)
{
    std::array<HighScoreLine, HighScoreRows> lines;
    Recordset rows = OpenHighScoresForDialog();
    rows.MoveFirst();
    for (int i = 0; i < HighScoreRows && !rows.Eof(); ++i) {
        HighScoreLine& line = lines[HighScoreRows - 1 - i];
        const Variant player = rows.Fields("Player").Value;
        const std::optional<std::string> score = ReadScore(rows.Fields("Score").Value);
        const std::optional<DateTime> date = ReadDate(rows.Fields("Date").Value);
        line.bold = date && date->SameDay(today);
        if (!player.IsNull())
            line.player = player.CStr();
        if (score)
            line.score = *score;
        if (date)
            line.date = FormatDate(*date);
        rows.MoveNext();
    }
    return lines;
}
