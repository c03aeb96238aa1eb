// Whatever the file beside it, the game goes on, and a file it could not use keeps every byte.
#include <algorithm>
#include <functional>
#include <random>

#include "DataFileFixture.h"
#include "HighScoreTable.h"
#include "PlayerTable.h"

namespace {
using F = DataFileFixture;
using Check = std::function<void(F&)>;

// On every file before its damage, so that a file read in spite of it would show.
const char* const Remembered = "INSERT INTO Setup VALUES (-1, -1, -1, 0); INSERT INTO PlayersInUse VALUES (1, 'Ann');";
const SetupMarks RememberedMarks{true, true, true, false}, AllNo{false, false, false, false};

struct Damage {
    const char* name;
    Check apply;
    bool opens = false;         // OpenDataFile(true) succeeds, and says nothing
    SetupMarks marks = {};      // what LoadSetup gives
    const char* player = "< Player 1 >";  // the only seat after LoadSetup
    bool saves = false;         // SaveSetup changes the file
    Check more = nullptr;       // further work on the open file
};
void PrintTo(const Damage& value, std::ostream* out) { *out << value.name; }

const Damage Damages[] = {
    {"NoFile", [](F& f) { fs::remove(f.DataPath()); }},
    {"ZeroLength", [](F& f) { f.WriteBytes(""); }},
    {"RandomBytes",
     [](F& f) {
         std::string bytes(8192, '\0');
         std::generate(bytes.begin(), bytes.end(), std::mt19937(7));
         f.WriteBytes(bytes);
     }},
    {"Truncated", [](F& f) { f.WriteBytes(f.Bytes().substr(0, 8192)); }},
    {"PageOverwritten", [](F& f) { f.WriteBytes(f.Bytes().replace(3 * 4096 + 8, 512, 512, 'Z')); }},
    {"TableMissing", [](F& f) { f.Sql("DROP TABLE HighScores"); }},
    {"Directory", [](F& f) { fs::remove(f.DataPath()); fs::create_directory(f.DataPath()); }},
    {"Unreadable", [](F& f) { f.Chmod(0); }},
    {"Locked", [](F& f) { f.Lock(); }},
    // Another game's short piece of work must not cost this one its saved setup.
    {"LockedForAMoment", [](F& f) { f.Lock(std::chrono::milliseconds(200)); }, true, RememberedMarks, "Ann", true},
    {"ReadOnly", [](F& f) { f.Chmod(0444); }, true, RememberedMarks, "Ann", false,
     [](F&) { EXPECT_FALSE(AddPlayer("Amy")); }},
    // Only the work that needs a missing column fails.
    {"ColumnMissing",
     [](F& f) {
         f.Sql("DROP TABLE Setup; CREATE TABLE Setup (RememberPlayers, UseKeyboard, ShowScoringPreview);"
               "INSERT INTO Setup VALUES (-1, -1, -1); ALTER TABLE Player DROP COLUMN GamesPlayed;");
     },
     true},
    // An empty option is no, an empty figure no record yet (in a Player table without NOT NULL).
    {"NullInEveryColumn",
     [](F& f) {
         f.Sql("UPDATE Setup SET RememberPlayers = NULL, UseKeyboard = NULL, ShowScoringPreview = NULL,"
               " AnimateRolling = NULL; UPDATE PlayersInUse SET PlayerNumber = NULL, PlayerName = NULL;"
               "DROP TABLE Player; CREATE TABLE Player (PlayerName, HighScore, LowScore, AverageScore, GamesPlayed);"
               "INSERT INTO Player VALUES ('< Player >', 0, 9999, 0, 0), ('Nil', NULL, NULL, NULL, NULL);"
               "UPDATE HighScores SET Player = NULL, Score = NULL, Date = NULL;");
     },
     true, AllNo, "< Player 1 >", true,
     [](F& f) {
         Recordset statistics = OpenPlayerStatistics("Nil");
         statistics.MoveFirst();
         EXPECT_TRUE(UpdateLowScore(statistics, 120) && UpdateHighScore(statistics, 120) && CountGame(statistics, 120));
         EXPECT_EQ(f.Sql("SELECT HighScore, LowScore, AverageScore, GamesPlayed FROM Player WHERE PlayerName = 'Nil'"),
                   "120|120|120.0|1");
         Recordset highScores = OpenHighScoresLowestFirst();
         highScores.MoveFirst();
         EXPECT_TRUE(OverwriteHighScore(highScores, "Amy", 200, DateTime{}));
     }},
    // A hand-made figure beyond 16 bits keeps its side of every comparison instead of wrapping.
    {"NumbersBeyond16Bits",
     [](F& f) {
         f.Sql("UPDATE Setup SET RememberPlayers = 65536; UPDATE HighScores SET Score = 70000;"
               "UPDATE Player SET HighScore = 99999, LowScore = -99999;");
     },
     true, RememberedMarks, "Ann", true,
     [](F&) {
         Recordset statistics = OpenPlayerStatistics(PlaceholderRowName);
         statistics.MoveFirst();
         EXPECT_FALSE(UpdateHighScore(statistics, 32767) || UpdateLowScore(statistics, -32768));
         Recordset lowest = OpenHighScoresLowestFirst();
         lowest.MoveFirst();
         EXPECT_EQ(lowest.Fields("Score").Value.CInt(), 32767);
     }},
};

class DamagedFileTest : public DataFileFixture, public ::testing::WithParamInterface<Damage> {};

TEST_P(DamagedFileTest, GameGoesOnAndAnUnusableFileIsLeftAlone)
{
    const Damage& d = GetParam();
    MakeFreshFile();
    Sql(Remembered);
    d.apply(*this);
    if (IsSkipped())
        return;
    const std::string bytes = Bytes();
    const fs::file_type type = fs::symlink_status(DataPath()).type();

    EXPECT_EQ(OpenDataFile(true), d.opens);
    CloseDataFile();
    EXPECT_EQ(LoadedSetup(), Expect(d.marks, {d.player}));
    SaveSetup({true, true, true, true});
    EXPECT_EQ(Bytes() != bytes, d.saves);
    EXPECT_EQ(fs::symlink_status(DataPath()).type(), type);

    // Only OpenDataFile(true) tells the user, in exactly these words.
    const Message error{"There was an error opening the\r\ndata file. Please make sure the file\r\n"
                        "'Zarvo.dat' exists in this directory.", vbOKOnly | vbCritical, "Zarvo - Data File Error"};
    EXPECT_EQ(messages, std::vector<Message>(d.opens ? 0 : 1, error));
    if (d.more) {
        ASSERT_TRUE(OpenDataFile(false));
        d.more(*this);
    }
}

INSTANTIATE_TEST_SUITE_P(Damaged, DamagedFileTest, ::testing::ValuesIn(Damages),
                         [](const auto& info) { return std::string(info.param.name); });
}
