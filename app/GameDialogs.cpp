#include "GameDialogs.h"

#include "HighScoreWindows.h"
#include "PlayersWindow.h"
#include "ResultsWindows.h"

void GameDialogs::ShowChangePlayers() { ShowPlayersDialog(&form_, form_.Logic()); }
void GameDialogs::ShowPlayerResults() { ShowPlayerResultsDialog(&form_); }
void GameDialogs::CheckHighScore(int player) { CheckHighScoreWithDialogs(player, &form_); }
void GameDialogs::ShowSummary() { ShowSummaryDialog(&form_); }
void GameDialogs::ShowNewGamePrompt() { ShowNewGameDialog(&form_); }
void GameDialogs::ShowHighScores() { ShowHighScoresDialog(&form_); }
