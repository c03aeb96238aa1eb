// The statements on a fresh file: names as they stand, whatever they hold.
#include "DataFileFixture.h"
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
    CloseDataFile();
}
}
