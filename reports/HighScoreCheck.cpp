#include "HighScoreCheck.h"

#include <string>

#include "DateTime.h"
#include "HighScoreTable.h"
#include "MsgBox.h"
#include "modCommon.h"
#include "modDatabase.h"
#include "modGlobalVars.h"

namespace {
void ShowNotSaved(const char* firstLine)
{
    MsgBox(std::string(firstLine) + vbCrLf + "High scores will not be saved.", vbOKOnly | vbCritical,
           "Zarvo - Data File Error");
}
}

// The steps in their order:
//  1. open the file for writing, silently; one that does not open or takes no writes is told
//     to player 1 only, so a game says it once, and nobody types a name for nothing;
//  2. the game score S;  3. the table lowest score first;  4. no row: nothing to do;
//  5. S must beat the first (lowest) row strictly;  6. offer the name without placeholder marks;
//  7. frmHighScoreNotify;  8. overwrite that row in one edit, stamped now;
//  9. frmHighScores, which opens and closes the file by itself;  10. close the file, which may
//     already be closed by then.
void CheckHighScore(int player, HighScoreDialogs& owner)
{
    if (!OpenDataFileForWriting()) {
        if (player == 1)
            ShowNotSaved("There was an error opening the data file.");
        return;
    }
    const int S = PlayerTotal(player);
    Recordset highScores = OpenHighScoresLowestFirst();
    if (highScores.RecordCount() == 0) {
        CloseDataFile();
        return;
    }
    highScores.MoveFirst();
    // An empty score in a damaged row reads as 0, so that row is the first to be replaced.
    if (!(S > highScores.Fields("Score").Value.CInt())) {
        CloseDataFile();
        return;
    }
    gHighScoreName = PlayerDisplayName(player);
    owner.ShowHighScoreNotify();
    // A file taken by another program since step 1 refuses the write: the player is told so.
    if (!OverwriteHighScore(highScores, gHighScoreName, S, Now()))
        ShowNotSaved("There was an error writing the data file.");
    highScores.Close();
    owner.ShowHighScores();
    CloseDataFile();
}
