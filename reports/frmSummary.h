#pragma once
// The Scoring Summary: every player of the game side by side with a totals row, laid out for
// eight players and shortened for fewer. Its load arranges and fills the grid afresh.
#include <array>

#include "DialogWindow.h"
#include "Label.h"

class QPushButton;

class frmSummary : public DialogWindow {
    Q_DECLARE_TR_FUNCTIONS(frmSummary)

public:
    // Form_Load: ArrangeSummaryGrid, then FillSummaryGrid, for the players of gPlayerNames.
    explicit frmSummary(QWidget* owner);

    // Player rows, index = player - 1.
    std::array<Label*, 8> lblName{}, lblLeft{}, lblRight{}, lblBonus{}, lblTotal{}, lblZarvos{};
    Label *lblPlayerLbl = nullptr, *lblLeftLbl = nullptr, *lblRightLbl = nullptr, *lblBonusLbl = nullptr,
          *lblTotalLbl = nullptr, *lblZarvoLbl = nullptr;
    Label *lblTotals = nullptr, *lblTotalLeft = nullptr, *lblTotalRight = nullptr, *lblTotalBonus = nullptr,
          *lblTotalTotal = nullptr, *lblTotalZarvos = nullptr;
    QPushButton* cmdOK = nullptr;

private:
    void ArrangeSummaryGrid();
    void FillSummaryGrid();
    void DrawGridLines(int shift);
};
