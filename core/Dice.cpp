// The five dice within one turn: drawing, holding, counting rolls, and what cmdRoll does.
#include "GameTable.h"
#include "../shell/MsgBox.h"
#include "Translate.h"

void GameTable::RollOrAccept()
{
    if (screen_.Caption(Control::cmdRoll) != "Accept") {
        mRollTicks = 0;
        screen_.SetEnabled(Control::cmdRoll, false);
        if (IsOn(Option::UseKeyboard))
            HideDieCursor();
        if (screen_.DieLabelsVisible()) {
            mRollPhase = 1;   // a later roll: the marked dice gather first
        } else {
            mRollPhase = 2;   // the first roll: all five tumble on the pile
            screen_.SetVisible(Control::lblPleaseRoll, false);
        }
        return;
    }
    const std::string question = Translate("GameTable", "No dice selected.") + vbCrLf
                                 + Translate("GameTable", "Are you satisfied with the roll?");
    if (MsgBox(question, vbYesNo | vbQuestion | vbDefaultButton2, Translate("GameTable", "Zarvo - Confirm")) != vbYes)
        return;
    screen_.SetEnabled(Control::cmdRoll, false);
    screen_.SetEnabled(Control::picDisplayer, false);
    if (IsOn(Option::UseKeyboard))
        HideDieCursor();
    HideDieLabels();
    mRollsDone = 2;   // so that FinishRoll ends the rolling whatever the count was
    FinishRoll();
}

void GameTable::UpdateRollCaption()
{
    for (int i = 0; i < 5; ++i) {
        if (IsMarked(i)) {
            screen_.SetCaption(Control::cmdRoll, "Roll");
            return;
        }
    }
    screen_.SetCaption(Control::cmdRoll, "Accept");
}

void GameTable::RollMarkedDice()
{
    for (int i = 0; i < 5; ++i) {
        if (!IsMarked(i))
            continue;
        mDice[i] = int(random_.Rnd() * 6) + 1;
        screen_.SetDiePicture(i, ImageList::ilsDie, mDice[i]);
    }
}

void GameTable::FinishRoll()
{
    ++mRollsDone;
    if (mRollsDone < 3) {
        screen_.SetEnabled(Control::cmdRoll, true);
        screen_.SetEnabled(Control::picDisplayer, true);
        ShowDieLabels();
        screen_.SetCaption(Control::cmdRoll, "Accept");
        if (IsOn(Option::UseKeyboard))
            ShowDieCursor();
    } else {
        BeginCategorySelection();
    }
    screen_.SetFocusOnForm();   // keys must reach the window, not the button
}

void GameTable::HideDieLabels() { screen_.SetDieLabelsVisible(false); }
void GameTable::ShowDieLabels() { screen_.SetDieLabelsVisible(true); }
