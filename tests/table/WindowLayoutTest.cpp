// The furniture of the game table window: places in twips, captions, tooltips, fonts, and
// the looks of a score cell.
#include <QFontInfo>
#include <QFontMetrics>
#include <QPushButton>

#include "Look.h"
#include "Twips.h"
#include "WindowFixture.h"

namespace {
struct TwipRect { int left, top, width, height; };
TwipRect Twips(const QWidget* w)
{
    return {PixelsToTwips(w->x()), PixelsToTwips(w->y()), PixelsToTwips(w->width()), PixelsToTwips(w->height())};
}
void ExpectAt(const QWidget* w, TwipRect expected, const char* name)
{
    const TwipRect r = Twips(w);
    EXPECT_EQ(r.left, expected.left) << name;
    EXPECT_EQ(r.top, expected.top) << name;
    EXPECT_EQ(r.width, expected.width) << name;
    EXPECT_EQ(r.height, expected.height) << name;
}
}

using WindowLayout = WindowTest;

// A sample of controls at their rectangles, relative to their parents, in twips.
TEST_F(WindowLayout, ControlsStandAtTheirRectangles)
{
    EXPECT_EQ(form->windowTitle(), "Zarvo");
    EXPECT_EQ(PixelsToTwips(form->centralWidget()->width()), 4575);
    EXPECT_EQ(PixelsToTwips(form->centralWidget()->height()), 4560);
    ExpectAt(form->picDisplayer, {150, 120, 4275, 1755}, "picDisplayer");
    ExpectAt(form->fraScoreboard, {120, 1920, 4335, 2055}, "fraScoreboard");
    ExpectAt(form->cmdRoll, {3120, 4080, 1335, 375}, "cmdRoll");
    ExpectAt(form->lblPleaseRoll, {240, 360, 3735, 255}, "lblPleaseRoll");
    ExpectAt(form->lblSelectCategory, {240, 1320, 3735, 255}, "lblSelectCategory");
    for (int i = 0; i < 5; ++i) {
        ExpectAt(form->lblDie[i], {840 * i, 0, 855, 1695}, "lblDie");
        ExpectAt(form->lblRoll[i], {240 + 840 * i, 540, 375, 255}, "lblRoll");
        ExpectAt(form->lblKeep[i], {240 + 840 * i, 960, 375, 255}, "lblKeep");
        // Before the first roll all five dice lie on the pile.
        ExpectAt(form->imgDie[i], {1800, 960, 615, 615}, "imgDie");
    }
    ExpectAt(form->lblCategoryNames[2], {105, 750, 615, 255}, "lblThrees");
    ExpectAt(form->lblCategoryNames[11], {1320, 1470, 1335, 255}, "lblZarvoLbl");
    ExpectAt(form->lblLeft[3], {720, 750, 375, 255}, "lblLeft(3)");
    ExpectAt(form->lblRight[7], {2520, 1710, 375, 255}, "lblRight(7)");
    ExpectAt(form->lblTotal, {3720, 1470, 375, 255}, "lblTotal");
    ExpectAt(form->lblTotalLbl, {3120, 1470, 615, 255}, "lblTotalLbl");
}

// Captions and tooltips are the program's own texts, exactly.
TEST_F(WindowLayout, CaptionsAndTooltips)
{
    EXPECT_EQ(form->cmdRoll->text(), "Roll");
    EXPECT_EQ(form->cmdRoll->toolTip(), "Roll or accept roll.");
    EXPECT_EQ(form->lblPleaseRoll->Caption(), "Player 1's turn. Please roll.");
    EXPECT_EQ(form->fraScoreboard->Caption(), "Player 1's Scoreboard");
    EXPECT_EQ(form->lblCategoryNames[8]->Caption(), "Full House.........");
    EXPECT_EQ(form->lblCategoryNames[8]->toolTip(), "Two of a kind + three of a kind. (Score 25.)");
    EXPECT_EQ(form->lblCategoryNames[9]->toolTip(), "1-2-3-4, 2-3-4-5, or 3-4-5-6. (Score 30.)");
    EXPECT_EQ(form->lblKeep[0]->Caption(), "Keep");
    EXPECT_EQ(form->lblRoll[4]->Caption(), "Roll");
    // An untouched card reads 0 in all four totals and blank in all thirteen cells.
    for (Label* total : {form->lblLeftTotal, form->lblRightTotal, form->lblBonusTotal, form->lblTotal})
        EXPECT_EQ(total->Caption(), "0");
    for (int c = 1; c <= 13; ++c)
        EXPECT_EQ(form->Cell(c)->Caption(), "");
}

// The chosen font is really there (not a fallback), and no caption is clipped in its width:
// the row captions, the prompts with the longest possible name, and the largest total.
TEST_F(WindowLayout, NoCaptionIsClipped)
{
    EXPECT_EQ(QFontInfo(form->lblCategoryNames[0]->font()).family(), Look::FontFamily);
    auto fits = [](const Label* label, const QString& text) {
        const int border = label->BorderStyle() == 1 ? 2 : 0;
        return QFontMetrics(label->font()).horizontalAdvance(text) <= label->width() - border;
    };
    std::vector<Label*> fixed(form->lblCategoryNames.begin(), form->lblCategoryNames.end());
    for (Label* l : {form->lblLeftLbl, form->lblRightLbl, form->lblBonusLbl, form->lblTotalLbl, form->lblSelectCategory})
        fixed.push_back(l);
    for (int i = 0; i < 5; ++i) {
        fixed.push_back(form->lblKeep[i]);
        fixed.push_back(form->lblRoll[i]);
    }
    for (Label* label : fixed)
        EXPECT_TRUE(fits(label, label->Caption())) << label->Caption().toStdString();
    EXPECT_TRUE(fits(form->lblPleaseRoll, "WWWWWWWWWWWW's turn. Please roll."));
    EXPECT_TRUE(fits(form->lblTotal, "1270"));
    EXPECT_TRUE(fits(form->lblRight[6], "150 "));
    form->lblRight[6]->SetBorderStyle(1);
    EXPECT_TRUE(fits(form->lblRight[6], "150 "));
    const QFontMetrics frameFont(form->fraScoreboard->font());
    EXPECT_LE(frameFont.horizontalAdvance("WWWWWWWWWWWW's Scoreboard"), form->fraScoreboard->width() - 16);
    EXPECT_LE(QFontMetrics(form->cmdRoll->font()).horizontalAdvance("Accept"), form->cmdRoll->width() - 8);
}

// Boxed cells stand 30 twips higher than flat ones, opaque white or light grey with a single
// border; the keyboard cursor lays dark grey with white text over them.
TEST_F(WindowLayout, LooksOfACell)
{
    Label* cell = form->Cell(CatThrees);
    const int flatTop = PixelsToTwips(cell->y());
    logic().MarkCategory(CatThrees, true);
    EXPECT_EQ(PixelsToTwips(cell->y()), flatTop - 30);
    EXPECT_EQ(cell->BorderStyle(), 1);
    EXPECT_EQ(cell->BackStyle(), 1);
    EXPECT_EQ(cell->BackColor(), QColor(255, 255, 255));
    logic().MarkCategory(CatThrees, false);   // already boxed: unchanged, colour included
    EXPECT_EQ(cell->BackColor(), QColor(255, 255, 255));
    EXPECT_EQ(PixelsToTwips(cell->y()), 240 + 240 * 2);
    logic().mKeyCursor = CatThrees;
    logic().ShowCategoryCursor();
    EXPECT_EQ(cell->BackColor(), QColor(128, 128, 128));
    EXPECT_EQ(cell->ForeColor(), QColor(255, 255, 255));
    logic().UnmarkCategory(CatThrees);
    logic().UnmarkCategory(CatThrees);
    EXPECT_EQ(PixelsToTwips(cell->y()), flatTop);
    EXPECT_EQ(cell->BorderStyle(), 0);
    EXPECT_EQ(cell->BackStyle(), 0);
}

// Before the first roll all dice lie on the pile showing die 2's six on top; the window's
// size is fixed and it has no maximize button.
TEST_F(WindowLayout, FixedWindowAndThePile)
{
    EXPECT_FALSE(form->windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_TRUE(form->windowFlags() & Qt::WindowMinimizeButtonHint);
    EXPECT_EQ(form->minimumSize(), form->maximumSize());
    EXPECT_EQ(form->imgDie[2]->Picture().toImage(), form->ilsDie[6].toImage());
    QWidget* field = form->imgDie[2]->parentWidget();
    EXPECT_EQ(field->childAt(form->imgDie[2]->geometry().center()), form->imgDie[2]);
}
