// Each statement against a fresh file: which rows it selects, in which order, and what it
// changes.
#include <algorithm>
#include <numeric>

#include "DataFileFixture.h"
#include "HighScoreTable.h"
#include "PlayerTable.h"
#include "modDatabase.h"

namespace {
using Names = std::vector<std::string>;
using Table = std::vector<std::vector<std::string>>;

class StatementsTest : public DataFileFixture {
public:
    void SetUp() override
    {
        DataFileFixture::SetUp();
        MakeFreshFile();
        ASSERT_TRUE(OpenDataFile(false));
    }
};

TEST_F(StatementsTest, KnownPlayersLeaveOutThePlaceholderRowWhateverTheNames)
{
    // "1abc" sorts before "< Player >"; the list must still skip exactly the PlaceholderRow.
    EXPECT_TRUE(KnownPlayerNames().empty());
    for (const char* name : {"Zed", "1abc", "Amy"})
        EXPECT_TRUE(AddPlayer(name));
    EXPECT_EQ(KnownPlayerNames(), (Names{"Zed", "1abc", "Amy"}));
}

TEST_F(StatementsTest, AddedPlayerStartsAtZeroWith9999AsLowScore)
{
    // Only the name and LowScore are written; an empty figure would break the statistics.
    ASSERT_TRUE(AddPlayer("Amy"));
    EXPECT_FALSE(AddPlayer("Amy"));
    EXPECT_TRUE(AddPlayer("amy"));
    EXPECT_EQ(Rows("SELECT HighScore, LowScore, AverageScore, GamesPlayed FROM Player "
                   "WHERE PlayerName = 'Amy'"),
              (Table{{"0", "9999", "0.0", "0"}}));
}

TEST_F(StatementsTest, NamesWithQuotesAndSqlInThemArePlainData)
{
    const std::string odd = "O'Brien\"; DROP TABLE Player;--";
    ASSERT_TRUE(AddPlayer(odd));
    ASSERT_TRUE(AddPlayer("Amy"));
    EXPECT_EQ(KnownPlayerNames(), (Names{odd, "Amy"}));
    EXPECT_GT(OpenPlayerStatistics(odd).RecordCount(), 0);

    EXPECT_TRUE(DeletePlayer("x' OR '1'='1"));
    EXPECT_TRUE(DeletePlayer(odd));
    EXPECT_EQ(KnownPlayerNames(), Names{"Amy"});
}

TEST_F(StatementsTest, EachGameUpdatesTheRecordsAndTheAverage)
{
    // Two placeholder seats share "< Player >", so its row counts both seats' games. The
    // expectations come from the whole list of totals, the code counts one game at a time.
    const std::vector<int> totals{180, 200, 150, 200, 150, 0, 275};
    int low = 9999, high = 0;
    for (std::size_t game = 0; game < totals.size(); ++game) {
        const int total = totals[game];
        Recordset statistics = OpenPlayerStatistics(PlaceholderRowName);
        ASSERT_GT(statistics.RecordCount(), 0);
        statistics.MoveFirst();
        EXPECT_EQ(UpdateLowScore(statistics, total), total < low) << "game " << game;
        EXPECT_EQ(UpdateHighScore(statistics, total), total > high) << "game " << game;
        EXPECT_TRUE(CountGame(statistics, total));
        low = std::min(low, total);
        high = std::max(high, total);

        const Table row = Rows("SELECT HighScore, LowScore, AverageScore, GamesPlayed FROM Player "
                               "WHERE PlayerName = '< Player >'");
        const double mean =
            std::accumulate(totals.begin(), totals.begin() + game + 1, 0.0) / double(game + 1);
        EXPECT_EQ(row[0][0], std::to_string(high));
        EXPECT_EQ(row[0][1], std::to_string(low));
        EXPECT_NEAR(std::stod(row[0][2]), mean, 1e-9);  // the text has 15 digits
        EXPECT_EQ(row[0][3], std::to_string(game + 1));
    }
}

TEST_F(StatementsTest, StatisticsOfANameWithoutARowChangeNothing)
{
    const std::string before = Bytes();
    Recordset statistics = OpenPlayerStatistics("Nobody");
    EXPECT_EQ(statistics.RecordCount(), 0);
    EXPECT_FALSE(CountGame(statistics, 120));
    EXPECT_EQ(Bytes(), before);
}

struct Entry {
    std::string player;
    int score;
    std::string date;
};

std::vector<Entry> ReadAll(Recordset set)
{
    std::vector<Entry> entries;
    for (set.MoveFirst(); !set.Eof(); set.MoveNext())
        entries.push_back({set.Fields("Player").Value.CStr(), set.Fields("Score").Value.CInt(),
                           set.Fields("Date").Value.CStr()});
    return entries;
}

TEST_F(StatementsTest, HighScoresComeLowestFirstAndNewerFirstAmongEqualScores)
{
    Sql("DELETE FROM HighScores; INSERT INTO HighScores VALUES "
        "('A', 200, '2021-01-01 10:00:00'), ('B', 150, '2022-06-01 21:00:00'),"
        "('C', 200, '2023-01-01 10:00:00'), ('D', 150, '2022-06-01 09:00:00'),"
        "('E', 310, '2020-02-02 02:02:02'), ('F', 200, '2022-06-01 10:00:00'),"
        "('G', 99, '2019-01-01 00:00:00'), ('H', 150, '2022-06-02 00:00:00'),"
        "('I', 1000, '2024-12-31 23:59:59'), ('J', 99, '2019-01-01 00:00:01')");
    const std::vector<Entry> dialog = ReadAll(OpenHighScoresForDialog());
    ASSERT_EQ(dialog.size(), 10u);
    EXPECT_TRUE(std::is_sorted(dialog.begin(), dialog.end(), [](const Entry& a, const Entry& b) {
        return a.score != b.score ? a.score < b.score : a.date > b.date;
    }));

    const std::vector<Entry> lowest = ReadAll(OpenHighScoresLowestFirst());
    EXPECT_EQ(lowest.front().score, 99);
    EXPECT_TRUE(std::is_sorted(lowest.begin(), lowest.end(),
                               [](const Entry& a, const Entry& b) { return a.score < b.score; }));
}

TEST_F(StatementsTest, ANewHighScoreOverwritesTheLowestRowAndKeepsTen)
{
    Recordset lowest = OpenHighScoresLowestFirst();
    ASSERT_GT(lowest.RecordCount(), 0);
    lowest.MoveFirst();
    const std::string beaten = lowest.Fields("Player").Value.CStr();
    const int score = lowest.Fields("Score").Value.CInt() + 1;
    const DateTime now{2025, 1, 2, 3, 4, 5};
    ASSERT_TRUE(OverwriteHighScore(lowest, "", score, now));

    EXPECT_EQ(Rows("SELECT count(*) FROM HighScores"), (Table{{"10"}}));
    EXPECT_TRUE(Rows("SELECT * FROM HighScores WHERE Player = '" + beaten + "'").empty());
    EXPECT_EQ(Rows("SELECT Score, Date FROM HighScores WHERE Player = ''"),
              (Table{{std::to_string(score), "2025-01-02 03:04:05"}}));
}
}
