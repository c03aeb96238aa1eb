// Starting a game, opening each turn, taking the chosen category, passing the turn, and the
// end of a card. The order of the steps is the contract; the window relies on it.
#include "GameTable.h"
#include "../shell/DateTime.h"
#include "../shell/MsgBox.h"
#include "modCommon.h"
#include "modGlobalVars.h"
#include "Translate.h"

void GameTable::StartNewGame()
{
    gScores.ReDim(gPlayerNames.UBound());
    random_.Randomize(float(Now().SecondsSinceMidnight()));
    gCurrentPlayer = 1;
    ClearScoreboard();
    if (screen_.Visible(Control::lblSelectCategory)) {
        if (IsOn(Option::UseKeyboard))
            HideCategoryCursor();
        mKeyCursor = 2;
    }
    RefreshScoreboard();
    ClearCategoryCaptions();
    GatherDice();
    BeginTurn();
    mRollPhase = 0;   // stops a running roll; no tick can come between these steps
}

// The players are set, at load or by the player dialog's Play: the summary menu follows their
// number and their session starts afresh, the same rule both times.
void GameTable::StartWithPlayers()
{
    screen_.SetEnabled(Control::mnuScoringSummary, gPlayerNames.UBound() > 1);
    ClearSessionStats();
    StartNewGame();
}

void GameTable::BeginTurn()
{
    GatherDice();
    screen_.SetEnabled(Control::cmdRoll, true);
    screen_.SetEnabled(Control::picDisplayer, true);
    screen_.SetCaption(Control::cmdRoll, "Roll");
    HideDieLabels();
    UnmarkAllCategories();
    screen_.SetDiePicture(2, ImageList::ilsDie, 6);   // the pile shows a six; mDice stays
    screen_.SetVisible(Control::lblSelectCategory, false);
    SetCellToolTips("");
    screen_.SetCaption(Control::lblPleaseRoll,
                       Arg(Translate("GameTable", "%1's turn. Please roll."), {PlayerDisplayName(gCurrentPlayer)}));
    screen_.SetVisible(Control::lblPleaseRoll, true);
    screen_.SetFocusOnForm();
    mRollsDone = 0;
}

void GameTable::BeginCategorySelection()
{
    screen_.SetVisible(Control::lblSelectCategory, true);
    SetCellToolTips(Translate("GameTable", "Scoring category"));
    ShowCategoryChoices();
    mKeyCursor = 1;
    if (IsOn(Option::UseKeyboard))
        ShowCategoryCursor();
}

void GameTable::ScoreCategory(int Category)
{
    const Evaluation e = Evaluate(Category);
    if (e.Sum() == 0 && AnyCategoryScores(mDice, gScores[gCurrentPlayer])) {
        if (MsgBox(Translate("GameTable", "Take a zero?"), vbYesNo | vbQuestion, Translate("GameTable", "Zarvo - Confirm"))
            != vbYes)
            return;   // nothing has changed; the player is still choosing
    }
    if (IsOn(Option::UseKeyboard))
        HideCategoryCursor();
    mKeyCursor = 2;
    gScores[gCurrentPlayer][Category] = std::int16_t(e.score);
    gScores[gCurrentPlayer][BonusCell] = std::int16_t(gScores[gCurrentPlayer][BonusCell] + e.bonus);

    if (PlayerCardFull(gScores[gCurrentPlayer])) {
        // End of a card: results, then the high-score check; after the last player the
        // summary (two or more players) and the New Game prompt, whose answer decides.
        RefreshScoreboard();
        screen_.SetVisible(Control::lblSelectCategory, false);
        SetCellToolTips("");
        screen_.ShowPlayerResults();
        screen_.CheckHighScore(gCurrentPlayer);
        if (gCurrentPlayer == gPlayerNames.UBound()) {
            if (gPlayerNames.UBound() > 1)
                screen_.ShowSummary();
            screen_.ShowNewGamePrompt();
            if (gNewGameChoice == 1)
                StartNewGame();
            else if (gNewGameChoice == 2)
                screen_.Unload();
            else
                screen_.ShowChangePlayers();
            return;
        }
    }
    gCurrentPlayer = gCurrentPlayer % gPlayerNames.UBound() + 1;
    RefreshScoreboard();
    BeginTurn();
}

void GameTable::SetCellToolTips(const std::string& text)
{
    for (int category = 1; category <= CategoryCount; ++category)
        screen_.SetCellToolTip(category, text);
}

Evaluation GameTable::Evaluate(int category) const
{
    return EvaluateCategory(mDice, gScores[gCurrentPlayer], category);
}
