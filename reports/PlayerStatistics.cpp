#include "PlayerStatistics.h"

#include "NumberText.h"
#include "PlayerTable.h"
#include "modCommon.h"
#include "modDatabase.h"
#include "modGlobalVars.h"
#include "Translate.h"

namespace {
// The line in the player's language.
std::string Line(const char* source) { return Translate("PlayerStatistics", source); }

const char* const AllTimeHighLine = TranslatableText("PlayerStatistics", "Congratulations, an all-time high!");
const char* const AllTimeLowLine = TranslatableText("PlayerStatistics", "An all-time low! Better luck next time!");
const char* const SessionHighLine = TranslatableText("PlayerStatistics", "Congratulations, a new session high!");
const char* const SessionLowLine = TranslatableText("PlayerStatistics", "A new session low! Better luck next time!");

struct AverageLines {
    const char* bettered;
    const char* down;
    const char* same;
};
const AverageLines OverallLines{TranslatableText("PlayerStatistics", "You bettered your overall average..."),
                                TranslatableText("PlayerStatistics", "Brought your overall average down..."),
                                TranslatableText("PlayerStatistics", "Your overall average didn't change...")};
const AverageLines SessionLines{TranslatableText("PlayerStatistics", "You bettered your session average..."),
                                TranslatableText("PlayerStatistics", "Brought your session average down..."),
                                TranslatableText("PlayerStatistics", "Your session average didn't change...")};

// Against the average before this game, unrounded: 246 betters a stored 245.5.
std::string AverageLine(int score, double average, const AverageLines& lines)
{
    return Line(score > average ? lines.bettered : score < average ? lines.down : lines.same);
}

std::string Rounded(double average) { return std::to_string(RoundToEven(average)); }

// The record rules on the player's row, into `counted`; false when the row is missing or the
// file refuses the write.
bool CountRow(const std::string& key, int score, ResultValues& counted)
{
    Recordset row = OpenPlayerStatistics(key);
    if (row.RecordCount() == 0)
        return false;
    row.MoveFirst();
    if (UpdateLowScore(row, score)) {
        counted.Info = Line(AllTimeLowLine);
        counted.BoldAllLow = true;
    }
    if (UpdateHighScore(row, score)) {
        counted.Info = Line(AllTimeHighLine);
        counted.BoldAllHigh = true;
    }
    if (counted.Info.empty())
        counted.Info = AverageLine(score, StoredAverage(row, score), OverallLines);
    if (!CountGame(row, score))
        return false;
    counted.AllHigh = std::to_string(row.Fields("HighScore").Value.CInt());
    counted.AllLow = std::to_string(row.Fields("LowScore").Value.CInt());
    counted.AllAvg = Rounded(row.Fields("AverageScore").Value.CDbl());
    return true;
}

// The all-time part: the two records, the overall-average line, the game counted, and the row
// shown. It works on a copy of `shown` that replaces it only when the game was counted; false
// leaves the player as if the data file had not opened.
//
// A name whose Player row is missing is treated like a file that did not open for that
// player: no all-time line, nothing written, the session figures as usual. So is a file that
// takes no writes (read-only, or held by another running game): the writes run in one
// transaction, which such a file refuses before anything changes, so the row is never left
// half counted and the window never shows a record that the file does not hold.
bool CountAllTime(const std::string& storedName, int score, ResultValues& shown)
{
    if (!OpenDataFile(false))
        return false;
    const std::string key = storedName.starts_with('<') ? PlaceholderRowName : storedName;
    ResultValues counted = shown;
    const bool done = gDataDatabase.BeginTrans() && CountRow(key, score, counted) && gDataDatabase.CommitTrans();
    if (!done)
        gDataDatabase.Rollback();
    CloseDataFile();
    if (done) {
        counted.AllTime = true;
        shown = counted;
    }
    return done;
}
}

ResultValues CountGameResults(int player)
{
    ResultValues shown;
    const std::string name = PlayerDisplayName(player);
    shown.SessionCaption = Arg(Translate("PlayerStatistics", "%1's Results:"), {name});
    const int score = PlayerTotal(player);
    shown.Scored = Arg(Translate("PlayerStatistics", "%1 Scored: %2"), {name, std::to_string(score)});

    // The session records first; an all-time record outranks them on the line.
    SessionStats& session = gSessionStats[player];
    if (session.SessionHigh < score) {
        session.SessionHigh = std::int16_t(score);
        shown.Info = Line(SessionHighLine);
        shown.BoldCurrentHigh = true;
    }
    if (session.SessionLow > score) {
        session.SessionLow = std::int16_t(score);
        if (shown.Info.empty())
            shown.Info = Line(SessionLowLine);
        shown.BoldCurrentLow = true;
    }

    // With the row counted the line is never empty, so the session average speaks only
    // when the all-time figures are missing.
    CountAllTime(gPlayerNames[player], score, shown);
    if (shown.Info.empty())
        shown.Info = AverageLine(score, session.SessionAverage, SessionLines);

    session.SessionAverage = (session.SessionGames * session.SessionAverage + score) / (session.SessionGames + 1.0);
    ++session.SessionGames;
    shown.CurrentHigh = std::to_string(session.SessionHigh);
    shown.CurrentLow = std::to_string(session.SessionLow);
    shown.CurrentAvg = Rounded(session.SessionAverage);
    return shown;
}
