// Files the game may meet beside it. Whatever their state, the game stays playable, and a
// file that could not be used keeps every byte it had.
#include <filesystem>
#include <functional>
#include <random>

#include "DataFileFixture.h"
#include "HighScoreTable.h"
#include "MsgBox.h"
#include "PlayerTable.h"
#include "SavedSetup.h"
#include "modDatabase.h"
#include "modGlobalVars.h"

namespace {
namespace fs = std::filesystem;
using Table = std::vector<std::vector<std::string>>;

// A file with a remembered setup, so that a file read in spite of its damage would show.
const char* const RememberedSetup =
    "INSERT INTO Setup VALUES (-1, -1, -1, 0); INSERT INTO PlayersInUse VALUES (1, 'Ann');";

std::string RandomBytes(std::size_t count)
{
    std::mt19937 random(7);
    std::string bytes(count, '\0');
    for (char& byte : bytes)
        byte = char(random());
    return bytes;
}

struct Damage {
    const char* name;
    std::function<void(DataFileFixture&)> apply;
};
void PrintTo(const Damage& value, std::ostream* out) { *out << value.name; }

const Damage Unusable[] = {
    {"NoFile", [](DataFileFixture& f) { fs::remove(f.DataPath()); }},
    {"ZeroLength", [](DataFileFixture& f) { f.WriteBytes(""); }},
    {"RandomBytes", [](DataFileFixture& f) { f.WriteBytes(RandomBytes(8192)); }},
    {"Truncated", [](DataFileFixture& f) { f.WriteBytes(f.Bytes().substr(0, 8192)); }},
    {"PageOverwritten",
     [](DataFileFixture& f) {
         std::string bytes = f.Bytes();
         bytes.replace(3 * 4096 + 8, 512, RandomBytes(512));
         f.WriteBytes(bytes);
     }},
    {"Directory",
     [](DataFileFixture& f) {
         fs::remove(f.DataPath());
         fs::create_directory(f.DataPath());
     }},
    {"TableMissing", [](DataFileFixture& f) { f.Sql("DROP TABLE HighScores"); }},
    {"LockedByAnotherGame", [](DataFileFixture& f) { f.HoldLock("BEGIN EXCLUSIVE"); }},
};

class UnusableFileTest : public DataFileFixture, public ::testing::WithParamInterface<Damage> {};

TEST_P(UnusableFileTest, CannotBeOpenedAndIsLeftAlone)
{
    MakeFreshFile();
    Sql(RememberedSetup);
    GetParam().apply(*this);
    const std::string bytes = Bytes();
    const fs::file_type type = fs::symlink_status(DataPath()).type();

    EXPECT_FALSE(OpenDataFile(true));
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "There was an error opening the\r\ndata file. Please make sure "
                                "the file\r\n'Zarvo.dat' exists in this directory.");
    EXPECT_EQ(messages[0].style, vbOKOnly | vbCritical);
    EXPECT_EQ(messages[0].title, "Zarvo - Data File Error");

    gPlayerNames.ReDim(2, "left over");
    SetupMarks marks;
    LoadSetup(marks);
    EXPECT_TRUE(marks.AnimateRolling && !marks.RememberPlayers && !marks.UseKeyboard);
    EXPECT_EQ(gPlayerNames.UBound(), 1);
    EXPECT_EQ(gPlayerNames[1], "< Player 1 >");
    SaveSetup({true, true, true, true});

    EXPECT_EQ(messages.size(), 1u) << "the saved setup never tells the user";
    EXPECT_EQ(Bytes(), bytes);
    EXPECT_EQ(fs::symlink_status(DataPath()).type(), type);
}

INSTANTIATE_TEST_SUITE_P(Damaged, UnusableFileTest, ::testing::ValuesIn(Unusable),
                         [](const auto& info) { return std::string(info.param.name); });

using OddFileTest = DataFileFixture;

TEST_F(OddFileTest, MissingColumnsFailOnlyTheWorkThatNeedsThem)
{
    MakeFreshFile();
    Sql("DROP TABLE Setup; CREATE TABLE Setup (RememberPlayers, UseKeyboard, ShowScoringPreview);"
        "INSERT INTO Setup VALUES (-1, -1, -1); INSERT INTO PlayersInUse VALUES (1, 'Ann');"
        "ALTER TABLE Player DROP COLUMN GamesPlayed;");
    const std::string bytes = Bytes();
    SetupMarks marks;
    LoadSetup(marks);
    EXPECT_FALSE(marks.RememberPlayers);
    EXPECT_EQ(gPlayerNames[1], "< Player 1 >");
    SaveSetup({true, true, true, true});
    EXPECT_EQ(Bytes(), bytes);

    ASSERT_TRUE(OpenDataFile(false));
    EXPECT_EQ(OpenPlayerStatistics(PlaceholderRowName).RecordCount(), 0);
    EXPECT_TRUE(AddPlayer("Amy"));
    EXPECT_EQ(KnownPlayerNames(), std::vector<std::string>{"Amy"});
}

TEST_F(OddFileTest, EmptyValuesReadAsNothingAndAreWrittenOver)
{
    // An empty figure is no record yet; an empty option is no. The Player table here is one
    // made without the column rules of a fresh file.
    MakeFreshFile();
    Sql("INSERT INTO Setup VALUES (NULL, NULL, NULL, NULL);"
        "INSERT INTO PlayersInUse VALUES (NULL, NULL);"
        "DROP TABLE Player;"
        "CREATE TABLE Player (PlayerName, HighScore, LowScore, AverageScore, GamesPlayed);"
        "INSERT INTO Player VALUES ('< Player >', 0, 9999, 0, 0), ('Nil', NULL, NULL, NULL, NULL);"
        "UPDATE HighScores SET Player = NULL, Score = NULL, Date = NULL;");
    SetupMarks marks;
    LoadSetup(marks);
    EXPECT_FALSE(marks.AnimateRolling || marks.RememberPlayers);

    ASSERT_TRUE(OpenDataFile(false));
    Recordset statistics = OpenPlayerStatistics("Nil");
    ASSERT_GT(statistics.RecordCount(), 0);
    statistics.MoveFirst();
    EXPECT_TRUE(UpdateLowScore(statistics, 120));
    EXPECT_TRUE(UpdateHighScore(statistics, 120));
    EXPECT_TRUE(CountGame(statistics, 120));
    EXPECT_EQ(Rows("SELECT HighScore, LowScore, AverageScore, GamesPlayed FROM Player "
                   "WHERE PlayerName = 'Nil'"),
              (Table{{"120", "120", "120.0", "1"}}));

    Recordset highScores = OpenHighScoresForDialog();
    ASSERT_EQ(highScores.RecordCount(), 10);
    highScores.MoveFirst();
    EXPECT_EQ(highScores.Fields("Player").Value.CStr(), "");
    EXPECT_EQ(highScores.Fields("Score").Value.CInt(), 0);
    EXPECT_TRUE(OverwriteHighScore(highScores, "Amy", 200, DateTime{}));
}

TEST_F(OddFileTest, NumbersBeyondSixteenBitsKeepTheirSideOfEveryComparison)
{
    // A hand-made record far above any game stays unbeaten instead of wrapping around.
    MakeFreshFile();
    Sql("UPDATE Player SET HighScore = 99999, LowScore = -99999;"
        "UPDATE HighScores SET Score = 70000 WHERE Player = 'Isadora';");
    ASSERT_TRUE(OpenDataFile(false));
    Recordset statistics = OpenPlayerStatistics(PlaceholderRowName);
    statistics.MoveFirst();
    EXPECT_FALSE(UpdateHighScore(statistics, 32767));
    EXPECT_FALSE(UpdateLowScore(statistics, -32768));

    Recordset highScores = OpenHighScoresLowestFirst();
    std::int16_t last = 0;
    for (highScores.MoveFirst(); !highScores.Eof(); highScores.MoveNext())
        last = highScores.Fields("Score").Value.CInt();
    EXPECT_EQ(last, 32767);
}

TEST_F(OddFileTest, AFileHeldByAnotherGameIsReadButNotWritten)
{
    MakeFreshFile();
    Sql(RememberedSetup);
    HoldLock("BEGIN IMMEDIATE");
    const std::string bytes = Bytes();
    SetupMarks marks;
    LoadSetup(marks);
    EXPECT_EQ(gPlayerNames[1], "Ann");
    SaveSetup({});
    EXPECT_EQ(Bytes(), bytes);
}

TEST_F(OddFileTest, AFileHeldForAMomentIsWaitedFor)
{
    // Another game's short piece of work must not cost this one its saved setup.
    MakeFreshFile();
    Sql(RememberedSetup);
    HoldLock("BEGIN EXCLUSIVE");
    std::thread release = ReleaseLockAfter(std::chrono::milliseconds(300));
    SetupMarks marks;
    LoadSetup(marks);
    release.join();
    EXPECT_EQ(gPlayerNames[1], "Ann");
}

TEST_F(OddFileTest, FileModesDecideBetweenReadOnlyAndUnusable)
{
    // Read-only: the players come back, nothing is written. Unreadable: cannot be opened.
    MakeFreshFile();
    Sql(RememberedSetup);
    FileModesHold modes;
    if (!modes.Active())
        GTEST_SKIP() << "running as root, and root's file overrides could not be dropped";

    fs::permissions(DataPath(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    const std::string bytes = Bytes();
    SetupMarks marks;
    LoadSetup(marks);
    EXPECT_EQ(gPlayerNames[1], "Ann");
    SaveSetup({});
    ASSERT_TRUE(OpenDataFile(false));
    EXPECT_FALSE(AddPlayer("Amy"));
    CloseDataFile();
    EXPECT_EQ(Bytes(), bytes);

    fs::permissions(DataPath(), fs::perms::none);
    EXPECT_FALSE(OpenDataFile(true));
    EXPECT_EQ(messages.size(), 1u);
}
}
