#pragma once
// The windows at the end of a card and of a game, each modal with `owner` as owner.
class QWidget;

// frmPlayerResults for gCurrentPlayer: loaded, filled by its ShowValues, then shown.
void ShowPlayerResultsDialog(QWidget* owner);
// frmSummary: all players of the game side by side, at any moment of a game.
void ShowSummaryDialog(QWidget* owner);
// frmNewGame: the answer goes to gNewGameChoice, and only a button writes it.
void ShowNewGameDialog(QWidget* owner);
