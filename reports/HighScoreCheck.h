#pragma once
// CheckHighScore: after a player's results window, a game total above the lowest of the ten
// best replaces that row under the name the player confirms.

// The two windows the check opens, each modal with the check's owner as owner.
class HighScoreDialogs {
public:
    virtual ~HighScoreDialogs() = default;
    // frmHighScoreNotify: offers gHighScoreName and leaves the name to enter in it.
    virtual void ShowHighScoreNotify() = 0;
    // frmHighScores: the table as it now stands.
    virtual void ShowHighScores() = 0;
};

// Called once for each player at the end of that player's card; `owner` opens the windows.
void CheckHighScore(int player, HighScoreDialogs& owner);
