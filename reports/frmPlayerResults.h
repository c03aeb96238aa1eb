#pragma once
// The results window of one player's full card: the score, the session and all-time figures
// with the records in bold, and one line of comment.
#include "DialogWindow.h"
#include "Frame.h"
#include "Label.h"

class QPushButton;

class frmPlayerResults : public DialogWindow {
    Q_DECLARE_TR_FUNCTIONS(frmPlayerResults)

public:
    explicit frmPlayerResults(QWidget* owner);

    // Counts the game of gCurrentPlayer and fills the labels; called once, before showing.
    void ShowValues();

    QPushButton* cmdOK = nullptr;
    Label* lblScored = nullptr;
    Frame* fraCurrentSession = nullptr;
    Label *lblCurrentHighLbl = nullptr, *lblCurrentLowLbl = nullptr, *lblCurrentAvgLbl = nullptr;
    Label *lblSession = nullptr, *lblCurrentHigh = nullptr, *lblCurrentLow = nullptr, *lblCurrentAvg = nullptr;
    Label *lblAll = nullptr, *lblAllHigh = nullptr, *lblAllLow = nullptr, *lblAllAvg = nullptr;
    Label* lblCurrentInfo = nullptr;
};
