// CheckHighScore on temporary data files: which total gets in, which row it replaces, who is told.
#include <functional>
#include <sstream>
#include <utility>

#include "DataFileFixture.h"
#include "HighScoreCheck.h"
#include "HighScoreLines.h"
#include "PlayerStatistics.h"
#include "Rows.h"
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

struct CheckHighScoreTest : DataFileFixture, ::testing::WithParamInterface<Words> {};
}

// HighScores.txt: which total gets in, which row it replaces, who is told.
TEST_P(CheckHighScoreTest, BeatsTheLowestStrictlyAndReplacesItInPlace)
{
    const Words& c = GetParam();
    const std::string table = c[6] == "fresh" ? Fresh : c[6], refuse = c[1];
    MakeFreshFile(), SetClock([] { return DateTime{2026, 5, 4, 21, 15, 9}; }), Sql(c[0]);
    refuse == "readonly" ? Chmod(0444) : refuse == "readonly-folder" ? Chmod(0666, 0555) : refuse == "locked" ? Lock("BEGIN IMMEDIATE") : void();
    if (IsSkipped())
        return;
    const std::string file = Bytes() + Listing();
    const Names players = Split(c[3], '|');
    const int last = int(players.size()), alone = c[2] == "race" ? 1 : last;
    gPlayerNames.ReDim(last), gScores.ReDim(last), ClearScoreboard(), ClearSessionStats();
    std::istringstream totals(c[4]);
    for (int p = 1; p <= last; ++p, totals.ignore())   // each card full
        gPlayerNames[p] = players[p - 1], totals >> gScores[p][CatChance];
    EXPECT_TRUE(refuse == "-" || !CountGameResults(1).AllTime);
    RecordingDialogs dialogs;
    dialogs.otherCopy = [&] { for (int p = alone + 1; p <= last; ++p) CheckHighScore(p, dialogs); };
    for (int p = 1; p <= alone; ++p)
        CheckHighScore(p, dialogs);
    EXPECT_EQ(dialogs.shown, Split(c[5], '|'));
    EXPECT_EQ(Sql("SELECT Player, Score FROM HighScores ORDER BY Score DESC, Player"), table);
    EXPECT_EQ(Sql("SELECT count(*) FROM HighScores WHERE (Player LIKE '%''s') <> (Date IS '2026-05-04 21:15:09')"),
              "0");   // every entry, and nothing else, carries the moment it was made
    const Message notSaved{c[7] + "\r\nHigh scores will not be saved.", 16, "Zarvo - Data File Error"};
    EXPECT_EQ(messages, c[7].empty() ? std::vector<Message>{} : std::vector{notSaved});
    EXPECT_TRUE(table != Fresh || Bytes() + Listing() == file) << "nothing entered, yet the file changed";
}
INSTANTIATE_TEST_SUITE_P(HighScores, CheckHighScoreTest, ::testing::ValuesIn(ReadRows(ZARVO_TEST_DATA "/reports/HighScores.txt")));

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
