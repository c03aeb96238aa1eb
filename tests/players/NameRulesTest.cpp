// The list of known players: the keys a name may be typed with, and Add and Remove with their
// messages, in the dialog's lists and in the data file at once.
#include "PlayersFixture.h"

// Key, length of the text, selection start and length, and whether the key goes through.
TEST(NameKeys, TypedNamesStayShortAndPlain)
{
    struct Key { int key, length, start, selected; bool kept; };
    const Key keys[] = {
        {'a', 0, 0, 0, true}, {'Z', 5, 5, 0, true}, {'7', 11, 11, 0, true}, {' ', 3, 3, 0, true},
        {' ', 0, 0, 0, false}, {' ', 3, 0, 3, false},          // a blank at the start, selection or not
        {'x', 12, 12, 0, false}, {'x', 12, 4, 0, false},        // twelve characters are enough
        {8, 12, 12, 0, true}, {'x', 12, 0, 12, true},           // Backspace; typing over a selection
        {'-', 3, 3, 0, false}, {'\'', 3, 3, 0, false}, {'<', 0, 0, 0, false}, {233, 3, 3, 0, false},
        {'-', 3, 1, 2, true},
    };
    for (const Key& k : keys) {
        int code = k.key;
        cboAddRemove_KeyPress(code, k.length, k.start, k.selected);
        EXPECT_EQ(code, k.kept ? k.key : 0) << k.key << " " << k.length << " " << k.start << " " << k.selected;
    }
}

// A sequence of Adds and Removes: the message each gives (or none), the names then in the file
// and in cboAddRemove, and what became of the typed text.
TEST_F(PlayersTest, AddAndRemoveAnswerAndChangeListsAndFile)
{
    const std::string quoted = "O'Hara \"Jr\"";
    struct Step { char action; std::string text; int answer; Message asked; std::string file, list, after; };
    const Step steps[] = {
        {'A', "   ", vbOK, {"Please enter a name to add.", 48, "Zarvo - Please Enter a Name"}, "Cy;1up;bob", "1up,bob,Cy", ""},
        {'A', "  " + quoted + " ", vbOK, {}, "Cy;1up;bob;" + quoted, "1up," + quoted + ",bob,Cy", quoted},
        {'A', quoted, vbOK, {"Cannot add player; the player already exists.", 0, "Zarvo - Already Have Player"},
         "Cy;1up;bob;" + quoted, "1up," + quoted + ",bob,Cy", quoted},
        {'R', "< Player >", vbOK, {"Player not found - cannot remove player.", 64, "Zarvo - Cannot Remove"},
         "Cy;1up;bob;" + quoted, "1up," + quoted + ",bob,Cy", ""},
        {'R', "bob", vbOK, {"Cannot remove a player\r\nthat is currently selected.", 64, "Zarvo - Cannot Remove"},
         "Cy;1up;bob;" + quoted, "1up," + quoted + ",bob,Cy", ""},
        {'R', quoted, vbNo, {"Are you sure you want to delete\r\nthis player? All saved information\r\nfor the player will be lost.",
                             292, "Zarvo - Confirm Delete"}, "Cy;1up;bob;" + quoted, "1up," + quoted + ",bob,Cy", ""},
        {'R', quoted, vbYes, {"Are you sure you want to delete\r\nthis player? All saved information\r\nfor the player will be lost.",
                              292, "Zarvo - Confirm Delete"}, "Cy;1up;bob", "1up,bob,Cy", ""},
        {'A', "Ann", vbOK, {}, "Cy;1up;bob;Ann", "1up,Ann,bob,Cy", "Ann"},
    };
    Load({"Cy", "bob"});
    for (const Step& s : steps) {
        SCOPED_TRACE(s.text);
        messages.clear();
        answer = s.answer;
        std::string text = s.text;
        s.action == 'A' ? dialog.cmdAdd_Click(text) : dialog.cmdRemove_Click(text);
        EXPECT_EQ(messages, std::get<0>(s.asked).empty() ? std::vector<Message>{} : std::vector<Message>{s.asked});
        EXPECT_EQ(Sql("SELECT PlayerName FROM Player WHERE rowid > 1 ORDER BY rowid"), s.file);
        std::string list;
        for (const std::string& name : dialog.cboAddRemove.List)
            list += (list.empty() ? "" : ",") + name;
        EXPECT_EQ(list, s.list);
        if (s.action == 'A')
            EXPECT_EQ(text, s.after);
    }
    // Added in the dialog, the name joins the free seat's list at its place by character code,
    // and no selection moves.
    EXPECT_EQ(dialog.cboPlayer[0].List, (Names{"< Player 1 >", "1up", "Ann", "Cy"}));
    EXPECT_EQ(dialog.cboPlayer[0].Text(), "Cy");
}

// Without a file, Add and Remove still change the dialog's lists and say that the file won't.
TEST_F(PlayersTest, WithoutAFileTheListsChangeAndTheUserIsTold)
{
    Load({"Cy"});
    fs::remove(DataPath());
    std::string text = "Eve";
    dialog.cmdAdd_Click(text);
    EXPECT_NE(FindListItem("Eve", dialog.cboPlayer[1]), -1);
    dialog.cmdRemove_Click("Cy");
    dialog.cmdRemove_Click("1up");
    EXPECT_EQ(FindListItem("1up", dialog.cboPlayer[0]), -1);
    const Message fileError{"There is an error in the data file.\r\nThe information will not be saved.", 16,
                            "Zarvo - Cannot Open Data File"};
    ASSERT_EQ(messages.size(), 4u);
    EXPECT_EQ(messages[0], fileError);
    EXPECT_EQ(std::get<2>(messages[1]), "Zarvo - Cannot Remove");
    EXPECT_EQ(std::get<2>(messages[2]), "Zarvo - Confirm Delete");
    EXPECT_EQ(std::get<0>(messages[3]), "There is an error in the data file.\r\nThe removal will not be saved.");
    EXPECT_FALSE(fs::exists(DataPath())) << "the game never creates the file";
}
