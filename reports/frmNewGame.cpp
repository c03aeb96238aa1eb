#include "frmNewGame.h"

#include <QPushButton>

#include "ControlNames.h"
#include "QtServices.h"
#include "modGlobalVars.h"

// No close box and no Escape: the window waits for a button. Closed any other way it leaves
// gNewGameChoice as it was: 0 in the first game of a run, else the last answer.
frmNewGame::frmNewGame(QWidget* owner)
    : DialogWindow(owner, tr(" Zarvo - New Game"), 3015, 1110, TitleBar::NoCloseBox, false)
{
    cmdYes = new QPushButton(tr("&Yes"), this);   // first in the tab order
    Place(cmdYes, {120, 600, 1335, 375});
    cmdYes->setDefault(true);
    cmdNo = new QPushButton(tr("&No"), this);
    Place(cmdNo, {1560, 600, 1335, 375});
    lblAnother = NewLabel(this, {120, 240, 2775, 375}, tr("Play another game?"), Align::Centre);
    SetNames({{cmdYes, "cmdYes"}, {cmdNo, "cmdNo"}, {lblAnother, "lblAnother"}});

    connect(cmdYes, &QPushButton::clicked, this, [this] {
        gNewGameChoice = 1;
        accept();
    });
    connect(cmdNo, &QPushButton::clicked, this, [this] {
        gNewGameChoice = 2;
        accept();
    });
}
