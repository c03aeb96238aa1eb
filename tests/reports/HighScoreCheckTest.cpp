// CheckHighScore on temporary data files: which total gets in, which row it replaces, who is told.
#include <functional>
#include <utility>

#include "DataFileFixture.h"
#include "HighScoreCheck.h"
#include "HighScoreLines.h"
#include "PlayerStatistics.h"
#include "modCommon.h"

namespace {
// The notify window answers with a quote behind the offered name; it must reach the file as it stands. While the
// first name box waits, another copy of the game, with a connection of its own, may end its cards.
struct RecordingDialogs : HighScoreDialogs {
    Names shown;
    std::function<void()> otherCopy = [] {};
    void ShowHighScoreNotify() override
    {
        const std::string offered = gHighScoreName;
        const Database ours = gDataDatabase;
        shown.push_back(offered), std::exchange(otherCopy, [] {})();
        gDataDatabase = ours, gHighScoreName = offered + "'s";
    }
    void ShowHighScores() override { shown.push_back("table"); }
};

using F = DataFileFixture;
const std::string Fresh = "Ottilie|248;Bramwell|231;Quince|219;Marisol|207;Fenwick|196;Ludmila|188;Tobiah|175;Wren|163;"
                          "Castor|150;Isadora|142";
const std::string UpToWren = Fresh.substr(0, Fresh.find("Wren")), OpenError = "There was an error opening the data file.";
const Names Two{"< Player 1 >", "< Player 2 >"};
// Race: the later players are another copy of the game on the same file, ending their cards in the first name box.
// Refuse: makes the file one that can be read but takes no writes.
struct Case { const char* damage; Names players; std::vector<int> totals; Names shown; std::string table, message{};
              bool race = false; void (*refuse)(F&) = nullptr; };
const Case Cases[] = {
    // Each player meets the table as the one before left it; equal to the lowest is not enough.
    {"", {"Ann", "< Player 2 >", "< Player 3 >"}, {160, 150, 151}, {"Ann", "table", "Player 3", "table"},
     Fresh.substr(0, Fresh.find("Castor")) + "Ann's|160;Player 3's|151"},
    // The first entry goes over the row that is lowest when it is written, so both stand; or, when the other
    // entry has lifted the lowest above it, it is not written at all.
    {"", {"Ann", "Bo"}, {160, 170}, {"Ann", "Bo", "table", "table"}, UpToWren + "Bo's|170;Wren|163;Ann's|160", "", true},
    {"", {"Ann", "Bo"}, {145, 170}, {"Ann", "Bo", "table", "table"}, UpToWren + "Bo's|170;Wren|163;Castor|150", "", true},
    // A file without its Setup table cannot be opened, as a missing one: told once, to the first player.
    {"DROP TABLE Setup", Names(8, "< Player 1 >"), std::vector<int>(8, 300), {}, Fresh, OpenError},
    // So is one that takes no writes, and nobody types a name for nothing; the statistics hide the all-time line.
    {"", Two, {300, 300}, {}, Fresh, OpenError, false, [](F& f) { f.Chmod(0444); }},
    {"", Two, {300, 300}, {}, Fresh, OpenError, false, [](F& f) { f.Chmod(0666, 0555); }},   // no journal beside it
    {"", Two, {300, 300}, {}, Fresh, OpenError, false, [](F& f) { f.Lock("BEGIN IMMEDIATE"); }},   // another copy writes
    // A write refused after the name was typed is told to the player, and the table still shows.
    {"CREATE TRIGGER No BEFORE UPDATE ON HighScores BEGIN SELECT RAISE(ABORT, ''); END", {"< Player 1 >"}, {300},
     {"Player 1", "table"}, Fresh, "There was an error writing the data file."},
};

struct CheckHighScoreTest : DataFileFixture, ::testing::WithParamInterface<Case> {};
}

TEST_P(CheckHighScoreTest, BeatsTheLowestStrictlyAndReplacesItInPlace)
{
    const Case& c = GetParam();
    MakeFreshFile(), SetClock([] { return DateTime{2026, 5, 4, 21, 15, 9}; }), Sql(c.damage);
    if (c.refuse && (c.refuse(*this), IsSkipped()))
        return;
    const std::string file = Bytes() + Listing();
    const int last = int(c.players.size()), alone = c.race ? 1 : last;
    gPlayerNames.ReDim(last), gScores.ReDim(last), ClearScoreboard(), ClearSessionStats();
    for (int p = 1; p <= last; ++p)   // each card full
        gPlayerNames[p] = c.players[p - 1], gScores[p][CatChance] = std::int16_t(c.totals[p - 1]);
    EXPECT_TRUE(!c.refuse || !CountGameResults(1).AllTime);
    RecordingDialogs dialogs;
    dialogs.otherCopy = [&] { for (int p = alone + 1; p <= last; ++p) CheckHighScore(p, dialogs); };
    for (int p = 1; p <= alone; ++p)
        CheckHighScore(p, dialogs);
    EXPECT_EQ(dialogs.shown, c.shown);
    EXPECT_EQ(Sql("SELECT Player, Score FROM HighScores ORDER BY Score DESC, Player"), c.table);
    EXPECT_EQ(Sql("SELECT count(*) FROM HighScores WHERE (Player LIKE '%''s') <> (Date IS '2026-05-04 21:15:09')"),
              "0");   // every entry, and nothing else, carries the moment it was made
    const Message notSaved{c.message + "\r\nHigh scores will not be saved.", 16, "Zarvo - Data File Error"};
    EXPECT_EQ(messages, c.message.empty() ? std::vector<Message>{} : std::vector{notSaved});
    EXPECT_TRUE(c.table != Fresh || Bytes() + Listing() == file) << "nothing entered, yet the file changed";
}
INSTANTIATE_TEST_SUITE_P(HighScores, CheckHighScoreTest, ::testing::ValuesIn(Cases));

// The table as the High Scores window shows it, best first: the older of two equal scores above,
// today's entries bold but not this day of another year, a value that cannot be read blank, missing
// rows empty. A file edited by hand to hold eleven rows still shows ten.
TEST_F(F, HighScoreLinesBestFirst)
{
    MakeFreshFile();
    Sql("DELETE FROM HighScores; INSERT INTO HighScores VALUES ('Gus', NULL, '2024-07-09 10:00'), ('Ivy', 160, 'soon'),"
        "('Cy', 200, '2025-05-04 21:15'), ('Ann', 300, '2026-05-04 00:00:01'), ('Hal', 'lots', '2024-02-29 10:00'),"
        "('Bo', 200, '2026-05-04 09:00')");
    const auto shown = [] {
        std::string all;
        EXPECT_TRUE(OpenDataFile(false));
        for (const HighScoreLine& l : ReadHighScoreLines({2026, 5, 4}))
            all += l.player + "|" + l.score + "|" + l.date + (l.bold ? "*;" : ";");
        return CloseDataFile(), all;
    };
    EXPECT_EQ(shown(), "||;||;||;||;Hal||Feb. 29, 2024;Ann|300|May. 4, 2026*;Cy|200|May. 4, 2025;Bo|200|May. 4, 2026*;"
                       "Ivy|160|;Gus||Jul. 9, 2024;");
    Sql("INSERT INTO HighScores SELECT * FROM HighScores LIMIT 5");
    EXPECT_EQ(shown().substr(0, 4), "Hal|") << "ten of eleven, read from the lowest up: the tenth on top";
}
