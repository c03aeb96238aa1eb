#pragma once
// The new-high-score window: congratulates, and takes the name the entry is to carry.
#include "DialogWindow.h"

class Label;
class QLineEdit;
class QPushButton;

class frmHighScoreNotify : public DialogWindow {
    Q_DECLARE_TR_FUNCTIONS(frmHighScoreNotify)

public:
    // Form_Load: the box offers gHighScoreName. OK copies the box into gHighScoreName; a window
    // closed any other way leaves the offered name there.
    explicit frmHighScoreNotify(QWidget* owner);

    Label* lblCongrats[3];
    Label* lblPlayerName;
    QLineEdit* txtName;
    QPushButton* cmdOK;

private:
    void cmdOK_Click();
};
