// The end of a card on plain code: the records, the one line, the bold marks, the figures
// shown and the counted Player rows afterwards, against temporary data files.
#include "DataFileFixture.h"
#include "PlayerStatistics.h"
#include "modCommon.h"

namespace {
const std::string NoFile = "no file", ReadOnly = "read-only";
std::string Ann(const std::string& figures) { return "INSERT INTO Player VALUES ('Ann', " + figures + ");"; }

struct Case {
    std::string file;  // NoFile, ReadOnly (with Ann 200 100 150 2), or statements on a fresh file
    std::vector<std::string> seats;
    std::vector<int> scores;  // one game per seat in turn; the checks are on the last
    SessionStats session;     // the last seat's, before its game
    std::string info, bold;   // bold: session high, session low, all-time high, all-time low
    std::string shown, rows;  // session "high low avg|" then all-time; the rows with games counted
};
class Statistics : public DataFileFixture, public testing::WithParamInterface<Case> {};

TEST_P(Statistics, CountsTheGameAndPicksTheLine)
{
    const Case& c = GetParam();
    if (c.file != NoFile) {
        MakeFreshFile();
        Sql(c.file == ReadOnly ? Ann("200, 100, 150, 2") : c.file);
    }
    if (c.file == ReadOnly)
        Chmod(0444);
    const int seats = int(c.seats.size());
    gPlayerNames.ReDim(seats);
    gScores.ReDim(seats);   // all rows 0: the bonus row alone makes the total
    ClearSessionStats();
    gSessionStats[seats] = c.session;
    ResultValues r;
    for (int p = 1; p <= seats; ++p) {
        gPlayerNames[p] = c.seats[p - 1];
        gScores[p][BonusCell] = std::int16_t(c.scores[p - 1]);
        r = CountGameResults(p);
    }
    EXPECT_EQ(r.Info, c.info);
    EXPECT_EQ((std::string{r.BoldCurrentHigh ? 'B' : '.', r.BoldCurrentLow ? 'B' : '.', r.BoldAllHigh ? 'B' : '.', r.BoldAllLow ? 'B' : '.'}), c.bold);
    EXPECT_EQ(r.CurrentHigh + " " + r.CurrentLow + " " + r.CurrentAvg + "|" + (r.AllTime ? r.AllHigh + " " + r.AllLow + " " + r.AllAvg : ""), c.shown);
    EXPECT_EQ(c.file == NoFile ? std::to_string(fs::exists(DataPath())) : Sql("SELECT * FROM Player WHERE GamesPlayed > 0"), c.rows);
}

INSTANTIATE_TEST_SUITE_P(EndOfCard, Statistics, testing::Values(
    // A new player's first game breaks every record; the all-time high has the line.
    Case{"INSERT INTO Player (PlayerName, LowScore) VALUES ('Ann', 9999);", {"Ann"}, {150}, {}, "Congratulations, an all-time high!", "BBBB", "150 150 150|150 150 150", "Ann|150|150|150.0|1"},
    Case{Ann("300, 100, 200, 3"), {"Ann"}, {90}, {}, "An all-time low! Better luck next time!", "BB.B", "90 90 90|300 90 172", "Ann|300|90|172.5|4"},
    Case{Ann("300, 100, 200, 3"), {"Ann"}, {150}, {}, "Congratulations, a new session high!", "BB..", "150 150 150|300 100 188", "Ann|300|100|187.5|4"},
    // Equal to a record is no record, and equal to the average changes nothing.
    Case{Ann("150, 150, 150, 1"), {"Ann"}, {150}, {150, 150, 150, 1}, "Your overall average didn't change...", "....", "150 150 150|150 150 150", "Ann|150|150|150.0|2"},
    Case{Ann("180, 120, 150, 2"), {"Ann"}, {126}, {180, 120, 150, 2}, "Brought your overall average down...", "....", "180 120 142|180 120 142", "Ann|180|120|142.0|3"},
    // 246 betters 245.5, which would show as 246; a session average of 246.5 shows as 246.
    Case{Ann("300, 100, 245.5, 1"), {"Ann"}, {246}, {300, 100, 247, 1}, "You bettered your overall average...", "....", "300 100 246|300 100 246", "Ann|300|100|245.75|2"},
    // The second placeholder finds the first one's game in the shared row; the sessions stay apart.
    Case{"", {"< Player 1 >", "< Player 2 >"}, {100, 200}, {}, "Congratulations, an all-time high!", "BBB.", "200 200 200|200 100 150", "< Player >|200|100|150.0|2"},
    // Without the all-time figures the session average speaks, and nothing is written or created.
    Case{NoFile, {"< Player 1 >"}, {0}, {}, "A new session low! Better luck next time!", ".B..", "0 0 0|", "0"},
    Case{NoFile, {"Ann"}, {120}, {200, 100, 150, 2}, "Brought your session average down...", "....", "200 100 140|", "0"},
    Case{"", {"Ghost"}, {180}, {200, 100, 150, 2}, "You bettered your session average...", "....", "200 100 160|", ""},
    Case{ReadOnly, {"Ann"}, {150}, {200, 100, 150, 2}, "Your session average didn't change...", "....", "200 100 150|", "Ann|200|100|150.0|2"}));
}
