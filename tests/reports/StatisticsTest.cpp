// The end of a card on plain code: the records, the one line, the bold marks, the figures
// shown and the counted Player rows afterwards, against temporary data files.
#include "DataFileFixture.h"
#include "PlayerStatistics.h"
#include "modCommon.h"

namespace {
const std::string NoFile = "no file";
std::string Ann(const std::string& figures) { return "INSERT INTO Player VALUES ('Ann', " + figures + ");"; }
const std::string Untyped = "DROP TABLE Player; CREATE TABLE Player (PlayerName, HighScore, LowScore, AverageScore, GamesPlayed);";
const SessionStats Between{300, 100, 150, 2};   // a total of 150 sets no session record and keeps its average

// The file: NoFile or statements on a fresh file; one game per seat in turn, checked on the last, whose session
// is given. Bold: session high, session low, all-time high, all-time low. Shown: the session's "high low avg|",
// then the all-time ones. Rows: those with games counted afterwards.
struct Case { std::string file; Names seats; std::vector<int> scores; SessionStats session; std::string info, bold, shown, rows; };
class Statistics : public DataFileFixture, public testing::WithParamInterface<Case> {};

TEST_P(Statistics, CountsTheGameAndPicksTheLine)
{
    const Case& c = GetParam();
    if (c.file != NoFile)
        MakeFreshFile(), Sql(c.file);
    const int seats = int(c.seats.size());
    gPlayerNames.ReDim(seats), gScores.ReDim(seats), ClearSessionStats();   // all rows 0: the bonus makes the total
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
    // 246 betters 245.5, which would show as 246; a session average of 246.5 shows as 246.
    Case{Ann("300, 100, 245.5, 1"), {"Ann"}, {246}, {300, 100, 247, 1}, "You bettered your overall average...", "....", "300 100 246|300 100 246", "Ann|300|100|245.75|2"},
    // The second placeholder finds the first one's game in the shared row; the sessions stay apart.
    Case{"", {"< Player 1 >", "< Player 2 >"}, {100, 200}, {}, "Congratulations, an all-time high!", "BBB.", "200 200 200|200 100 150", "< Player >|200|100|150.0|2"},
    // Without the all-time figures (no file, no row, a file that takes no change) the session average speaks,
    // and nothing is written or created.
    Case{NoFile, {"< Player 1 >"}, {0}, {}, "A new session low! Better luck next time!", ".B..", "0 0 0|", "0"},
    Case{"", {"Ghost"}, {180}, {200, 100, 150, 2}, "You bettered your session average...", "....", "200 100 160|", ""},
    Case{Ann("200, 100, 150, 2") + "CREATE TRIGGER No BEFORE UPDATE ON Player BEGIN SELECT RAISE(ABORT, ''); END;", {"Ann"}, {150}, {200, 100, 150, 2}, "Your session average didn't change...", "....", "200 100 150|", "Ann|200|100|150.0|2"},
    // Figures edited by hand: text or NULL is absent and this game's figure takes its place; a number beyond its
    // column keeps its side of every comparison, the average is read within 16 bits and stays finite, and the
    // count stops at the top of its 32 bits. A negative count is no count.
    Case{Ann("'500 points', 100, 150, 3"), {"Ann"}, {150}, Between, "Congratulations, an all-time high!", "..B.", "300 100 150|150 100 150", "Ann|150|100|150.0|4"},
    Case{Untyped + Ann("NULL, NULL, NULL, NULL"), {"Ann"}, {150}, Between, "Congratulations, an all-time high!", "..BB", "300 100 150|150 150 150", "Ann|150|150|150.0|1"},
    Case{Ann("300, 'xyz', 1e308, 3"), {"Ann"}, {150}, Between, "An all-time low! Better luck next time!", "...B", "300 100 150|300 150 24613", "Ann|300|150|24612.75|4"},
    Case{Ann("99999, -99999, 150, 2"), {"Ann"}, {150}, Between, "Your overall average didn't change...", "....", "300 100 150|32767 -32768 150", "Ann|99999|-99999|150.0|3"},
    Case{Ann("300, 100, 200, 2147483647"), {"Ann"}, {150}, Between, "Brought your overall average down...", "....", "300 100 150|300 100 200", "Ann|300|100|199.999999976717|2147483647"},
    Case{Ann("300, 100, 'abc', '7 games'"), {"Ann"}, {150}, Between, "Your overall average didn't change...", "....", "300 100 150|300 100 150", "Ann|300|100|150.0|1"},
    Case{Ann("300, 100, -9e999, -1"), {"Ann"}, {150}, Between, "You bettered your overall average...", "....", "300 100 150|300 100 150", "Ann|300|100|150.0|1"}));
}
