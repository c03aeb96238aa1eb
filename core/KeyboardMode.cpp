// Playing with five keys: Enter rolls and accepts at all times; with UseKeyboard on, the
// arrow keys move a cursor over the dice while deciding and over the cells while choosing.
#include "GameTable.h"
#include "../shell/MsgBox.h"
#include "../shell/QBColor.h"
#include "modGlobalVars.h"
#include "Translate.h"

namespace {
bool IsArrow(int key) { return key >= vbKeyLeft && key <= vbKeyDown; }

// The cursor over the card: Up and Down wrap within a column, Left and Right change column
// in the same row; Chance has no partner in the left column.
int MoveCategoryCursor(int category, int key)
{
    const bool left = category <= CatSixes;
    const int first = left ? CatOnes : CatThreeOfAKind;
    const int last = left ? CatSixes : CatChance;
    switch (key) {
    case vbKeyUp: return category == first ? last : category - 1;
    case vbKeyDown: return category == last ? first : category + 1;
    default:
        if (category == CatChance)
            return category;
        return left ? category + 6 : category - 6;
    }
}
}

int GameTable::Form_KeyDown(int KeyCode)
{
    if (KeyCode != vbKeyReturn && !IsArrow(KeyCode))
        return KeyCode;

    const bool keyboard = IsOn(Option::UseKeyboard);
    if (KeyCode == vbKeyReturn && (screen_.DieLabelsVisible() || screen_.Visible(Control::lblPleaseRoll))) {
        RollOrAccept();
        screen_.RefreshDie(2);
    } else if (keyboard && screen_.DieLabelsVisible()) {
        switch (KeyCode) {
        case vbKeyRight:
        case vbKeyLeft:
            screen_.SetDiePicture(mKeyCursor, ImageList::ilsDie, mDice[mKeyCursor]);
            mKeyCursor = (mKeyCursor + (KeyCode == vbKeyRight ? 1 : 4)) % 5;
            screen_.SetDiePicture(mKeyCursor, ImageList::ilsDieInv, mDice[mKeyCursor]);
            break;
        case vbKeyUp:
        case vbKeyDown:
            screen_.SetDieTop(mKeyCursor, KeyCode == vbKeyUp ? KeepRow : RollRow);
            UpdateRollCaption();
            break;
        default:
            break;
        }
    } else if (keyboard && screen_.Visible(Control::lblSelectCategory)) {
        if (KeyCode == vbKeyReturn) {
            if (mKeyCursor < 7)
                lblLeft_Click(mKeyCursor);
            else
                lblRight_Click(mKeyCursor - 6);
        } else {
            HideCategoryCursor();
            mKeyCursor = MoveCategoryCursor(mKeyCursor, KeyCode);
            ShowCategoryCursor();
        }
    } else if (!keyboard && KeyCode != vbKeyReturn && !gKeyboardOffered) {
        const int answer = MsgBox(Translate("GameTable", "Do you want to enable keyboard use?"), vbYesNo | vbQuestion,
                                  Translate("GameTable", "Zarvo - Enable Keyboard"));
        gKeyboardOffered = true;
        if (answer == vbYes)
            mnuUseKeyboard_Click();
    }
    return 0;
}

void GameTable::mnuUseKeyboard_Click()
{
    const bool on = !IsOn(Option::UseKeyboard);
    screen_.SetChecked(Option::UseKeyboard, on);
    if (screen_.DieLabelsVisible())
        on ? ShowDieCursor() : HideDieCursor();
    else if (screen_.Visible(Control::lblSelectCategory))
        on ? ShowCategoryCursor() : HideCategoryCursor();
}

void GameTable::ShowDieCursor()
{
    screen_.SetDiePicture(mKeyCursor, ImageList::ilsDieInv, mDice[mKeyCursor]);
}

void GameTable::HideDieCursor()
{
    if (mDice[mKeyCursor] < 1)
        return;   // before the first roll of a run there is no face to show
    screen_.SetDiePicture(mKeyCursor, ImageList::ilsDie, mDice[mKeyCursor]);
}

void GameTable::ShowCategoryCursor()
{
    screen_.SetCellBackColor(mKeyCursor, QBColor(8));
    screen_.SetCellForeColor(mKeyCursor, QBColor(15));
}

void GameTable::HideCategoryCursor()
{
    const bool grey = Evaluate(mKeyCursor).Sum() == 0 || screen_.CellBorderStyle(mKeyCursor) == 0;
    screen_.SetCellBackColor(mKeyCursor, grey ? QBColor(7) : QBColor(15));
    screen_.SetCellForeColor(mKeyCursor, QBColor(0));
}
