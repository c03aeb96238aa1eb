// The tool that writes a fresh data file for the build and the install.
#include <cstdlib>

#include "DataFileFixture.h"

namespace {
using FreshDataFileTest = DataFileFixture;

int RunTool(const std::string& schema, const std::string& target)
{
    return std::system((std::string(ZARVO_MAKEDAT) + " '" + schema + "' '" + target + "' 2>/dev/null").c_str());
}

TEST_F(FreshDataFileTest, WritesWholeFilesOnlyWhereNoneIs)
{
    // A schema that fails, or is missing, leaves no half-made file behind.
    std::ofstream(directory + "/broken.sql") << "CREATE TABLE Setup (RememberPlayers);\nTHIS IS NOT SQL;\n";
    EXPECT_NE(RunTool(directory + "/broken.sql", DataPath()), 0);
    EXPECT_NE(RunTool(directory + "/missing.sql", DataPath()), 0);
    EXPECT_EQ(std::distance(fs::directory_iterator(directory), {}), 1) << "only the broken schema is left";

    ASSERT_EQ(RunTool(ZARVO_SCHEMA_FILE, DataPath()), 0);
    EXPECT_EQ(Sql("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"),
              "HighScores;Player;PlayersInUse;Setup");
    EXPECT_EQ(Sql("SELECT * FROM Player"), "< Player >|0|9999|0.0|0");
    EXPECT_EQ(Sql("SELECT count(*) FROM HighScores WHERE Date < datetime('now')"), "10");
    EXPECT_EQ(Sql("SELECT count(*) FROM Setup UNION ALL SELECT count(*) FROM PlayersInUse"), "0;0");

    // Even a file that is no database holds someone's data, as far as the tool can know.
    WriteBytes("not a database, but somebody's");
    EXPECT_EQ(RunTool(ZARVO_SCHEMA_FILE, DataPath()), 0);
    EXPECT_EQ(Bytes(), "not a database, but somebody's");
}
}
