#pragma once
// The dialogs that frmMain opens, each modal with frmMain as owner. They belong to the players
// and reports subsystems; main composes them with the window, so that the game table does not
// depend on them.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual void ShowChangePlayers() = 0;         // frmPlayers, placed across the main window
    virtual void ShowPlayerResults() = 0;         // frmPlayerResults after its ShowValues
    virtual void CheckHighScore(int player) = 0;  // may lead to the notify and High Scores windows
    virtual void ShowSummary() = 0;               // frmSummary
    virtual void ShowNewGamePrompt() = 0;         // frmNewGame; the answer is in gNewGameChoice
    virtual void ShowHighScores() = 0;            // frmHighScores from the menu, errors trapped
};
