#pragma once
// "Play another game?" at the end of a game. Only its buttons answer, into gNewGameChoice.
#include "DialogWindow.h"
#include "Label.h"

class QPushButton;

class frmNewGame : public DialogWindow {
    Q_DECLARE_TR_FUNCTIONS(frmNewGame)

public:
    explicit frmNewGame(QWidget* owner);

    QPushButton* cmdYes = nullptr;
    QPushButton* cmdNo = nullptr;
    Label* lblAnother = nullptr;
};
