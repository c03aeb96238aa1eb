#pragma once
// The player dialog: up to eight seats, and the list of known players kept in the data file.
// Its rules live in PlayerSelection on plain lists; after every step the window shows those
// lists again with its boxes' signals blocked, so that redrawing a list never runs a pick.
#include <QComboBox>
#include <QPushButton>
#include <array>

#include "DialogWindow.h"
#include "Frame.h"
#include "Label.h"
#include "PlayerSelection.h"

class GameTable;

class frmPlayers : public DialogWindow {
    Q_DECLARE_TR_FUNCTIONS(frmPlayers)

public:
    // Form_Load runs here: a data file that does not open is reported before the dialog shows.
    frmPlayers(QWidget* owner, GameTable& game);

    Frame* fraCurrentPlayers = nullptr;
    std::array<Label*, MaxPlayers> lblPlayer{};
    std::array<QComboBox*, MaxPlayers> cboPlayer{};
    Frame* fraAddRemove = nullptr;
    QComboBox* cboAddRemove = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdRemove = nullptr;
    Label* lblNote = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdPlay = nullptr;

private:
    void CreateSeats();
    void CreateAddRemove();
    void cmdAdd_Click();
    void cmdRemove_Click();
    void cmdPlay_Click();
    void ShowSelection();

    PlayerSelection selection_;
    GameTable& game_;
};
