// The list of known players: Add and Remove change the dialog's lists and the data file at
// once. Close does not undo them.
#include "MsgBox.h"
#include "PlayerSelection.h"
#include "PlayerTable.h"
#include "modCommon.h"
#include "modDatabase.h"
#include "Translate.h"

namespace {
void ShowFileError(const std::string& consequence)
{
    MsgBox(Translate("PlayerSelection", "There is an error in the data file.") + vbCrLf + consequence, vbOKOnly | vbCritical,
           Translate("PlayerSelection", "Zarvo - Cannot Open Data File"));
}
}

void PlayerSelection::cmdAdd_Click(std::string& Text)
{
    Text = TrimBlanks(Text);
    if (Text.empty()) {
        MsgBox(Translate("PlayerSelection", "Please enter a name to add."), vbOKOnly | vbExclamation,
               Translate("PlayerSelection", "Zarvo - Please Enter a Name"));
        return;
    }
    if (FindListItem(Text, cboAddRemove) >= 0) {
        MsgBox(Translate("PlayerSelection", "Cannot add player; the player already exists."), vbOKOnly,
               Translate("PlayerSelection", "Zarvo - Already Have Player"));
        return;
    }
    InsertSorted(Text, lstPlayers);
    for (ItemList& box : cboPlayer)
        InsertSorted(Text, box);
    InsertSorted(Text, cboAddRemove);
    // The name stays in the lists even when the file does not take it: it can be played.
    if (!OpenDataFileForWriting()) {
        ShowFileError(Translate("PlayerSelection", "The information will not be saved."));
        return;
    }
    AddPlayer(Text);   // a row the file refuses is lost without a word
    CloseDataFile();
}

void PlayerSelection::cmdRemove_Click(const std::string& Text)
{
    if (FindListItem(Text, cboAddRemove) < 0) {
        MsgBox(Translate("PlayerSelection", "Player not found - cannot remove player."), vbOKOnly | vbInformation,
               Translate("PlayerSelection", "Zarvo - Cannot Remove"));
        return;
    }
    for (const ItemList& box : cboPlayer) {
        if (box.Text() == Text) {
            MsgBox(Translate("PlayerSelection", "Cannot remove a player\r\nthat is currently selected."),
                   vbOKOnly | vbInformation, Translate("PlayerSelection", "Zarvo - Cannot Remove"));
            return;
        }
    }
    const std::string question = Translate(
        "PlayerSelection", "Are you sure you want to delete\r\nthis player? All saved information\r\nfor the player will be lost.");
    if (MsgBox(question, vbYesNo | vbQuestion | vbDefaultButton2, Translate("PlayerSelection", "Zarvo - Confirm Delete"))
        != vbYes)
        return;
    if (OpenDataFileForWriting()) {
        DeletePlayer(Text);
        CloseDataFile();
    } else {
        ShowFileError(Translate("PlayerSelection", "The removal will not be saved."));
    }
    // Selected in no box, the name is in every list.
    RemoveListItem(Text, lstPlayers);
    for (ItemList& box : cboPlayer)
        RemoveListItem(Text, box);
    RemoveListItem(Text, cboAddRemove);
}
