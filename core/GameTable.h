#pragma once
// The routines and form-level state of the game table window frmMain that are game logic:
// the turn and the game, the dice and rolls, the roll's tick machine, the scoreboard and its
// preview, and what mouse and keys do. They reach the window only through TableScreen.
//
// The road of one turn:
//  1. BeginTurn gathers the dice on the pile, sets cmdRoll to "Roll", shows lblPleaseRoll.
//  2. A click, a right click on a die or Enter calls RollOrAccept, which only sets mRollPhase.
//  3. tmrRoll_Timer moves the dice tick by tick, draws them (RollMarkedDice), and at the end
//     calls FinishRoll: all dice lie in KeepRow and the player marks what the next roll draws.
//  4. After the third roll, or when the player accepts, BeginCategorySelection boxes every open
//     category (ShowCategoryChoices).
//  5. A boxed cell picked by click or Enter goes to ScoreCategory, which may ask "Take a zero?"
//     and writes the card.
//  6. A full card brings the results, the high-score check and, after the last player, the
//     summary and the New Game prompt; otherwise the next player's turn begins at step 1.
// StartNewGame may cut in at any moment, also during a roll.
#include "RandomSource.h"
#include "Scoring.h"
#include "TableScreen.h"

// Key codes that Form_KeyDown answers.
enum KeyCode { vbKeyReturn = 13, vbKeyLeft = 37, vbKeyUp = 38, vbKeyRight = 39, vbKeyDown = 40 };
// Mouse buttons of imgDie_MouseUp.
enum MouseButton { vbLeftButton = 1, vbRightButton = 2, vbMiddleButton = 4 };

// The column Left of die i; die 2 is the centre of all motion and never moves sideways.
constexpr int DieColumnLeft(int i) { return 120 + 840 * i; }
constexpr int PileLeft = 1800;

class GameTable {
public:
    explicit GameTable(TableScreen& screen) : screen_(screen) {}

    // Form-level state.
    DiceValues mDice{};      // 0 until the first roll of the run
    int mRollPhase = 0;      // 0 idle, 1 gather, 2 tumble, 3 spread, 4 settle
    int mRollTicks = 0;
    int mRollsDone = 0;
    int mKeyCursor = 2;      // a die 0..4 while deciding, a category 1..13 while choosing

    // Turn and game flow.
    void StartNewGame();
    void StartWithPlayers();
    void BeginTurn();
    void BeginCategorySelection();
    void ScoreCategory(int Category);

    // Dice and rolls.
    void RollOrAccept();
    void UpdateRollCaption();
    void RollMarkedDice();
    void FinishRoll();
    void HideDieLabels();
    void ShowDieLabels();

    // The roll's tick machine.
    void tmrRoll_Timer();
    void GatherDice();

    // The card of gCurrentPlayer and the marking of cells.
    void RefreshScoreboard();
    void MarkCategory(int category, bool scoring);
    void UnmarkCategory(int category);
    void UnmarkAllCategories();
    void ClearCategoryCaptions();
    void ShowCategoryChoices();
    void mnuScoringPreview_Click();

    // Mouse.
    void cmdRoll_Click() { RollOrAccept(); }
    void imgDie_MouseUp(int Index, int Button);
    void lblDie_MouseUp(int Index, int Button) { imgDie_MouseUp(Index, Button); }
    void lblLeft_Click(int i);
    void lblRight_Click(int i);

    // Keyboard: gives back the key code, 0 when the key was used up.
    int Form_KeyDown(int KeyCode);
    void mnuUseKeyboard_Click();
    void ShowDieCursor();
    void HideDieCursor();
    void ShowCategoryCursor();
    void HideCategoryCursor();

    // The value of a category for the current player and the present dice.
    Evaluation Evaluate(int category) const;

private:
    bool IsOn(Option option) const { return screen_.Checked(option); }
    bool IsMarked(int die) const { return screen_.DieTop(die) == RollRow; }
    void SetCellToolTips(const std::string& text);
    void LandMarkedDice();
    void StepMarkedDice(int towardsCentre);
    void SettleTick();

    TableScreen& screen_;
    RandomSource random_;
};
