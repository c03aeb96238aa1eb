// The record-set layer under the routines: sets that outlive a nested open, and updates
// that must not pretend to have stored a row.
#include "DataFileFixture.h"
#include "HighScoreTable.h"
#include "modDatabase.h"

using RecordsetTest = DataFileFixture;

TEST_F(RecordsetTest, OuterSetStillStoresAfterANestedOpenAndClose)
{
    // The high-score check holds its set while the High Scores dialog opens the file anew and
    // closes it; the check's own close then meets a closed file and must do nothing.
    MakeFreshFile();
    ASSERT_TRUE(OpenDataFile(false));
    Recordset lowest = OpenHighScoresLowestFirst();
    lowest.MoveFirst();

    ASSERT_TRUE(OpenDataFile(true));
    EXPECT_EQ(OpenHighScoresForDialog().RecordCount(), 10);
    CloseDataFile();
    EXPECT_FALSE(gDataDatabase.IsOpen());

    EXPECT_TRUE(OverwriteHighScore(lowest, "Nested", 500, DateTime{2024, 5, 6, 7, 8, 9}));
    CloseDataFile();
    EXPECT_EQ(Rows("SELECT Score, Date FROM HighScores WHERE Player = 'Nested'"),
              (std::vector<std::vector<std::string>>{{"500", "2024-05-06 07:08:09"}}));
    EXPECT_TRUE(messages.empty());
}

TEST_F(RecordsetTest, UpdateOfARowThatIsGoneStoresNothing)
{
    // The set's rows are read at open; a row deleted since must not be reported as stored.
    MakeFreshFile();
    ASSERT_TRUE(OpenDataFile(false));
    Recordset players = gDataDatabase.OpenRecordset("SELECT Player.PlayerName FROM Player Player");
    ASSERT_GT(players.RecordCount(), 0);
    players.MoveFirst();
    Sql("DELETE FROM Player");
    players.Edit();
    players.Fields("PlayerName").Value = "Ghost";
    EXPECT_FALSE(players.Update());
    EXPECT_TRUE(Rows("SELECT * FROM Player").empty());
}

TEST_F(RecordsetTest, AddNewLeavesUnwrittenFieldsToTheColumnDefaults)
{
    // A field of the set that is not written must not be stored as empty.
    MakeFreshFile();
    ASSERT_TRUE(OpenDataFile(false));
    Recordset players =
        gDataDatabase.OpenRecordset("SELECT PlayerName, HighScore, GamesPlayed FROM Player");
    players.AddNew();
    players.Fields("PlayerName").Value = "Amy";
    players.Fields("GamesPlayed").Value = 3;
    ASSERT_TRUE(players.Update());
    EXPECT_EQ(Rows("SELECT HighScore, GamesPlayed FROM Player WHERE PlayerName = 'Amy'"),
              (std::vector<std::vector<std::string>>{{"0", "3"}}));
}
