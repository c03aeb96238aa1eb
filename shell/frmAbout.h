#pragma once
// The About box: the title art, the game's name and version, two lines of credits and OK.
// It has no title bar, so it draws its own fixed dialog border around the client area.
#include "DialogWindow.h"

class Label;
class QPushButton;

class frmAbout : public DialogWindow {
    Q_DECLARE_TR_FUNCTIONS(frmAbout)

public:
    explicit frmAbout(QWidget* owner);

    Label* imgMain = nullptr;
    QWidget* picTitle = nullptr;
    Label* lblTitle = nullptr;
    Label* lblVersion = nullptr;
    Label* lblInfo = nullptr;
    Label* lblProgrammer = nullptr;
    QPushButton* cmdOK = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void cmdOK_Click();
};
