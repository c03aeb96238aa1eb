// What the mouse does on the dice field and on the score cells.
#include "GameTable.h"

void GameTable::imgDie_MouseUp(int Index, int Button)
{
    if (!screen_.Enabled(Control::cmdRoll))
        return;   // a roll runs or a category is being chosen
    // Any button rolls while the player is asked to; the right button is Roll or Accept always.
    if (screen_.Visible(Control::lblPleaseRoll) || Button == vbRightButton) {
        cmdRoll_Click();
        return;
    }
    if (screen_.DieLabelsVisible()) {
        screen_.SetDieTop(Index, screen_.DieTop(Index) == KeepRow ? RollRow : KeepRow);
        UpdateRollCaption();
    }
}

// Only a boxed cell can be taken.
void GameTable::lblLeft_Click(int i)
{
    if (screen_.CellBorderStyle(i) == 1)
        ScoreCategory(i);
}

void GameTable::lblRight_Click(int i)
{
    if (screen_.CellBorderStyle(i + 6) == 1)
        ScoreCategory(i + 6);
}
