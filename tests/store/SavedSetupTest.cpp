// The options and players that survive from one run to the next.
#include <tuple>

#include "DataFileFixture.h"
#include "SavedSetup.h"
#include "modGlobalVars.h"

namespace {
using Names = std::vector<std::string>;
using Table = std::vector<std::vector<std::string>>;

auto Marks(const SetupMarks& m)
{
    return std::tuple(m.RememberPlayers, m.UseKeyboard, m.ShowScoringPreview, m.AnimateRolling);
}

Names PlayerNames()
{
    Names names;
    for (int n = 1; n <= gPlayerNames.UBound(); ++n)
        names.push_back(gPlayerNames[n]);
    return names;
}

void SetPlayerNames(const Names& names)
{
    gPlayerNames.ReDim(int(names.size()));
    for (int n = 1; n <= int(names.size()); ++n)
        gPlayerNames[n] = names[n - 1];
}

struct StoredSetup {
    const char* name;
    const char* rows;
    SetupMarks marks;
    Names players;
};
void PrintTo(const StoredSetup& value, std::ostream* out) { *out << value.name; }

const SetupMarks Defaults{};
const Names DefaultPlayers{"< Player 1 >"};

const StoredSetup StoredSetups[] = {
    {"FreshFile", "", Defaults, DefaultPlayers},
    {"PlayersWithoutSetupAreNotRead",
     "INSERT INTO PlayersInUse VALUES (1, 'Ann'), (2, 'Bob');", Defaults, DefaultPlayers},
    {"RememberWithoutPlayersKeepsTheDefault",
     "INSERT INTO Setup VALUES (-1, 0, 0, 0);", {true, false, false, false}, DefaultPlayers},
    {"PlayersNotRememberedAreNotRead",
     "INSERT INTO Setup VALUES (0, -1, -1, 0); INSERT INTO PlayersInUse VALUES (1, 'Ann');",
     {false, true, true, false}, DefaultPlayers},
    // A wider table with an index by name, which an unordered read would scan in name
    // order: the players must still come back as written.
    {"PlayersComeBackInTheOrderWritten",
     "DROP TABLE PlayersInUse; CREATE TABLE PlayersInUse (PlayerNumber, PlayerName, Note);"
     "CREATE INDEX ByName ON PlayersInUse (PlayerName, PlayerNumber);"
     "INSERT INTO Setup VALUES (-1, 0, 0, -1);"
     "INSERT INTO PlayersInUse VALUES (1, 'Zoe', ''), (2, '< Player 2 >', ''), (3, 'Ann', '');",
     {true, false, false, true}, {"Zoe", "< Player 2 >", "Ann"}},
    {"AnyNonZeroValueIsYes",
     "INSERT INTO Setup VALUES (70000, 1, '7', NULL); INSERT INTO PlayersInUse VALUES (1, 'Ann');",
     {true, true, true, false}, {"Ann"}},
    {"OnlyTheFirstSetupRowCounts",
     "INSERT INTO Setup VALUES (0, 0, 0, 0), (-1, -1, -1, -1);", {false, false, false, false},
     DefaultPlayers},
    {"AtMostEightSeatsAndNoEmptyNames",
     "INSERT INTO Setup VALUES (-1, 0, 0, -1);"
     "INSERT INTO PlayersInUse VALUES (1, 'P1'), (2, NULL), (3, 'P3'), (4, ''), (5, 'P5'),"
     " (6, 'P6'), (7, 'P7'), (8, 'P8'), (9, 'P9'), (10, 'P10'), (11, 'P11');",
     {true, false, false, true}, {"P1", "P3", "P5", "P6", "P7", "P8", "P9", "P10"}},
};

class LoadSetupTest : public DataFileFixture, public ::testing::WithParamInterface<StoredSetup> {};

TEST_P(LoadSetupTest, GivesTheStoredMarksAndPlayers)
{
    MakeFreshFile();
    Sql(GetParam().rows);
    SetPlayerNames({"left", "over"});
    SetupMarks marks;
    LoadSetup(marks);
    EXPECT_EQ(Marks(marks), Marks(GetParam().marks));
    EXPECT_EQ(PlayerNames(), GetParam().players);
    EXPECT_TRUE(messages.empty());
}

INSTANTIATE_TEST_SUITE_P(Stored, LoadSetupTest, ::testing::ValuesIn(StoredSetups),
                         [](const auto& info) { return std::string(info.param.name); });

struct SavedRun {
    const char* name;
    SetupMarks marks;
    Names players;
};
void PrintTo(const SavedRun& value, std::ostream* out) { *out << value.name; }

const SavedRun SavedRuns[] = {
    {"PlaceholderBetweenNames", {true, false, false, false}, {"Ann", "< Player 2 >", "Cy"}},
    {"EightPlayers", {true, true, true, true}, {"A", "B", "C", "D", "E", "F", "G", "< Player 8 >"}},
    {"PlayersStoredButNotRestored", {false, true, false, false}, {"Ann", "Bob"}},
};

class SaveSetupTest : public DataFileFixture, public ::testing::WithParamInterface<SavedRun> {};

TEST_P(SaveSetupTest, NextStartGetsWhatTheLastExitSaved)
{
    // Saved twice, as two runs would: the tables are rewritten, never appended to.
    MakeFreshFile();
    const SavedRun& run = GetParam();
    SetPlayerNames(run.players);
    SaveSetup(run.marks);
    SaveSetup(run.marks);
    EXPECT_EQ(Rows("SELECT count(*) FROM Setup"), (Table{{"1"}}));
    EXPECT_EQ(Rows("SELECT count(*) FROM PlayersInUse"), (Table{{std::to_string(run.players.size())}}));

    SetupMarks loaded;
    LoadSetup(loaded);
    EXPECT_EQ(Marks(loaded), Marks(run.marks));
    EXPECT_EQ(PlayerNames(), run.marks.RememberPlayers ? run.players : DefaultPlayers);
}

INSTANTIATE_TEST_SUITE_P(Saved, SaveSetupTest, ::testing::ValuesIn(SavedRuns),
                         [](const auto& info) { return std::string(info.param.name); });

using SaveSetupFailureTest = DataFileFixture;

TEST_F(SaveSetupFailureTest, KeepsTheRowsOfTheLastExit)
{
    // The file refuses the second player; the rewrite must leave the old rows, never empty
    // tables that the next start would read as the defaults.
    MakeFreshFile();
    SetPlayerNames({"Ann", "Bob"});
    SaveSetup({true, false, true, true});
    const Table setup = Rows("SELECT * FROM Setup");
    const Table players = Rows("SELECT * FROM PlayersInUse");
    Sql("CREATE TRIGGER DiskFull BEFORE INSERT ON PlayersInUse WHEN NEW.PlayerNumber = 2 "
        "BEGIN SELECT RAISE(ABORT, 'disk full'); END;");

    SetPlayerNames({"Cy", "Dee", "Eve"});
    SaveSetup({false, false, false, false});
    EXPECT_EQ(Rows("SELECT * FROM Setup"), setup);
    EXPECT_EQ(Rows("SELECT * FROM PlayersInUse"), players);
}
}
