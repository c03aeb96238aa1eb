#include "PlayerTable.h"

#include <algorithm>
#include <cstdint>

#include "modDatabase.h"

namespace {
// Ordered by rowid: the PlaceholderRow was written first, and it must come first whatever
// the names are, whichever index the query plan picks.
const char* const PlayerNamesStatement =
    "SELECT Player.PlayerName FROM Player Player ORDER BY Player.rowid";
const char* const NewPlayerStatement = "Select Player.PlayerName, Player.LowScore FROM Player Player";
const char* const DeletePlayerStatement = "DELETE FROM Player WHERE PlayerName=?";
const char* const StatisticsStatement =
    "SELECT Player.HighScore, Player.LowScore, Player.AverageScore, Player.GamesPlayed "
    "FROM Player Player WHERE Player.PlayerName=?";

// A record counts even when the file refuses to store it: the game was played.
void StoreFigure(Recordset& statistics, const char* column, int total)
{
    statistics.Edit();
    statistics.Fields(column).Value = total;
    statistics.Update();
}
}

std::vector<std::string> KnownPlayerNames()
{
    std::vector<std::string> names;
    Recordset players = gDataDatabase.OpenRecordset(PlayerNamesStatement);
    if (players.RecordCount() > 0) {
        players.MoveFirst();
        for (players.MoveNext(); !players.Eof(); players.MoveNext())
            names.push_back(players.Fields("PlayerName").Value.CStr());
    }
    return names;
}

bool AddPlayer(const std::string& name)
{
    Recordset players = gDataDatabase.OpenRecordset(NewPlayerStatement);
    players.AddNew();
    players.Fields("PlayerName").Value = name;
    players.Fields("LowScore").Value = 9999;
    return players.Update();
}

bool DeletePlayer(const std::string& name)
{
    return gDataDatabase.Execute(DeletePlayerStatement, {name});
}

Recordset OpenPlayerStatistics(const std::string& key)
{
    return gDataDatabase.OpenRecordset(StatisticsStatement, {key});
}

bool UpdateLowScore(Recordset& statistics, int total)
{
    const Variant& low = statistics.Fields("LowScore").Value;
    if (low.IsNumber() && low.CInt() <= total)
        return false;
    StoreFigure(statistics, "LowScore", total);
    return true;
}

bool UpdateHighScore(Recordset& statistics, int total)
{
    const Variant& high = statistics.Fields("HighScore").Value;
    if (high.IsNumber() && high.CInt() >= total)
        return false;
    StoreFigure(statistics, "HighScore", total);
    return true;
}

double StoredAverage(Recordset& statistics, int total)
{
    const Variant& average = statistics.Fields("AverageScore").Value;
    return average.IsNumber() ? std::clamp(average.CDbl(), double(INT16_MIN), double(INT16_MAX)) : total;
}

bool CountGame(Recordset& statistics, int total)
{
    const double average = StoredAverage(statistics, total);
    const Variant& played = statistics.Fields("GamesPlayed").Value;
    const std::int32_t games = played.IsNumber() ? std::max<std::int32_t>(played.CLng(), 0) : 0;
    statistics.Edit();
    statistics.Fields("AverageScore").Value = (average * games + total) / (games + 1.0);
    statistics.Fields("GamesPlayed").Value = games == INT32_MAX ? games : games + 1;
    return statistics.Update();
}
