// The card of the current player on the screen, and the boxes that make a cell choosable.
// A cell is flat (no border, transparent) or boxed (single border, opaque, 30 twips higher);
// the boxed form is the record of what may be clicked.
#include "GameTable.h"
#include "../shell/QBColor.h"
#include "modCommon.h"
#include "modGlobalVars.h"
#include "Translate.h"

namespace {
std::string CellText(int value) { return std::to_string(value) + " "; }
}

void GameTable::RefreshScoreboard()
{
    UnmarkAllCategories();
    screen_.SetCaption(Control::fraScoreboard, Arg(Translate("GameTable", "%1's Scoreboard"), {PlayerDisplayName(gCurrentPlayer)}));
    const ScoreCard& card = gScores[gCurrentPlayer];
    for (int category = 1; category <= CategoryCount; ++category)
        screen_.SetCellCaption(category, card[category] < 0 ? "" : CellText(card[category]));
    const CardTotals totals = TotalsOf(card);
    screen_.SetCaption(Control::lblLeftTotal, std::to_string(totals.left));
    screen_.SetCaption(Control::lblRightTotal, std::to_string(totals.right));
    screen_.SetCaption(Control::lblBonusTotal, std::to_string(totals.bonus));
    screen_.SetCaption(Control::lblTotal, std::to_string(totals.Total()));
}

void GameTable::MarkCategory(int category, bool scoring)
{
    if (screen_.CellBorderStyle(category) != 0)
        return;   // already boxed: colour and place stay, so the offset cannot add up
    screen_.SetCellTop(category, screen_.CellTop(category) - 30);
    screen_.SetCellBackStyle(category, 1);
    screen_.SetCellBackColor(category, scoring ? QBColor(15) : QBColor(7));
    screen_.SetCellBorderStyle(category, 1);
}

void GameTable::UnmarkCategory(int category)
{
    if (screen_.CellBorderStyle(category) != 1)
        return;   // a flat cell keeps its caption
    screen_.SetCellTop(category, screen_.CellTop(category) + 30);
    screen_.SetCellBackStyle(category, 0);
    screen_.SetCellBorderStyle(category, 0);
    screen_.SetCellCaption(category, "");
}

void GameTable::UnmarkAllCategories()
{
    for (int category = 1; category <= CategoryCount; ++category)
        UnmarkCategory(category);
}

void GameTable::ClearCategoryCaptions()
{
    for (int category = 1; category <= CategoryCount; ++category)
        screen_.SetCellCaption(category, "");
}

void GameTable::ShowCategoryChoices()
{
    const bool preview = IsOn(Option::ShowScoringPreview);
    for (int category = 1; category <= CategoryCount; ++category) {
        // A flat cell with a caption is filled. A boxed one goes through again, so that a
        // second pass from the menu refreshes its number.
        if (!screen_.CellCaption(category).empty() && screen_.CellBorderStyle(category) == 0)
            continue;
        screen_.SetCellCaption(category, "");
        const int sum = Evaluate(category).Sum();
        if (preview)
            screen_.SetCellCaption(category, CellText(sum));
        MarkCategory(category, sum != 0);
    }
}

void GameTable::mnuScoringPreview_Click()
{
    screen_.SetChecked(Option::ShowScoringPreview, !IsOn(Option::ShowScoringPreview));
    if (screen_.Visible(Control::lblSelectCategory))
        ShowCategoryChoices();
}
