#pragma once
// The top ten: the check after a player's results, and the High Scores window.
class QWidget;

// CheckHighScore(player, owner): a total above the lowest of the ten best replaces it under
// the name typed in frmHighScoreNotify, and frmHighScores shows the new table.
void CheckHighScoreWithDialogs(int player, QWidget* owner);
// mnuHighScores_Click: frmHighScores loaded with its errors trapped, shown only if it loaded.
void ShowHighScoresDialog(QWidget* owner);
