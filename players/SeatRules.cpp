// The seats of the player dialog: loading them from the current players, the exchange of
// names between the eight boxes on every pick, and reading them back for Play.
#include <algorithm>
#include <cctype>

#include "PlayerSelection.h"
#include "PlayerTable.h"
#include "modCommon.h"
#include "modDatabase.h"

namespace {
// The dialog grows by this for every open box beyond the second.
constexpr int Step = 360;

// A name from the file, or typed, as opposed to the markers that begin with "<".
bool IsName(const std::string& value) { return !value.empty() && value[0] != '<'; }

bool LessIgnoringCase(const std::string& a, const std::string& b)
{
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
        return std::tolower(x) < std::tolower(y);
    });
}
}

bool IsPlaceholder(const std::string& value) { return value.compare(0, 8, "< Player") == 0; }

PlayerSelection::PlayerSelection()
{
    lstSelected.fill(NoneEntry);
    cboPlayer[0].Visible = cboPlayer[1].Visible = true;
}

void PlayerSelection::LoadKnownPlayers()
{
    if (OpenDataFile(true)) {
        lstPlayers.List = KnownPlayerNames();
        CloseDataFile();
    } else {
        fraAddRemoveVisible = false;
    }
    // A current player whose row has gone, or whose file does not open now, keeps the seat:
    // for this opening the name counts as known, like a name whose Add could not be stored.
    for (int j = 1; j <= gPlayerNames.UBound(); ++j)
        if (IsName(gPlayerNames[j]) && FindListItem(gPlayerNames[j], lstPlayers) < 0)
            lstPlayers.List.push_back(gPlayerNames[j]);
    std::stable_sort(lstPlayers.List.begin(), lstPlayers.List.end(), LessIgnoringCase);
}

void PlayerSelection::Form_Load()
{
    LoadKnownPlayers();
    for (int i = 0; i < MaxPlayers; ++i) {
        cboPlayer[i].List = {PlaceholderName(i + 1)};
        cboPlayer[i].List.insert(cboPlayer[i].List.end(), lstPlayers.List.begin(), lstPlayers.List.end());
    }
    cboAddRemove.List = lstPlayers.List;
    // Each pick opens the next seat, so the dialog comes up as the current players sit. An
    // entry that no box offers (a name twice, a stray marker) takes its seat's placeholder,
    // so that no taken seat is left empty for Play to read.
    for (int j = 1; j <= gPlayerNames.UBound(); ++j) {
        const std::string& entry = gPlayerNames[j];
        int index = entry == NoneEntry ? -1 : FindListItem(entry, cboPlayer[j - 1]);
        if (index < 0)
            index = FindListItem(PlaceholderName(j), cboPlayer[j - 1]);
        SetListIndex(j - 1, index);
    }
}

void PlayerSelection::SetListIndex(int Index, int value)
{
    cboPlayer[Index].ListIndex = value;
    cboPlayer_Click(Index);
}

void PlayerSelection::TakeOutOfOtherBoxes(int Index, const std::string& name)
{
    if (IsPlaceholder(name))
        return;
    for (int i = 0; i < MaxPlayers; ++i)
        if (i != Index)
            RemoveListItem(name, cboPlayer[i]);
}

void PlayerSelection::GiveBackToOtherBoxes(int Index, const std::string& name)
{
    if (IsPlaceholder(name))
        return;
    for (int i = 0; i < MaxPlayers; ++i)
        if (i != Index)
            InsertSorted(name, cboPlayer[i]);
}

// The box itself keeps Old in its list: a box never loses an entry by its own selection.
void PlayerSelection::cboPlayer_Click(int Index)
{
    ItemList& box = cboPlayer[Index];
    const std::string Old = lstSelected[Index];
    const std::string New = box.Text();
    if (Old == New || box.ListIndex < 0)
        return;
    if (Old == NoneEntry) {
        // An empty seat was taken: the next one opens, and this one may now be given up
        // instead of the one before.
        TakeOutOfOtherBoxes(Index, New);
        if (Index < MaxPlayers - 1) {
            ItemList& next = cboPlayer[Index + 1];
            next.AddItem(NoneEntry, 0);
            next.Visible = true;
            if (Index > 0)
                Growth += Step;
            SetListIndex(Index + 1, 0);
        }
        if (Index > 1)
            RemoveListItem(NoneEntry, cboPlayer[Index - 1]);
    } else if (New != NoneEntry) {
        GiveBackToOtherBoxes(Index, Old);
        TakeOutOfOtherBoxes(Index, New);
    } else {
        // The last seat was given up: the free seat after it closes, and the seat before it
        // becomes the last one that can be given up.
        GiveBackToOtherBoxes(Index, Old);
        if (Index < MaxPlayers - 1) {
            ItemList& next = cboPlayer[Index + 1];
            next.Visible = false;
            if (Index >= 1)
                Growth -= Step;
            RemoveListItem(NoneEntry, next);
            SetListIndex(Index + 1, -1);
        }
        if (Index > 1)
            cboPlayer[Index - 1].AddItem(NoneEntry, 0);
    }
    lstSelected[Index] = New;
}

void PlayerSelection::ReadSeats() const
{
    gPlayerNames.ReDim(1);
    for (int i = 0; i < MaxPlayers; ++i) {
        const std::string value = cboPlayer[i].Text();
        if (value == NoneEntry)
            break;
        gPlayerNames.ReDimPreserve(i + 1);
        gPlayerNames[i + 1] = value;   // placeholders with their brackets
    }
}
