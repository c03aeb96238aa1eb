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
//  1. open the file silently; without it only player 1 hears of it, so a game says it once;
//  2. the game score S;  3. the table lowest score first;  4. no row: nothing to do;
//  5. S must beat the first (lowest) row strictly;  6. offer the name without placeholder marks;
//  7. frmHighScoreNotify;  8. overwrite that row in one edit, stamped now;
//  9. frmHighScores, which opens and closes the file by itself;  10. close the file, which may
//     already be closed by then.
void CheckHighScore(int player, HighScoreDialogs& owner)
{
    if (!OpenDataFile(false)) {
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
    // A read-only or locked file opens but refuses the write: the player typed a name for
    // nothing and is told so.
    if (!OverwriteHighScore(highScores, gHighScoreName, S, Now()))
        ShowNotSaved("There was an error writing the data file.");
    highScores.Close();
    owner.ShowHighScores();
    CloseDataFile();
}
