// The tool that writes a fresh data file for the build and the install.
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "DataFileFixture.h"

namespace {
using Table = std::vector<std::vector<std::string>>;
using FreshDataFileTest = DataFileFixture;

int RunTool(const std::string& schema, const std::string& target)
{
    return std::system((std::string(ZARVO_MAKEDAT) + " '" + schema + "' '" + target + "' 2>/dev/null")
                           .c_str());
}

TEST_F(FreshDataFileTest, WritesTheGamesTablesWhenNoFileIsThere)
{
    ASSERT_EQ(RunTool(ZARVO_SCHEMA_FILE, DataPath()), 0);
    EXPECT_EQ(Rows("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"),
              (Table{{"HighScores"}, {"Player"}, {"PlayersInUse"}, {"Setup"}}));
    EXPECT_EQ(Rows("SELECT PlayerName, HighScore, LowScore, AverageScore, GamesPlayed FROM Player "
                   "ORDER BY rowid LIMIT 1"),
              (Table{{"< Player >", "0", "9999", "0.0", "0"}}));
    EXPECT_EQ(Rows("SELECT count(*) FROM HighScores WHERE Date < datetime('now')"), (Table{{"10"}}));
    EXPECT_EQ(Rows("SELECT count(*) FROM Setup"), (Table{{"0"}}));
}

TEST_F(FreshDataFileTest, NeverTouchesAFileThatIsThere)
{
    // Even a file that is no database holds someone's data, as far as the tool can know.
    WriteBytes("not a database, but somebody's");
    const std::string bytes = Bytes();
    EXPECT_EQ(RunTool(ZARVO_SCHEMA_FILE, DataPath()), 0);
    EXPECT_EQ(Bytes(), bytes);
}

TEST_F(FreshDataFileTest, AFailureLeavesNoFileBehind)
{
    const std::string schema = directory + "/broken.sql";
    std::ofstream(schema) << "CREATE TABLE Setup (RememberPlayers);\nTHIS IS NOT SQL;\n";
    EXPECT_NE(RunTool(schema, DataPath()), 0);
    EXPECT_NE(RunTool(directory + "/missing.sql", DataPath()), 0);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory), {}), 1)
        << "only the broken schema is left";
}
}
