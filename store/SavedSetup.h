#pragma once
// The options and players that survive from one run to the next (tables Setup and
// PlayersInUse). Neither routine tells the user anything when the data file does not open.

// The four option marks of the menu. The defaults are the marks when the window opens.
struct SetupMarks {
    bool RememberPlayers = false;
    bool UseKeyboard = false;
    bool ShowScoringPreview = false;
    bool AnimateRolling = true;
};

// Sets gPlayerNames (one "< Player 1 >", or the remembered players) and `marks` from the file.
void LoadSetup(SetupMarks& marks);

// Rewrites Setup and PlayersInUse from `marks` and gPlayerNames, in one transaction.
void SaveSetup(const SetupMarks& marks);
