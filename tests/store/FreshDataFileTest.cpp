// The tool that writes a fresh data file for the build and the install.
#include <cstdlib>
#include <fstream>

#include "DataFileFixture.h"

using FreshDataFileTest = DataFileFixture;

// Whole files only, and only where none is: a schema that fails, or is missing, leaves nothing behind; a file
// that is no database still holds someone's data, as far as the tool can know.
TEST_F(FreshDataFileTest, WritesWholeFilesOnlyWhereNoneIs)
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
