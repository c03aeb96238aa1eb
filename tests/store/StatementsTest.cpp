// Each statement against a fresh file: the rows it selects, their order, and what it changes.
#include <algorithm>

#include "DataFileFixture.h"
#include "HighScoreTable.h"
#include "PlayerTable.h"

namespace {
class StatementsTest : public DataFileFixture {
    void SetUp() override
    {
        DataFileFixture::SetUp();
        MakeFreshFile();
        ASSERT_TRUE(OpenDataFile(false));
    }
};

TEST_F(StatementsTest, PlayersAreAddedListedAndDeletedByTheirExactName)
{
    // "1abc" sorts before "< Player >"; the list must still leave out exactly that row.
    const std::string odd = "O'Brien\"; DROP TABLE Player;--";
    for (const std::string name : {"Zed", "1abc", odd.c_str(), "amy"})
        EXPECT_TRUE(AddPlayer(name)) << name;
    EXPECT_FALSE(AddPlayer("Zed"));
    Recordset players = gDataDatabase.OpenRecordset("SELECT PlayerName, HighScore FROM Player");
    players.AddNew();  // an unwritten field takes the column default, never empty
    players.Fields("PlayerName").Value = "Bo";
    EXPECT_TRUE(players.Update());
    EXPECT_EQ(KnownPlayerNames(), (Names{"Zed", "1abc", odd, "amy", "Bo"}));
    // Only the name and LowScore are written; an empty figure would break the statistics.
    EXPECT_EQ(Sql("SELECT HighScore, LowScore, AverageScore, GamesPlayed FROM Player "
                  "WHERE PlayerName = 'amy'"), "0|9999|0.0|0");
    Recordset gone = OpenPlayerStatistics(odd);
    gone.MoveFirst();
    for (const std::string name : {"x' OR '1'='1", odd.c_str(), "Amy"})
        EXPECT_TRUE(DeletePlayer(name)) << name;
    EXPECT_EQ(KnownPlayerNames(), (Names{"Zed", "1abc", "amy", "Bo"}));
    EXPECT_FALSE(CountGame(gone, 120)) << "the row went away since it was read";
}

TEST_F(StatementsTest, EachGameUpdatesTheRecordsAndTheAverage)
{
    // Two placeholder seats share this row, so equal totals come; only a strict gain is a record.
    const std::vector<int> totals{180, 200, 150, 200, 150, 0, 275};
    int low = 9999, high = 0, sum = 0;
    for (std::size_t game = 0; game < totals.size(); ++game) {
        const int total = totals[game];
        Recordset statistics = OpenPlayerStatistics(PlaceholderRowName);
        statistics.MoveFirst();
        EXPECT_EQ(UpdateLowScore(statistics, total), total < low) << "game " << game;
        EXPECT_EQ(UpdateHighScore(statistics, total), total > high) << "game " << game;
        EXPECT_TRUE(CountGame(statistics, total));
        low = std::min(low, total);
        high = std::max(high, total);
        sum += total;
        EXPECT_EQ(Sql("SELECT HighScore, LowScore, GamesPlayed FROM Player WHERE rowid = 1"),
                  std::to_string(high) + "|" + std::to_string(low) + "|" + std::to_string(game + 1));
        EXPECT_NEAR(std::stod(Sql("SELECT AverageScore FROM Player WHERE rowid = 1")), sum / (game + 1.0), 1e-9);
    }

    const std::string bytes = Bytes();
    Recordset nobody = OpenPlayerStatistics("Nobody");
    EXPECT_FALSE(CountGame(nobody, 120));
    EXPECT_EQ(Bytes(), bytes);
}

TEST_F(StatementsTest, HighScoresComeLowestFirstAndTheLowestIsOverwritten)
{
    Sql("DELETE FROM HighScores; INSERT INTO HighScores VALUES ('A', 200, '2021-01-01 10:00:00'),"
        " ('B', 150, '2022-06-01 21:00:00'), ('C', 200, '2023-01-01 10:00:00'), ('D', 150, '2022-06-01 09:00:00'),"
        " ('E', 310, '2020-02-02 02:02:02'), ('F', 200, '2022-06-01 10:00:00'), ('G', 99, '2019-01-01 00:00:00'),"
        " ('H', 150, '2022-06-02 00:00:00'), ('I', 1000, '2024-12-31 23:59:59'), ('J', 99, '2019-01-01 00:00:01')");
    // The dialog fills its lines from the bottom: newer first among equal scores.
    Recordset dialog = OpenHighScoresForDialog();
    std::vector<std::pair<int, std::string>> seen;
    for (dialog.MoveFirst(); !dialog.Eof(); dialog.MoveNext())
        seen.emplace_back(dialog.Fields("Score").Value.CInt(), dialog.Fields("Date").Value.CStr());
    ASSERT_EQ(seen.size(), 10u);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end(), [](const auto& a, const auto& b) {
        return a.first != b.first ? a.first < b.first : a.second > b.second;
    }));

    Recordset lowest = OpenHighScoresLowestFirst();
    lowest.MoveFirst();
    EXPECT_EQ(lowest.Fields("Score").Value.CInt(), 99);
    const std::string beaten = lowest.Fields("Player").Value.CStr();
    ASSERT_TRUE(OverwriteHighScore(lowest, "", 120, DateTime{2025, 1, 2, 3, 4, 5}));
    EXPECT_EQ(Sql("SELECT count(*), sum(Player = '" + beaten + "') FROM HighScores"), "10|0");
    EXPECT_EQ(Sql("SELECT Score, Date FROM HighScores WHERE Player = ''"), "120|2025-01-02 03:04:05");
}

TEST_F(StatementsTest, ASetKeptAcrossANestedOpenAndCloseStillStores)
{
    // The high-score check's set outlives the dialog's own open and close; the last close is harmless.
    Recordset lowest = OpenHighScoresLowestFirst();
    lowest.MoveFirst();
    ASSERT_TRUE(OpenDataFile(true));
    EXPECT_EQ(OpenHighScoresForDialog().RecordCount(), 10);
    CloseDataFile();
    EXPECT_TRUE(OverwriteHighScore(lowest, "Nested", 500, DateTime{2024, 5, 6, 7, 8, 9}));
    CloseDataFile();
    EXPECT_EQ(Sql("SELECT Score, Date FROM HighScores WHERE Player = 'Nested'"), "500|2024-05-06 07:08:09");
}
}
