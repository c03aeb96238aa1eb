#pragma once
// The rules of the player dialog frmPlayers on plain lists and flags: the eight seats and the
// exchange of names between them, and the list of known players kept in the data file. The
// window mirrors these lists into its controls after every step.
//
// With N seats taken, every step leaves:
//  1. boxes 0..N-1 holding a name or their placeholder; below eight seats box N visible on
//     "< None >"; the boxes above N hidden, with nothing selected and "< None >" in lstSelected;
//  2. boxes 0 and 1 visible;
//  3. "< None >" in no list of box 0, and in box i >= 1 exactly when i is N or N-1, so only
//     the last player can be dropped;
//  4. in every box its placeholder and every known name not selected in another box.
#include <array>
#include <string>

#include "ItemList.h"
#include "modGlobalVars.h"

inline const char* const NoneEntry = "< None >";

// A placeholder seat, "< Player 1 >" to "< Player 8 >", told by its first eight characters.
bool IsPlaceholder(const std::string& value);

class PlayerSelection {
public:
    PlayerSelection();

    std::array<ItemList, MaxPlayers> cboPlayer;          // lblPlayer(i) shows with its box
    std::array<std::string, MaxPlayers> lstSelected;     // each box's value after its last change
    ItemList lstPlayers;                                 // the known players
    ItemList cboAddRemove;                               // the known players again, for Add and Remove
    bool fraAddRemoveVisible = true;                     // false: lblNote stands in its place
    int Growth = 0;   // twips the dialog has grown beyond its two-seat layout

    // Fills the lists from the data file and seats the players of gPlayerNames.
    void Form_Load();
    // Sets the selected index of a box and runs its click before returning, as a user's pick.
    void SetListIndex(int Index, int value);
    void cboPlayer_Click(int Index);
    // cmdPlay_Click's reading of the seats into gPlayerNames, up to the first free seat.
    void ReadSeats() const;

    // Text is the box's text, given back without blanks at its ends.
    void cmdAdd_Click(std::string& Text);
    void cmdRemove_Click(const std::string& Text);

private:
    void LoadKnownPlayers();
    void TakeOutOfOtherBoxes(int Index, const std::string& name);
    void GiveBackToOtherBoxes(int Index, const std::string& name);
};
