#pragma once
// The High Scores window: the ten best games, best first, the entries of today in bold. It
// reads the table once, while it loads, and only reads.
#include "DialogWindow.h"
#include "HighScoreLines.h"

class Frame;
class Label;
class QPushButton;

class frmHighScores : public DialogWindow {
    Q_DECLARE_TR_FUNCTIONS(frmHighScores)

public:
    // Form_Load: opens the data file, telling the user if it cannot, fills the rows, closes it.
    explicit frmHighScores(QWidget* owner);

    // False when the window closed itself while loading: the caller shows nothing.
    bool Loaded() const { return loaded_; }

    Frame* fraTopTen;
    Label* lblNameLbl;
    Label* lblScoreLbl;
    Label* blbDateLbl;
    Label* lblNumbers[HighScoreRows];
    Label* lblPlayerName[HighScoreRows];
    Label* lblScore[HighScoreRows];
    Label* lblDate[HighScoreRows];
    QPushButton* cmdOK;

private:
    bool Form_Load();

    bool loaded_ = false;
};
