#include "HighScoreCheck.h"

#include <string>

#include "DateTime.h"
#include "HighScoreTable.h"
#include "MsgBox.h"
#include "modCommon.h"
#include "modDatabase.h"
#include "modGlobalVars.h"
#include "Translate.h"

namespace {
void ShowNotSaved(const std::string& firstLine)
{
    MsgBox(firstLine + vbCrLf + Translate("HighScoreCheck", "High scores will not be saved."), vbOKOnly | vbCritical,
           Translate("HighScoreCheck", "Zarvo - Data File Error"));
}
}

// The steps in their order:
//  1. open the file for writing, silently; one that does not open or takes no writes is told
//     to player 1 only, so a game says it once, and nobody types a name for nothing;
//  2. the game score S;  3-5. S must beat the lowest row strictly;
//  then the file is closed: no lock is held while the player types, so another running game
//  can end its cards meanwhile;
//  6. offer the name without placeholder marks;  7. frmHighScoreNotify;
//  8. one write transaction over the row that is lowest by then, stamped now, if S still beats
//     it; a write that fails after all (the file taken by another program since) is told;
//  9. frmHighScores: the table as it now stands, with or without the entry.
void CheckHighScore(int player, HighScoreDialogs& owner)
{
    if (!OpenDataFileForWriting()) {
        if (player == 1)
            ShowNotSaved(Translate("HighScoreCheck", "There was an error opening the data file."));
        return;
    }
    const int S = PlayerTotal(player);
    const bool getsIn = BeatsLowestHighScore(S);
    CloseDataFile();
    if (!getsIn)
        return;
    gHighScoreName = PlayerDisplayName(player);
    owner.ShowHighScoreNotify();
    if (!(OpenDataFile(false) && EnterHighScore(gHighScoreName, S, Now())))
        ShowNotSaved(Translate("HighScoreCheck", "There was an error writing the data file."));
    CloseDataFile();
    owner.ShowHighScores();
}
