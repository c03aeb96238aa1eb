// The statements on a fresh file: names as they stand, figures a hand-edited row may hold, the top ten's order.
#include "DataFileFixture.h"
#include "HighScoreTable.h"
#include "PlayerTable.h"

namespace {
const std::string Figures = "SELECT HighScore, LowScore, AverageScore, GamesPlayed FROM Player WHERE PlayerName = ";

class StatementsTest : public DataFileFixture {
    void SetUp() override { DataFileFixture::SetUp(), MakeFreshFile(); ASSERT_TRUE(OpenDataFile(false)); }
};

// Names reach the file as they stand, quotes and all; a digit first does not push the placeholder row from the
// front, which the list leaves out; a delete takes only the exact name. A new row starts at 0, 9999, 0, 0, and
// any field a set leaves unwritten takes its column default, never empty, or the statistics would break.
TEST_F(StatementsTest, PlayersAreAddedListedAndDeletedByTheirExactName)
{
    const std::string odd = "O'Brien\"; DROP TABLE Player;--";
    for (const std::string name : {"Zed", "1abc", odd.c_str(), "amy"})
        EXPECT_TRUE(AddPlayer(name)) << name;
    EXPECT_FALSE(AddPlayer("Zed"));
    Recordset players = gDataDatabase.OpenRecordset("SELECT PlayerName, HighScore FROM Player");
    players.AddNew();
    players.Fields("PlayerName").Value = "Bo";
    EXPECT_TRUE(players.Update());
    for (const std::string name : {"x' OR '1'='1", odd.c_str(), "Amy"})
        EXPECT_TRUE(DeletePlayer(name)) << name;
    EXPECT_EQ(KnownPlayerNames(), (Names{"Zed", "1abc", "amy", "Bo"}));
    EXPECT_EQ(Sql(Figures + "'amy'"), "0|9999|0.0|0");
}

// A game of 120 on rows edited by hand: an empty figure is no record and no game yet; a figure beyond 16 bits
// keeps its side of every comparison instead of wrapping.
TEST_F(StatementsTest, AGameOnHandEditedFigures)
{
    Sql("DROP TABLE Player; CREATE TABLE Player (PlayerName, HighScore, LowScore, AverageScore, GamesPlayed);"
        "INSERT INTO Player VALUES ('Nil', NULL, NULL, NULL, NULL), ('Huge', 99999, -99999, 150, 2)");
    for (const auto& [name, after] : {std::pair{"Nil", "120|120|120.0|1"}, {"Huge", "99999|-99999|140.0|3"}}) {
        Recordset statistics = OpenPlayerStatistics(name);
        UpdateLowScore(statistics, 120), UpdateHighScore(statistics, 120), CountGame(statistics, 120);
        EXPECT_EQ(Sql(Figures + "'" + name + "'"), after) << name;
    }
}

// The High Scores dialog opens the file anew while the high-score check holds its set: it reads the lowest
// score first, the newer first among equal ones (it fills its lines from the bottom); after the dialog's
// close the check's set still overwrites its lowest row.
TEST_F(StatementsTest, HighScoresReadInsideTheCheckThatWrites)
{
    Sql("DELETE FROM HighScores; INSERT INTO HighScores VALUES ('A', 200, '2021'), ('B', 150, '2022-06-01 21:00'),"
        " ('C', 200, '2023'), ('D', 150, '2022-06-01 09:00'), ('E', 99, '2024')");
    Recordset lowest = OpenHighScoresLowestFirst();  // on its first row, as every set opens
    ASSERT_TRUE(OpenDataFile(true));
    std::string order;
    for (Recordset dialog = OpenHighScoresForDialog(); !dialog.Eof(); dialog.MoveNext())
        order += dialog.Fields("Player").Value.CStr();
    EXPECT_EQ(order, "EBDCA");
    CloseDataFile();
    EXPECT_TRUE(OverwriteHighScore(lowest, "Nested", 500, DateTime{2024, 5, 6, 7, 8, 9}));
    EXPECT_EQ(Sql("SELECT * FROM HighScores WHERE Player IN ('E', 'Nested')"), "Nested|500|2024-05-06 07:08:09");
}
}
