#pragma once
// The figures of frmPlayerResults: a full card counted in the player's session statistics and
// all-time row, the one line of comment, and the labels made bold. Plain C++: the window only
// shows what this gives.
#include <string>

struct ResultValues {
    std::string SessionCaption;   // fraCurrentSession
    std::string Scored;           // lblScored
    std::string Info;             // lblCurrentInfo, the one line of comment
    std::string CurrentHigh, CurrentLow, CurrentAvg;
    bool AllTime = false;         // false: the all-time line is hidden and the window shrinks
    std::string AllHigh, AllLow, AllAvg;
    bool BoldCurrentHigh = false, BoldCurrentLow = false;
    bool BoldAllHigh = false, BoldAllLow = false;
};

// ShowValues for `player`: counts the game of that player's full card in gSessionStats and in
// the player's row of table Player, and gives what the results window shows. Call it once per
// card; it changes the statistics.
ResultValues CountGameResults(int player);
