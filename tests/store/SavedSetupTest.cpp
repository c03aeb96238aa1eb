// The options and players kept from one run to the next, whatever file lies beside the program: a usable
// file gives them back and takes the new ones; any other costs no game, is told once, and keeps every byte.
#include "DataFileFixture.h"

namespace {
using Setup = std::tuple<bool, bool, bool, bool, Names>;  // the four marks and the seats
const Names First{"< Player 1 >"};
const Setup Defaults{false, false, false, true, First}, Remembered{true, true, true, false, {"Ann"}};
const Setup Saved{true, false, true, false, {"Amy", "< Player 2 >", "Cy", "D", "E", "F", "G", "< Player 8 >"}};
const std::string Rows = "INSERT INTO Setup VALUES (-1, -1, -1, 0); INSERT INTO PlayersInUse VALUES (1, 'Ann');";

// What LoadSetup gives, over seats left from before.
Setup Loaded()
{
    SetupMarks m;
    gPlayerNames.ReDim(2, "left over"), LoadSetup(m);
    return {m.RememberPlayers, m.UseKeyboard, m.ShowScoringPreview, m.AnimateRolling,
            Names(&gPlayerNames[1], &gPlayerNames[1] + gPlayerNames.UBound())};
}

using F = class SavedSetupTest;
struct FileCase {
    const char* name;
    std::string rows;                         // run on a fresh file
    void (*damage)(F&) = nullptr;             // then done to it
    bool opens = false, saves = false;        // OpenDataFile(true) succeeds silently; SaveSetup stores
    Setup loads = Defaults;
};
void PrintTo(const FileCase& c, std::ostream* out) { *out << c.name; }

class SavedSetupTest : public DataFileFixture, public ::testing::WithParamInterface<FileCase> {};

const FileCase Cases[] = {
    {"PlayersWithoutSetupAreNotRead", "INSERT INTO PlayersInUse VALUES (1, 'Ann');", nullptr, true, true},
    {"RememberedButNoPlayers", "INSERT INTO Setup VALUES (-1, 0, 0, 0);", nullptr, true, true,
     {true, false, false, false, First}},
    // An unordered read would follow the index by name; only the first eight named seats count.
    {"FirstEightNamedSeatsInTheOrderWritten",
     "DROP TABLE PlayersInUse; CREATE TABLE PlayersInUse (PlayerNumber, PlayerName, Note);"
     "CREATE INDEX ByName ON PlayersInUse (PlayerName, PlayerNumber); INSERT INTO Setup VALUES (-1, 0, 0, -1);"
     "INSERT INTO PlayersInUse VALUES (1, 'Zoe', ''), (2, '< Player 2 >', ''), (3, 'Ann', ''), (4, NULL, ''),"
     " (5, '', ''), (6, 'F', ''), (7, 'G', ''), (8, 'H', ''), (9, 'I', ''), (10, 'J', ''), (11, 'K', '');",
     nullptr, true, true, {true, false, false, true, {"Zoe", "< Player 2 >", "Ann", "F", "G", "H", "I", "J"}}},
    // An option edited by hand: empty is no, and a number beyond 16 bits is still yes.
    {"HandEditedOptions", Rows + "UPDATE Setup SET RememberPlayers = 65536, UseKeyboard = NULL, AnimateRolling = NULL",
     nullptr, true, true, {true, false, true, false, {"Ann"}}},
    // Only the work that needs a missing column fails; a save that fails after emptying the tables keeps the rows
    // of the last exit, as empty tables would read as the defaults.
    {"ColumnMissing", Rows + "ALTER TABLE Setup DROP COLUMN AnimateRolling;", nullptr, true},
    // Another game's short piece of work must not cost this one its saved setup.
    {"LockedForAMoment", Rows, [](F& f) { f.Lock("BEGIN EXCLUSIVE", 200); }, true, true, Remembered},
    // Files that can be read but not written still give back the remembered players.
    {"ReadOnly", Rows, [](F& f) { f.Chmod(0444); }, true, false, Remembered},
    {"ReadOnlyFolder", Rows, [](F& f) { f.Chmod(0666, 0555); }, true, false, Remembered},
    {"WriteLocked", Rows, [](F& f) { f.Lock("BEGIN IMMEDIATE"); }, true, false, Remembered},
    {"NoFile", Rows, [](F& f) { fs::remove(f.DataPath()); }},
    {"ZeroLength", Rows, [](F& f) { f.WriteBytes(""); }},
    {"NotADatabase", Rows, [](F& f) { f.WriteBytes(std::string(8192, 'Z')); }},
    {"Truncated", Rows, [](F& f) { f.WriteBytes(f.Bytes().substr(0, 8192)); }},
    {"PageOverwritten", Rows, [](F& f) { f.WriteBytes(f.Bytes().replace(3 * 4096 + 8, 512, 512, 'Z')); }},
    {"TableMissing", Rows, [](F& f) { f.Sql("DROP TABLE HighScores"); }},
    {"Directory", Rows, [](F& f) { fs::remove(f.DataPath()), fs::create_directory(f.DataPath()); }},
    {"Unreadable", Rows, [](F& f) { f.Chmod(0); }},
    {"Locked", Rows, [](F& f) { f.Lock("BEGIN EXCLUSIVE"); }},
};

// Load, save, load: a write into a file that cannot take it could cost every record the file holds.
TEST_P(SavedSetupTest, GameGoesOnAndOnlyAUsableFileIsWritten)
{
    const FileCase& c = GetParam();
    MakeFreshFile();
    Sql(c.rows);
    if (c.damage)
        c.damage(*this);
    if (IsSkipped())
        return;
    const auto state = [this] { return std::tuple(Bytes(), fs::symlink_status(DataPath()).type(), Listing()); };
    const auto before = state();
    EXPECT_EQ(OpenDataFile(true), c.opens);
    CloseDataFile();
    EXPECT_EQ(Loaded(), c.loads);
    SaveSetupWith({true, false, true, false}, std::get<Names>(Saved));  // rewrites the tables, never appends
    EXPECT_EQ(Loaded(), c.saves ? Saved : c.loads);
    EXPECT_TRUE(c.saves || state() == before) << "the file changed, or a journal was left";
    // Only OpenDataFile(true) tells the user, in exactly these words.
    const Message error{"There was an error opening the\r\ndata file. Please make sure the file\r\n"
                        "'Zarvo.dat' exists in this directory.", vbOKOnly | vbCritical, "Zarvo - Data File Error"};
    EXPECT_EQ(messages, std::vector<Message>(c.opens ? 0 : 1, error));
}

INSTANTIATE_TEST_SUITE_P(Files, SavedSetupTest, ::testing::ValuesIn(Cases),
                         [](const auto& info) { return std::string(info.param.name); });
}
