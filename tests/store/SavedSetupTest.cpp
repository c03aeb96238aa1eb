// The options and players that survive from one run to the next.
#include "DataFileFixture.h"

namespace {
const Names FirstSeat{"< Player 1 >"};

struct SetupCase {
    const char* name;
    const char* rows;  // run on a fresh file; when null, `marks` and `players` are saved instead
    SetupMarks marks;  // what LoadSetup gives
    Names players;
};
void PrintTo(const SetupCase& value, std::ostream* out) { *out << value.name; }

const SetupCase SetupCases[] = {
    {"FreshFile", "", {}, FirstSeat},
    {"PlayersWithoutSetupAreNotRead", "INSERT INTO PlayersInUse VALUES (1, 'Ann');", {}, FirstSeat},
    {"RememberedButNoPlayers", "INSERT INTO Setup VALUES (-1, 0, 0, 0);", {true, false, false, false}, FirstSeat},
    // An unordered read would follow the index by name; only the first eight named seats count.
    {"FirstEightNamedSeatsInTheOrderWritten",
     "DROP TABLE PlayersInUse; CREATE TABLE PlayersInUse (PlayerNumber, PlayerName, Note);"
     "CREATE INDEX ByName ON PlayersInUse (PlayerName, PlayerNumber);"
     "INSERT INTO Setup VALUES (-1, 0, 0, -1); INSERT INTO PlayersInUse VALUES (1, 'Zoe', ''),"
     " (2, '< Player 2 >', ''), (3, 'Ann', ''), (4, NULL, ''), (5, '', ''), (6, 'F', ''),"
     " (7, 'G', ''), (8, 'H', ''), (9, 'I', ''), (10, 'J', ''), (11, 'K', '');",
     {true, false, false, true}, {"Zoe", "< Player 2 >", "Ann", "F", "G", "H", "I", "J"}},
    {"SavedPlaceholderBetweenNames", nullptr, {true, false, false, false}, {"Ann", "< Player 2 >", "Cy"}},
    {"SavedEightPlayers", nullptr, {true, true, true, true}, {"A", "B", "C", "D", "E", "F", "G", "< Player 8 >"}},
};

class SetupTest : public DataFileFixture, public ::testing::WithParamInterface<SetupCase> {};

TEST_P(SetupTest, LoadGivesTheStoredMarksAndPlayers)
{
    const SetupCase& c = GetParam();
    MakeFreshFile();
    if (c.rows) {
        Sql(c.rows);
    } else {  // saved twice, as two runs would: the tables are rewritten, not appended to
        SaveSetupWith(c.marks, c.players);
        SaveSetupWith(c.marks, c.players);
    }
    EXPECT_EQ(LoadedSetup(), Expect(c.marks, c.players));
}

INSTANTIATE_TEST_SUITE_P(Stored, SetupTest, ::testing::ValuesIn(SetupCases),
                         [](const auto& info) { return std::string(info.param.name); });

using SaveSetupTest = DataFileFixture;

TEST_F(SaveSetupTest, FailurePartWayKeepsTheRowsOfTheLastExit)
{
    // Empty tables would be read at the next start as the defaults.
    MakeFreshFile();
    SaveSetupWith({true, false, true, true}, {"Ann", "Bob"});
    const std::string before = Sql("SELECT * FROM Setup; SELECT * FROM PlayersInUse");
    Sql("CREATE TRIGGER DiskFull BEFORE INSERT ON PlayersInUse WHEN NEW.PlayerNumber = 2 "
        "BEGIN SELECT RAISE(ABORT, 'disk full'); END;");
    SaveSetupWith({false, false, false, false}, {"Cy", "Dee", "Eve"});
    EXPECT_EQ(Sql("SELECT * FROM Setup; SELECT * FROM PlayersInUse"), before);
}
}
