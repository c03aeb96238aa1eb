#include "modGlobalVars.h"

OneBased<std::string> gPlayerNames(1, "< Player 1 >");
OneBased<ScoreCard> gScores;
int gCurrentPlayer = 1;
OneBased<SessionStats> gSessionStats;
int gNewGameChoice = 0;
bool gKeyboardOffered = false;
std::string gHighScoreName;
