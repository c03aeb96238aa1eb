#include "SavedSetup.h"

#include "modCommon.h"
#include "modDatabase.h"
#include "modGlobalVars.h"

namespace {
// Both reads are ordered by rowid: only the first Setup row counts, and the players must
// come back in the order they were written, whatever the query plan.
const char* const SetupStatement =
    "SELECT RememberPlayers, UseKeyboard, ShowScoringPreview, AnimateRolling FROM Setup Setup "
    "ORDER BY Setup.rowid";
const char* const PlayersInUseStatement =
    "SELECT PlayerNumber, PlayerName FROM PlayersInUse PlayersInUse ORDER BY PlayersInUse.rowid";

// A hand-edited file may hold more rows than seats, or rows without a name: those are
// left out, so the game always starts with one to eight named seats.
void ReadPlayersInUse(Recordset& players)
{
    int n = 0;
    for (players.MoveFirst(); !players.Eof() && n < MaxPlayers; players.MoveNext()) {
        const std::string name = players.Fields("PlayerName").Value.CStr();
        if (name.empty())
            continue;
        gPlayerNames.ReDimPreserve(++n);
        gPlayerNames[n] = name;
    }
}

bool WriteSetup(const SetupMarks& marks, Recordset& setup)
{
    setup.AddNew();
    setup.Fields("RememberPlayers").Value = marks.RememberPlayers;
    setup.Fields("UseKeyboard").Value = marks.UseKeyboard;
    setup.Fields("ShowScoringPreview").Value = marks.ShowScoringPreview;
    setup.Fields("AnimateRolling").Value = marks.AnimateRolling;
    return setup.Update();
}

bool WritePlayersInUse(Recordset& players)
{
    for (int n = 1; n <= gPlayerNames.UBound(); ++n) {
        players.AddNew();
        players.Fields("PlayerNumber").Value = n;
        players.Fields("PlayerName").Value = gPlayerNames[n];
        if (!players.Update())
            return false;
    }
    return true;
}
}

void LoadSetup(SetupMarks& marks)
{
    gPlayerNames.ReDim(1, PlaceholderName(1));
    if (!OpenDataFile(false))
        return;
    Recordset setup = gDataDatabase.OpenRecordset(SetupStatement);
    Recordset players = gDataDatabase.OpenRecordset(PlayersInUseStatement);
    if (setup.RecordCount() > 0) {
        setup.MoveFirst();
        marks.RememberPlayers = setup.Fields("RememberPlayers").Value.CBool();
        marks.UseKeyboard = setup.Fields("UseKeyboard").Value.CBool();
        marks.ShowScoringPreview = setup.Fields("ShowScoringPreview").Value.CBool();
        marks.AnimateRolling = setup.Fields("AnimateRolling").Value.CBool();
    }
    if (players.RecordCount() > 0 && marks.RememberPlayers)
        ReadPlayersInUse(players);
    CloseDataFile();
}

// The rewrite is one transaction: a failure or a crash part-way leaves the rows of the
// last exit, never empty tables; and a file that takes no writes refuses it before anything
// changes.
void SaveSetup(const SetupMarks& marks)
{
    if (!OpenDataFile(false))
        return;
    bool saved = gDataDatabase.BeginTrans() && gDataDatabase.Execute("DELETE FROM Setup")
        && gDataDatabase.Execute("DELETE FROM PlayersInUse");
    if (saved) {
        Recordset setup = gDataDatabase.OpenRecordset(SetupStatement);
        Recordset players = gDataDatabase.OpenRecordset(PlayersInUseStatement);
        saved = WriteSetup(marks, setup) && WritePlayersInUse(players)
            && gDataDatabase.CommitTrans();
    }
    if (!saved)
        gDataDatabase.Rollback();
    CloseDataFile();
}
