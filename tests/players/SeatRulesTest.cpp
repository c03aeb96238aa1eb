// The eight seats: how the dialog comes up from the current players, and the exchange of names
// between the boxes on every pick.
#include <random>
#include <set>

#include "PlayersFixture.h"

namespace {
const std::string None = "< None >";
std::string Own(int box) { return "< Player " + std::to_string(box + 1) + " >"; }

// The visible boxes, "|" between them; in a box "_" is "< None >", "P" its placeholder, and
// "*" marks the selected entry.
std::string Boxes(const PlayerSelection& s)
{
    std::string text;
    for (int i = 0; i < MaxPlayers; ++i) {
        if (!s.cboPlayer[i].Visible)
            continue;
        text += text.empty() ? "" : " | ";
        for (int k = 0; k < int(s.cboPlayer[i].List.size()); ++k) {
            const std::string& entry = s.cboPlayer[i].List[k];
            text += std::string(k ? "," : "") + (k == s.cboPlayer[i].ListIndex ? "*" : "")
                    + (entry == None ? "_" : entry == Own(i) ? "P" : entry);
        }
    }
    return text;
}

struct SeatCase {
    const char* what;
    Names players;
    std::vector<std::pair<int, std::string>> picks;
    std::string boxes;
    int growth;
};
const SeatCase SeatCases[] = {
    {"one player", {"< Player 1 >"}, {}, "*P,1up,bob,Cy | *_,P,1up,bob,Cy", 0},
    {"eight players", {"Cy", "< Player 2 >", "< Player 3 >", "< Player 4 >", "< Player 5 >", "< Player 6 >",
                       "< Player 7 >", "bob"}, {},
     "P,1up,*Cy | *P,1up | *P,1up | *P,1up | *P,1up | *P,1up | *P,1up | _,P,1up,*bob", 2160},
    {"last seat given up; its name, with a digit first, comes back ahead of the markers",
     {"Cy", "bob", "1up"}, {{2, None}}, "1up,P,*Cy | _,1up,P,*bob | *_,P,1up", 360},
    {"a name replaces a name", {"Cy", "bob"}, {{0, "1up"}}, "P,*1up,Cy | _,P,Cy,*bob | *_,P,Cy", 360},
    {"the same value again, then a placeholder instead of a name", {"Cy", "bob"},
     {{0, "Cy"}, {1, "< Player 2 >"}}, "P,1up,*Cy,bob | _,*P,1up,bob | *_,P,1up,bob", 360},
    {"a name no longer in the file keeps its seat; a name twice takes a placeholder",
     {"Dee", "bob", "bob"}, {}, "P,1up,Cy,*Dee | P,1up,*bob,Cy | _,*P,1up,Cy | *_,P,1up,Cy", 720},
};
}

// Each case against the seat table worked out by hand; Play reads the seats up to "< None >".
TEST_F(PlayersTest, SeatsExchangeTheirNames)
{
    for (const SeatCase& c : SeatCases) {
        SCOPED_TRACE(c.what);
        dialog = PlayerSelection();
        Load(c.players);
        for (const auto& [box, value] : c.picks)
            Pick(box, value);
        EXPECT_EQ(Boxes(dialog), c.boxes);
        EXPECT_EQ(dialog.Growth, c.growth);
    }
    dialog.ReadSeats();
    EXPECT_EQ(Seated(), (Names{"Dee", "bob", "< Player 3 >"}));
}

// Random picks, adds and removes: after every step the four rules hold, the dialog's growth fits
// its open boxes, and Play reads exactly the taken seats.
TEST_F(PlayersTest, TheRulesHoldAfterEveryStep)
{
    Load({"bob"});
    std::mt19937 random(20240611);
    for (int step = 0; step < 600; ++step) {
        const int what = int(random() % 20), box = int(random() % MaxPlayers);
        std::string name = std::string(1, char('A' + random() % 4)) + "x";
        if (what == 0)
            dialog.cmdAdd_Click(name);
        else if (what == 1)
            dialog.cmdRemove_Click(name);
        else if (dialog.cboPlayer[box].Visible)
            dialog.SetListIndex(box, int(random() % dialog.cboPlayer[box].List.size()));
        const std::string known = Sql("SELECT PlayerName FROM Player WHERE PlayerName <> '< Player >'");
        int taken = 0;
        while (taken < MaxPlayers && dialog.cboPlayer[taken].ListIndex >= 0 && dialog.cboPlayer[taken].Text() != None)
            ++taken;
        SCOPED_TRACE("step " + std::to_string(step) + ": " + Boxes(dialog));
        ASSERT_GE(taken, 1);
        for (int i = 0; i < MaxPlayers; ++i) {
            const ItemList& b = dialog.cboPlayer[i];
            const bool offersNone = i > 0 && (i == taken || i == taken - 1);
            std::multiset<std::string> expected{Own(i)};
            if (offersNone)
                expected.insert(None);
            for (std::size_t at = 0, end; at < known.size(); at = end + 1) {
                end = std::min(known.find(';', at), known.size());
                const std::string n = known.substr(at, end - at);
                if (std::none_of(dialog.cboPlayer.begin(), dialog.cboPlayer.end(),
                                 [&](const ItemList& other) { return &other != &b && other.Text() == n; }))
                    expected.insert(n);
            }
            EXPECT_EQ(std::multiset<std::string>(b.List.begin(), b.List.end()), expected) << "box " << i;
            EXPECT_EQ(b.Visible, i <= taken || i < 2) << "box " << i;
            EXPECT_EQ(dialog.lstSelected[i], i < taken ? b.Text() : None) << "box " << i;
            if (i == taken)
                EXPECT_EQ(b.Text(), None);
            if (i > taken)
                EXPECT_EQ(b.ListIndex, -1) << "box " << i;
        }
        EXPECT_EQ(dialog.Growth, 360 * (std::min(taken + 1, MaxPlayers) - 2));
        dialog.ReadSeats();
        EXPECT_EQ(gPlayerNames.UBound(), taken);
    }
}
