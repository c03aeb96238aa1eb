#include "frmSummary.h"

#include <QPushButton>
#include <vector>

#include "Accessible.h"
#include "ControlNames.h"
#include "Look.h"
#include "NumberText.h"
#include "QtServices.h"
#include "SummaryFigures.h"
#include "Twips.h"
#include "modCommon.h"
#include "modGlobalVars.h"

namespace {
constexpr int GridWidth = 4575, GridHeight = 3585;   // the client area for eight players
constexpr int FirstRowTop = 600, RowHeight = 240;

// Numbers keep the leading blank of Str; on the right-aligned labels it falls on the left, unseen.
QString Number(int value) { return QString::fromStdString(Str(value)); }
}

frmSummary::frmSummary(QWidget* owner)
    : DialogWindow(owner, tr("Zarvo - Scoring Summary"), GridWidth, GridHeight, TitleBar::CloseBox, true)
{
    cmdOK = new QPushButton(tr("OK"), this);
    Place(cmdOK, {3120, 3120, 1335, 375});
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    for (int i = 0; i < MaxPlayers; ++i) {
        const int top = FirstRowTop + RowHeight * i;
        lblName[i] = NewLabel(this, {240, top, 975, 255});
        lblLeft[i] = NewLabel(this, {1440, top, 375, 255}, {}, Align::Right);
        lblRight[i] = NewLabel(this, {2040, top, 375, 255}, {}, Align::Right);
        lblBonus[i] = NewLabel(this, {2640, top, 375, 255}, {}, Align::Right);
        lblTotal[i] = NewLabel(this, {3240, top, 375, 255}, {}, Align::Right);
        lblZarvos[i] = NewLabel(this, {3900, top, 375, 255}, {}, Align::Right);
    }
    for (auto [array, name] : {std::pair{&lblName, "lblName"}, {&lblLeft, "lblLeft"}, {&lblRight, "lblRight"},
                               {&lblBonus, "lblBonus"}, {&lblTotal, "lblTotal"}, {&lblZarvos, "lblZarvos"}})
        SetArrayName(*array, name);
    lblPlayerLbl = NewLabel(this, {240, 195, 1095, 255}, tr("Player:"));
    lblLeftLbl = NewLabel(this, {1440, 195, 375, 255}, tr("Left:"), Align::Centre);
    lblRightLbl = NewLabel(this, {1920, 195, 615, 255}, tr("Right:"), Align::Centre);
    lblBonusLbl = NewLabel(this, {2520, 195, 615, 255}, tr("Bonus:"), Align::Centre);
    lblTotalLbl = NewLabel(this, {3120, 195, 615, 255}, tr("Total:"), Align::Centre);
    lblZarvoLbl = NewLabel(this, {3840, 195, 615, 255}, tr("Zarvos:"));
    lblTotals = NewLabel(this, {240, 2700, 975, 255}, tr("Totals:"));
    lblTotalLeft = NewLabel(this, {1320, 2700, 495, 255}, {}, Align::Right);
    lblTotalRight = NewLabel(this, {1920, 2700, 495, 255}, {}, Align::Right);
    lblTotalBonus = NewLabel(this, {2520, 2700, 495, 255}, {}, Align::Right);
    lblTotalTotal = NewLabel(this, {3120, 2700, 495, 255}, {}, Align::Right);
    lblTotalZarvos = NewLabel(this, {3900, 2700, 375, 255}, {}, Align::Right);
    SetNames({{cmdOK, "cmdOK"}, {lblPlayerLbl, "lblPlayerLbl"}, {lblLeftLbl, "lblLeftLbl"},
              {lblRightLbl, "lblRightLbl"}, {lblBonusLbl, "lblBonusLbl"}, {lblTotalLbl, "lblTotalLbl"},
              {lblZarvoLbl, "lblZarvoLbl"}, {lblTotals, "lblTotals"}, {lblTotalLeft, "lblTotalLeft"},
              {lblTotalRight, "lblTotalRight"}, {lblTotalBonus, "lblTotalBonus"}, {lblTotalTotal, "lblTotalTotal"},
              {lblTotalZarvos, "lblTotalZarvos"}});
    ArrangeSummaryGrid();
    FillSummaryGrid();
}

void frmSummary::ArrangeSummaryGrid()
{
    const int players = gPlayerNames.UBound();
    for (int i = players; i < MaxPlayers; ++i)
        for (Label* label : {lblName[i], lblLeft[i], lblRight[i], lblBonus[i], lblTotal[i], lblZarvos[i]})
            label->hide();
    // The heads stay; everything under the player rows moves up by the rows not needed.
    const int shift = SummaryShift(players);
    for (QWidget* below : std::initializer_list<QWidget*>{lblTotals, lblTotalLeft, lblTotalRight, lblTotalBonus,
                                                          lblTotalTotal, lblTotalZarvos, cmdOK})
        AddToTop(below, shift);
    SetClientHeight(GridHeight + shift);
    DrawGridLines(shift);

    // Beside the main window's left edge, centred on it in height. Both windows carry the
    // same title bar, so their client heights centre them as their outer heights would.
    if (const QWidget* main = parentWidget() ? parentWidget()->window() : nullptr) {
        const QRect outer = main->frameGeometry();
        move(outer.x(), outer.y() + (main->height() - height()) / 2);
    }
}

// Etched lines: each a dark line with a light one 15 twips below or to the right of it. The
// upper ends stay; the lower ends of the verticals and the two bottom pairs follow the shift.
// They lie under the labels, as lines drawn on the window itself do.
void frmSummary::DrawGridLines(int shift)
{
    struct Ends { QString name; int x1, y1, x2, y2; };
    const int bottom = 3000 + shift, under = 2580 + shift;
    std::vector<std::pair<Ends, Ends>> pairs = {
        {{"Line21", 105, 105, 4455, 105}, {"Line16", 120, 120, 4455, 120}},
        {{"Line1", 120, 480, 4440, 480}, {"Line7", 120, 495, 4440, 495}},
        {{"linBottom(0)", 120, under, 4440, under}, {"linBottom(1)", 120, under + 15, 4440, under + 15}},
        {{"linBottom(2)", 120, bottom, 4440, bottom}, {"linBottom(3)", 120, bottom + 15, 4440, bottom + 15}},
        {{"linVert(0)", 105, 105, 105, bottom + 15}, {"linVert(1)", 120, 120, 120, bottom + 15}},
    };
    const int columns[] = {1320, 1920, 2520, 3120, 3720, 4440};   // linVert(2) to (13)
    for (int k = 0; k < 6; ++k)
        pairs.push_back({{QString("linVert(%1)").arg(2 + 2 * k), columns[k], 120, columns[k], bottom},
                         {QString("linVert(%1)").arg(3 + 2 * k), columns[k] + 15, 120, columns[k] + 15, bottom + 15}});
    for (const auto& [dark, light] : pairs) {
        for (const auto& [ends, colour] : {std::pair{dark, Look::InactiveTitleBar}, {light, Look::WindowBackground}}) {
            auto* line = new Line(this, ends.x1, ends.y1, ends.x2, ends.y2, colour);
            line->setObjectName(ends.name);
            line->lower();
        }
    }
}

void frmSummary::FillSummaryGrid()
{
    const SummaryFigures figures = SumSummaryGrid();
    const QList<const Label*> heads{lblLeftLbl, lblRightLbl, lblBonusLbl, lblTotalLbl, lblZarvoLbl};
    for (int p = 1; p <= gPlayerNames.UBound(); ++p) {
        const SummaryLine& line = figures.players[p - 1];
        lblName[p - 1]->SetCaption(QString::fromStdString(PlayerDisplayName(p)));
        lblLeft[p - 1]->SetCaption(Number(line.Left));
        lblRight[p - 1]->SetCaption(Number(line.Right));
        lblBonus[p - 1]->SetCaption(Number(line.Bonus));
        lblTotal[p - 1]->SetCaption(Number(line.Total));
        lblZarvos[p - 1]->SetCaption(Number(line.Zarvos));
        NameRow({lblName[p - 1], lblLeft[p - 1], lblRight[p - 1], lblBonus[p - 1], lblTotal[p - 1], lblZarvos[p - 1]}, heads);
    }
    lblTotalLeft->SetCaption(Number(figures.totals.Left));
    lblTotalRight->SetCaption(Number(figures.totals.Right));
    lblTotalBonus->SetCaption(Number(figures.totals.Bonus));
    lblTotalTotal->SetCaption(Number(figures.totals.Total));
    lblTotalZarvos->SetCaption(Number(figures.totals.Zarvos));
    NameRow({lblTotals, lblTotalLeft, lblTotalRight, lblTotalBonus, lblTotalTotal, lblTotalZarvos}, heads);
}
