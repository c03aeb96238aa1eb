// The list of known players: Add and Remove change the dialog's lists and the data file at
// once. Close does not undo them.
#include <initializer_list>

#include "MsgBox.h"
#include "PlayerSelection.h"
#include "PlayerTable.h"
#include "modCommon.h"
#include "modDatabase.h"

namespace {
std::string Lines(std::initializer_list<const char*> lines)
{
    std::string text;
    for (const char* line : lines)
        text += (text.empty() ? "" : vbCrLf) + std::string(line);
    return text;
}

void ShowFileError(const char* consequence)
{
    MsgBox(Lines({"There is an error in the data file.", consequence}), vbOKOnly | vbCritical,
           "Zarvo - Cannot Open Data File");
}
}

void PlayerSelection::cmdAdd_Click(std::string& Text)
{
    Text = TrimBlanks(Text);
    if (Text.empty()) {
        MsgBox("Please enter a name to add.", vbOKOnly | vbExclamation, "Zarvo - Please Enter a Name");
        return;
    }
    if (FindListItem(Text, cboAddRemove) >= 0) {
        MsgBox("Cannot add player; the player already exists.", vbOKOnly, "Zarvo - Already Have Player");
        return;
    }
    InsertSorted(Text, lstPlayers);
    for (ItemList& box : cboPlayer)
        InsertSorted(Text, box);
    InsertSorted(Text, cboAddRemove);
    // The name stays in the lists even when the file does not take it: it can be played.
    if (!OpenDataFileForWriting()) {
        ShowFileError("The information will not be saved.");
        return;
    }
    AddPlayer(Text);   // a row the file refuses is lost without a word
    CloseDataFile();
}

void PlayerSelection::cmdRemove_Click(const std::string& Text)
{
    if (FindListItem(Text, cboAddRemove) < 0) {
        MsgBox("Player not found - cannot remove player.", vbOKOnly | vbInformation, "Zarvo - Cannot Remove");
        return;
    }
    for (const ItemList& box : cboPlayer) {
        if (box.Text() == Text) {
            MsgBox(Lines({"Cannot remove a player", "that is currently selected."}), vbOKOnly | vbInformation,
                   "Zarvo - Cannot Remove");
            return;
        }
    }
    const std::string question = Lines(
        {"Are you sure you want to delete", "this player? All saved information", "for the player will be lost."});
    if (MsgBox(question, vbYesNo | vbQuestion | vbDefaultButton2, "Zarvo - Confirm Delete") != vbYes)
        return;
    if (OpenDataFileForWriting()) {
        DeletePlayer(Text);
        CloseDataFile();
    } else {
        ShowFileError("The removal will not be saved.");
    }
    // Selected in no box, the name is in every list.
    RemoveListItem(Text, lstPlayers);
    for (ItemList& box : cboPlayer)
        RemoveListItem(Text, box);
    RemoveListItem(Text, cboAddRemove);
}
