// The statements on a fresh file, names as they stand whatever they hold; and the tool that writes
// a fresh data file for the build and the install.
#include <cstdlib>
#include <fstream>

#include "DataFileFixture.h"
#include "PlayerTable.h"

using StatementsTest = DataFileFixture;

// Names reach the file as they stand, quotes and all; a digit first does not push the placeholder row from the
// front, which the list leaves out; a delete takes only the exact name. A new row starts at 0, 9999, 0, 0, and
// any field a set leaves unwritten takes its column default, never empty, or the statistics would break.
TEST_F(StatementsTest, PlayersAreAddedListedAndDeletedByTheirExactName)
{
    MakeFreshFile();
    ASSERT_TRUE(OpenDataFile(false));
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
    CloseDataFile();
    EXPECT_EQ(Sql("SELECT HighScore, LowScore, AverageScore, GamesPlayed FROM Player WHERE PlayerName = 'amy'"), "0|9999|0.0|0");
}

// Whole files only, and only where none is: a schema that fails, or is missing, leaves nothing behind; a file
// that is no database still holds someone's data, as far as the tool can know.
TEST_F(StatementsTest, FreshFilesWholeAndOnlyWhereNoneIs)
{
    const auto run = [this](const std::string& schema) {
        return std::system((std::string(ZARVO_MAKEDAT) + " '" + schema + "' '" + DataPath() + "' 2>/dev/null").c_str());
    };
    std::ofstream(directory + "/broken.sql") << "CREATE TABLE Setup (RememberPlayers);\nTHIS IS NOT SQL;\n";
    EXPECT_TRUE(run(directory + "/broken.sql") && run(directory + "/missing.sql")) << "both must fail";
    EXPECT_EQ(std::distance(fs::directory_iterator(directory), {}), 1) << "only the broken schema is left";
    ASSERT_EQ(run(ZARVO_SCHEMA_FILE), 0);
    EXPECT_TRUE(OpenDataFile(false)) << "the game's four tables, whole";
    CloseDataFile();
    fs::remove(DataPath()), std::ofstream(DataPath()) << "somebody's";
    EXPECT_EQ(run(ZARVO_SCHEMA_FILE), 0);
    EXPECT_EQ(fs::file_size(DataPath()), 10u);
}
