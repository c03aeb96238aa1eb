// The options and players kept from one run to the next, whatever file lies beside the program: a usable
// file gives them back and takes the new ones; any other costs no game, is told once, and keeps every byte.
#include <map>

#include "DataFileFixture.h"
#include "Rows.h"

namespace {
using Kept = std::tuple<bool, bool, bool, bool, Names>;  // the four marks and the seats
const Kept Saved{true, false, true, false, {"Amy", "< Player 2 >", "Cy", "D", "E", "F", "G", "< Player 8 >"}};
const std::string Rows = "INSERT INTO Setup VALUES (-1, -1, -1, 0); INSERT INTO PlayersInUse VALUES (1, 'Ann');";

// What LoadSetup gives, over seats left from before.
Kept Loaded()
{
    SetupMarks m;
    gPlayerNames.ReDim(2, "left over"), LoadSetup(m);
    return {m.RememberPlayers, m.UseKeyboard, m.ShowScoringPreview, m.AnimateRolling,
            Names(&gPlayerNames[1], &gPlayerNames[1] + gPlayerNames.UBound())};
}

class SavedSetupTest : public DataFileFixture, public ::testing::WithParamInterface<Words> {};
using F = SavedSetupTest;
const std::map<std::string, void (*)(F&)> Damages = {   // done to a file
    {"-", [](F&) {}},
    {"locked-for-a-moment", [](F& f) { f.Lock("BEGIN EXCLUSIVE", 200); }},
    {"readonly", [](F& f) { f.Chmod(0444); }},
    {"readonly-folder", [](F& f) { f.Chmod(0666, 0555); }},
    {"write-locked", [](F& f) { f.Lock("BEGIN IMMEDIATE"); }},
    {"removed", [](F& f) { fs::remove(f.DataPath()); }},
    {"emptied", [](F& f) { f.WriteBytes(""); }},
    {"not-a-database", [](F& f) { f.WriteBytes(std::string(8192, 'Z')); }},
    {"truncated", [](F& f) { f.WriteBytes(f.Bytes().substr(0, 8192)); }},
    {"page-overwritten", [](F& f) { f.WriteBytes(f.Bytes().replace(3 * 4096 + 8, 512, 512, 'Z')); }},
    {"table-dropped", [](F& f) { f.Sql("DROP TABLE HighScores"); }},
    {"directory", [](F& f) { fs::remove(f.DataPath()), fs::create_directory(f.DataPath()); }},
    {"unreadable", [](F& f) { f.Chmod(0); }},
    {"locked", [](F& f) { f.Lock("BEGIN EXCLUSIVE"); }}};

// SavedSetup.txt: load, save, load. A write into a file that cannot take it could cost every record it holds.
TEST_P(SavedSetupTest, GameGoesOnAndOnlyAUsableFileIsWritten)
{
    const Words& c = GetParam();
    const bool opens = c[3] == "opens", saves = c[4] == "saves";
    const Kept loads{c[5][0] == '1', c[5][1] == '1', c[5][2] == '1', c[5][3] == '1', Split(c[5].substr(5), '|')};
    MakeFreshFile();
    Sql(c[1].rfind("Rows", 0) == 0 ? Rows + c[1].substr(4) : c[1]);
    Damages.at(c[2])(*this);
    if (IsSkipped())
        return;
    const auto state = [this] { return std::tuple(Bytes(), fs::symlink_status(DataPath()).type(), Listing()); };
    const auto before = state();
    EXPECT_EQ(OpenDataFile(true), opens);
    CloseDataFile();
    EXPECT_EQ(Loaded(), loads);
    SaveSetupWith({true, false, true, false}, std::get<Names>(Saved));  // rewrites the tables, never appends
    EXPECT_EQ(Loaded(), saves ? Saved : loads);
    EXPECT_TRUE(saves || state() == before) << "the file changed, or a journal was left";
    // Only OpenDataFile(true) tells the user, in exactly these words.
    const Message error{"There was an error opening the\r\ndata file. Please make sure the file\r\n"
                        "'Zarvo.dat' exists in this directory.", vbOKOnly | vbCritical, "Zarvo - Data File Error"};
    EXPECT_EQ(messages, std::vector<Message>(opens ? 0 : 1, error));
}

INSTANTIATE_TEST_SUITE_P(Files, SavedSetupTest, ::testing::ValuesIn(ReadRows(ZARVO_TEST_DATA "/store/SavedSetup.txt")),
                         [](const auto& info) { return info.param[0]; });
}
