// CheckHighScore on temporary data files: which total gets in, which row it replaces, who is told.
#include "DataFileFixture.h"
#include "HighScoreCheck.h"
#include "modCommon.h"

namespace {
// The notify window answers with a quote behind the offered name; it must reach the file as it stands.
struct RecordingDialogs : HighScoreDialogs {
    Names shown;
    void ShowHighScoreNotify() override { shown.push_back(gHighScoreName), gHighScoreName += "'s"; }
    void ShowHighScores() override { shown.push_back("table"); }
};

const DateTime Stamp{2026, 5, 4, 21, 15, 9};
const std::string Fresh = "Ottilie|248;Bramwell|231;Quince|219;Marisol|207;Fenwick|196;Ludmila|188;Tobiah|175;Wren|163;"
                          "Castor|150;Isadora|142";
const Names One{"< Player 1 >"};
struct Case { const char *name, *damage; Names players; std::vector<int> totals; Names shown;
              std::string table, message{}; };
void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }
const Case Cases[] = {
    {"EqualToTheLowestIsNotEnough", "", One, {142}, {}, Fresh},
    {"OneAbove", "", One, {143}, {"Player 1", "table"}, Fresh.substr(0, Fresh.find("Isadora")) + "Player 1's|143"},
    {"LaterPlayersMeetTheTableAsLeft", "", {"Ann", "< Player 2 >", "Bo"}, {160, 145, 151},
     {"Ann", "table", "Bo", "table"}, Fresh.substr(0, Fresh.find("Castor")) + "Ann's|160;Bo's|151"},
    // An empty score counts as the lowest, text as the highest; a missing row stays missing.
    {"DamagedTable", "UPDATE HighScores SET Score = NULL WHERE Player = 'Wren'; UPDATE HighScores SET Score = 'lots' "
     "WHERE Player = 'Quince'; DELETE FROM HighScores WHERE Player = 'Ottilie'", One, {143}, {"Player 1", "table"},
     "Quince|lots;Bramwell|231;Marisol|207;Fenwick|196;Ludmila|188;Tobiah|175;Castor|150;Player 1's|143;Isadora|142"},
    // A file without its Setup table cannot be opened, as a missing one.
    {"UnopenedFileToldOnceToTheFirstPlayer", "DROP TABLE Setup", Names(8, "< Player 1 >"), std::vector<int>(8, 300), {},
     Fresh, "There was an error opening the data file."},
    {"RefusedWriteToldToThePlayer", "CREATE TRIGGER No BEFORE UPDATE ON HighScores BEGIN SELECT RAISE(ABORT, '');"
     "END", One, {300}, {"Player 1", "table"}, Fresh, "There was an error writing the data file."},
};

struct CheckHighScoreTest : DataFileFixture, ::testing::WithParamInterface<Case> {
    void SetUp() override { DataFileFixture::SetUp(), MakeFreshFile(), SetClock([] { return Stamp; }); }
};
}

TEST_P(CheckHighScoreTest, BeatsTheLowestStrictlyAndReplacesItInPlace)
{
    const Case& c = GetParam();
    Sql(c.damage);
    gPlayerNames.ReDim(int(c.players.size())), gScores.ReDim(gPlayerNames.UBound()), ClearScoreboard();
    for (int p = 1; p <= gPlayerNames.UBound(); ++p)
        gPlayerNames[p] = c.players[p - 1], gScores[p][CatChance] = std::int16_t(c.totals[p - 1]);
    RecordingDialogs dialogs;
    for (int p = 1; p <= gPlayerNames.UBound(); ++p)
        CheckHighScore(p, dialogs);
    EXPECT_EQ(dialogs.shown, c.shown);
    EXPECT_EQ(Sql("SELECT Player, Score FROM HighScores ORDER BY Score DESC, Player"), c.table);
    EXPECT_EQ(Sql("SELECT count(*) FROM HighScores WHERE (Player LIKE '%''s') <> (Date IS '2026-05-04 21:15:09')"),
              "0");   // every entry, and nothing else, carries the moment it was made
    const Message notSaved{c.message + "\r\nHigh scores will not be saved.", 16, "Zarvo - Data File Error"};
    EXPECT_EQ(messages, c.message.empty() ? std::vector<Message>{} : std::vector{notSaved});
}
INSTANTIATE_TEST_SUITE_P(HighScores, CheckHighScoreTest, ::testing::ValuesIn(Cases));
