// The player dialog's rules on plain lists, over a data file that knows "Cy", "1up" and "bob".
#include "../store/DataFileFixture.h"
#include "PlayerSelection.h"

const std::string None = "< None >";
std::string Own(int box) { return "< Player " + std::to_string(box + 1) + " >"; }

class PlayerRules : public DataFileFixture {
public:
    void SetUp() override
    {
        DataFileFixture::SetUp();
        MakeFreshFile();
        Sql("INSERT INTO Player (PlayerName) VALUES ('Cy'), ('1up'), ('bob')");
        SetMsgBoxHandler([this](auto&&... message) { return messages.emplace_back(message...), answer; });
    }
    void Load(const Names& players) { SaveSetupWith({}, players); dialog = PlayerSelection(); dialog.Form_Load(); }
    // The visible boxes: "_" is "< None >", "P" the box's placeholder, "*" the selection; growth.
    std::string Boxes() const
    {
        std::string text;
        for (int i = 0; i < MaxPlayers; ++i)
            for (int k = 0; dialog.cboPlayer[i].Visible && k < int(dialog.cboPlayer[i].List.size()); ++k) {
                const std::string& entry = dialog.cboPlayer[i].List[k];
                text += std::string(k ? "," : i ? " | " : "") + (k == dialog.cboPlayer[i].ListIndex ? "*" : "")
                        + (entry == None ? "_" : entry == Own(i) ? "P" : entry);
            }
        return text + " +" + std::to_string(dialog.Growth);
    }

    PlayerSelection dialog;
    int answer = vbYes;
};

// Each case against its seats worked out by hand: a name sits in one box only, "< None >" is offered only
// where the last player can go or come, and the dialog grows a step per open box beyond two.
TEST_F(PlayerRules, SeatsExchangeTheirNames)
{
    const std::tuple<Names, std::vector<std::pair<int, std::string>>, std::string> cases[] = {
        {{Own(0)}, {}, "*P,1up,bob,Cy | *_,P,1up,bob,Cy +0"},
        {{"Cy", Own(1), Own(2), Own(3), Own(4), Own(5), Own(6), "bob"}, {},
         "P,1up,*Cy | *P,1up | *P,1up | *P,1up | *P,1up | *P,1up | *P,1up | _,P,1up,*bob +2160"},
        // The last seat given up: its name, a digit first, goes back ahead of the markers.
        {{"Cy", "bob", "1up"}, {{2, None}}, "1up,P,*Cy | _,1up,P,*bob | *_,P,1up +360"},
        // The same value again; a name for a name; a placeholder for a name.
        {{"Cy", "bob"}, {{0, "Cy"}, {0, "1up"}, {1, Own(1)}}, "P,*1up,Cy,bob | _,*P,Cy,bob | *_,P,Cy,bob +360"},
        // A name gone from the file keeps its seat; a name twice gets the seat's placeholder.
        {{"Dee", "bob", "bob"}, {}, "P,1up,Cy,*Dee | P,1up,*bob,Cy | _,*P,1up,Cy | *_,P,1up,Cy +720"},
    };
    for (const auto& [players, picks, boxes] : cases) {
        Load(players);
        for (const auto& [box, value] : picks)
            dialog.SetListIndex(box, FindListItem(value, dialog.cboPlayer[box]));
        EXPECT_EQ(Boxes(), boxes);
    }
}

// Adds and Removes in a row: the messages, the names then in file and cboAddRemove, the text left. A file that takes
// no writes, held by another copy of the game ('W') or read-only ('O'), gets the message of a missing one and keeps its names.
TEST_F(PlayerRules, AddAndRemoveAnswerAndChangeListsAndFile)
{
    const std::string q = "O'Hara \"Jr\"", withQ = "Cy;1up;bob;" + q + " / 1up," + q + ",bob,Cy";
    const Message sure{"Are you sure you want to delete\r\nthis player? All saved information\r\n"
                       "for the player will be lost.", 292, "Zarvo - Confirm Delete"};
    const std::string noFile = "There is an error in the data file.\r\nThe ", known = "Cy;1up;bob / 1up,bob,Cy";
    const std::string cannot = "Zarvo - Cannot Remove", noOpen = "Zarvo - Cannot Open Data File";
    std::tuple<char, std::string, int, std::vector<Message>, std::string, std::string> steps[] = {
        {'A', "   ", vbOK, {{"Please enter a name to add.", 48, "Zarvo - Please Enter a Name"}}, known, ""},
        {'A', " " + q + "  ", vbOK, {}, withQ, q},
        {'A', q, vbOK, {{"Cannot add player; the player already exists.", 0, "Zarvo - Already Have Player"}}, withQ, q},
        {'R', "< Player >", vbOK, {{"Player not found - cannot remove player.", 64, cannot}}, withQ, "< Player >"},
        {'R', "bob", vbOK, {{"Cannot remove a player\r\nthat is currently selected.", 64, cannot}}, withQ, "bob"},
        {'R', q, vbNo, {sure}, withQ, q},
        {'R', q, vbYes, {sure}, known, q},
        {'W', "", vbOK, {}, known, ""},
        {'A', "Al", vbOK, {{noFile + "information will not be saved.", 16, noOpen}}, "Cy;1up;bob / 1up,Al,bob,Cy", "Al"},
        {'O', "", vbOK, {}, "Cy;1up;bob / 1up,Al,bob,Cy", ""},
        {'R', "1up", vbYes, {sure, {noFile + "removal will not be saved.", 16, noOpen}}, "Cy;1up;bob / Al,bob,Cy", "1up"},
    };
    Load({"Cy", "bob"});
    for (auto& [action, text, answered, asked, lists, left] : steps) {
        messages.clear(), answer = answered;
        action == 'A' ? dialog.cmdAdd_Click(text) : action == 'R' ? dialog.cmdRemove_Click(text)
            : action == 'W' ? Lock("BEGIN IMMEDIATE") : (sqlite3_close(std::exchange(locker, nullptr)), Chmod(0444));
        std::string seen = Sql("SELECT PlayerName FROM Player WHERE rowid > 1");
        for (std::size_t k = 0; k < dialog.cboAddRemove.List.size(); ++k)
            seen += (k ? "," : " / ") + dialog.cboAddRemove.List[k];
        EXPECT_EQ(messages, asked) << text;
        EXPECT_EQ(seen + " [" + text + "]", lists + " [" + left + "]");
    }
}
