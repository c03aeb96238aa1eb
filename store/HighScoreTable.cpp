#include "HighScoreTable.h"

#include "modDatabase.h"

Recordset OpenHighScoresLowestFirst()
{
    return gDataDatabase.OpenRecordset(
        "SELECT HighScores.Player, HighScores.Score, HighScores.Date FROM HighScores HighScores "
        "ORDER BY HighScores.Score");
}

Recordset OpenHighScoresForDialog()
{
    return gDataDatabase.OpenRecordset(
        "SELECT HighScores.Player, HighScores.Score, HighScores.Date FROM HighScores HighScores "
        "ORDER BY HighScores.Score, HighScores.Date DESC");
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
