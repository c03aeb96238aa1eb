#include "HighScoreTable.h"

#include "modDatabase.h"

namespace {
// Among equal lowest scores the store's order decides which row is first.
Recordset OpenHighScoresLowestFirst()
{
    return gDataDatabase.OpenRecordset(
        "SELECT HighScores.Player, HighScores.Score, HighScores.Date FROM HighScores HighScores "
        "ORDER BY HighScores.Score");
}

// Leaves the set on its first, lowest row. An empty score in a damaged row reads as 0, so
// that row is the first to be replaced.
bool BeatsFirstRow(Recordset& lowestFirst, int score)
{
    lowestFirst.MoveFirst();
    return !lowestFirst.Eof() && score > lowestFirst.Fields("Score").Value.CInt();
}

bool OverwriteHighScore(Recordset& highScores, const std::string& player, int score,
                        const DateTime& date)
{
    highScores.Edit();
    highScores.Fields("Player").Value = player;
    highScores.Fields("Score").Value = score;
    highScores.Fields("Date").Value = date;
    return highScores.Update();
}
}

bool BeatsLowestHighScore(int score)
{
    Recordset lowestFirst = OpenHighScoresLowestFirst();
    return BeatsFirstRow(lowestFirst, score);
}

bool EnterHighScore(const std::string& player, int score, const DateTime& date)
{
    if (!gDataDatabase.BeginTrans())
        return false;
    Recordset lowestFirst = OpenHighScoresLowestFirst();
    if ((!BeatsFirstRow(lowestFirst, score) || OverwriteHighScore(lowestFirst, player, score, date))
        && gDataDatabase.CommitTrans())
        return true;
    gDataDatabase.Rollback();
    return false;
}

Recordset OpenHighScoresForDialog()
{
    return gDataDatabase.OpenRecordset(
        "SELECT HighScores.Player, HighScores.Score, HighScores.Date FROM HighScores HighScores "
        "ORDER BY HighScores.Score, HighScores.Date DESC");
}
