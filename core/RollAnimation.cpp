// The roll as a tick machine. RollOrAccept only sets mRollPhase; each tick of tmrRoll moves
// the dice one step. Phases: 1 gather (marked dice slide to the centre column), 2 tumble (the
// faces change), 3 spread (back out to their columns), 4 settle (up into KeepRow one by one).
// A first roll runs 2, 3, 4 in 45 ticks; a later one with k marked dice 1, 2, 3, 4 in
// 37 + 3k; with AnimateRolling off the roll ends on its first tick. The machine counts ticks
// and never reads a clock: the window decides how fast ticks come.
#include "GameTable.h"

void GameTable::GatherDice()
{
    for (int i = 0; i < 5; ++i) {
        screen_.SetDieVisible(i, false);
        screen_.SetDieTop(i, RollRow);
        screen_.SetDieLeft(i, PileLeft);
        screen_.SetDieVisible(i, true);
    }
}

void GameTable::tmrRoll_Timer()
{
    // The event loop has run every pending event before this tick, so a command given
    // meanwhile (New Game, an option) governs the tick from here on.
    switch (mRollPhase) {
    case 1:   // gather
        screen_.SetEnabled(Control::cmdRoll, false);
        screen_.SetEnabled(Control::picDisplayer, false);
        HideDieLabels();
        if (!IsOn(Option::AnimateRolling)) {
            LandMarkedDice();
            return;
        }
        if (++mRollTicks == 7) {
            mRollPhase = 2;
            mRollTicks = 0;
        }
        StepMarkedDice(+1);
        return;
    case 2:   // tumble
        if (!IsOn(Option::AnimateRolling)) {
            LandMarkedDice();
            return;
        }
        if (++mRollTicks == 20) {
            mRollPhase = 3;
            mRollTicks = 0;
        }
        if (mRollTicks % 2 == 0)
            RollMarkedDice();
        return;
    case 3:   // spread; the option is not looked at from here on
        if (++mRollTicks == 7) {
            mRollPhase = 4;
            mRollTicks = 0;
        }
        StepMarkedDice(-1);
        return;
    case 4:
        SettleTick();
        return;
    default:
        return;
    }
}

// One step of the marked dice towards the centre column (+1) or away from it (-1):
// a die moves by its column distance from die 2 times 120 twips.
void GameTable::StepMarkedDice(int towardsCentre)
{
    for (int i = 0; i < 5; ++i)
        if (IsMarked(i))
            screen_.SetDieLeft(i, screen_.DieLeft(i) + towardsCentre * (2 - i) * 120);
}

void GameTable::SettleTick()
{
    if (++mRollTicks % 3 != 0)
        return;
    for (int i = 0; i < 5; ++i) {
        if (IsMarked(i)) {
            screen_.SetDieTop(i, KeepRow);
            return;
        }
    }
    mRollPhase = 0;
    FinishRoll();
}

// Without animation: draw, and put every marked die straight into its column in KeepRow.
void GameTable::LandMarkedDice()
{
    RollMarkedDice();
    const int centreLeft = screen_.DieLeft(2);
    for (int i = 0; i < 5; ++i) {
        if (!IsMarked(i))
            continue;
        screen_.SetDieVisible(i, false);
        screen_.SetDieTop(i, KeepRow);
        screen_.SetDieLeft(i, centreLeft + (i - 2) * 840);
        screen_.SetDieVisible(i, true);
    }
    mRollPhase = 0;
    FinishRoll();
}
