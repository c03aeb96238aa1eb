#pragma once
// The composition of the program: the game table window with the dialogs of the players and
// reports subsystems, each opened modally with frmMain as owner.
#include "frmMain.h"

class GameDialogs : public Dialogs {
public:
    explicit GameDialogs(frmMain& form) : form_(form) {}

    void ShowChangePlayers() override;
    void ShowPlayerResults() override;
    void CheckHighScore(int player) override;
    void ShowSummary() override;
    void ShowNewGamePrompt() override;
    void ShowHighScores() override;

private:
    frmMain& form_;
};
