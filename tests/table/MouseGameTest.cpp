// The game played with the mouse on the real window: the dice field, cmdRoll, the confirm
// messages and the boxed cells.
#include <QPushButton>

#include "Scoring.h"
#include "Twips.h"
#include "WindowFixture.h"

namespace {
const std::string NoDiceSelected = "No dice selected.\r\nAre you satisfied with the roll?";
}

using MouseGame = WindowTest;

// A left click anywhere in the dice field starts the first roll while the player is asked to
// roll; the roll then rests with all five dice in KeepRow, in their columns.
TEST_F(MouseGame, ClickInTheFieldStartsTheFirstRoll)
{
    ClickField(ColumnPoint(4));
    EXPECT_EQ(logic().mRollPhase, 2);
    EXPECT_TRUE(form->lblPleaseRoll->isHidden());
    EXPECT_FALSE(form->cmdRoll->isEnabled());
    EXPECT_EQ(FinishRoll(), 45);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(form->DieLeft(i), 120 + 840 * i);
        EXPECT_EQ(form->DieTop(i), KeepRow);
        EXPECT_EQ(form->imgDie[i]->Picture().toImage(), form->ilsDie[logic().mDice[i]].toImage());
    }
    EXPECT_EQ(form->cmdRoll->text(), "Accept");
    EXPECT_FALSE(form->lblKeep[2]->isHidden());
}

// Between rolls a left click in a die's column moves it between the rows, wherever in the
// column it lands, and the caption follows; a right click is Roll or Accept and moves nothing.
TEST_F(MouseGame, ColumnsMoveDiceAndTheRightButtonRolls)
{
    Click(form->cmdRoll);
    FinishRoll();
    ClickField(ColumnPoint(1));
    EXPECT_EQ(form->DieTop(1), RollRow);
    EXPECT_EQ(form->cmdRoll->text(), "Roll");
    Click(form->imgDie[1]);   // on the die itself, now in RollRow
    EXPECT_EQ(form->DieTop(1), KeepRow);
    EXPECT_EQ(form->cmdRoll->text(), "Accept");

    ClickField(ColumnPoint(3));
    Click(form->imgDie[0], Qt::RightButton);
    EXPECT_EQ(form->DieTop(0), KeepRow) << "the right button moves no die";
    EXPECT_EQ(logic().mRollPhase, 1) << "with a die marked, the right button rolls";
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(FinishRoll(), 37 + 3);
    EXPECT_EQ(logic().mRollsDone, 2);
}

// With no die marked the right button asks the confirm question: No changes nothing, Yes
// opens the choosing with every open cell boxed.
TEST_F(MouseGame, AcceptAsksFirst)
{
    Click(form->cmdRoll);
    FinishRoll();
    answers = {vbNo};
    Click(form->imgDie[3], Qt::RightButton);
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0].text, NoDiceSelected);
    EXPECT_EQ(asked[0].title, "Zarvo - Confirm");
    EXPECT_EQ(asked[0].style, vbYesNo | vbQuestion | vbDefaultButton2);
    EXPECT_EQ(form->cmdRoll->text(), "Accept");
    EXPECT_TRUE(form->cmdRoll->isEnabled());

    answers = {vbYes};
    Click(form->cmdRoll);
    EXPECT_FALSE(form->lblSelectCategory->isHidden());
    EXPECT_FALSE(form->picDisplayer->isEnabled());
    EXPECT_EQ(logic().mRollsDone, 3);
    for (int c = 1; c <= 13; ++c)
        EXPECT_EQ(form->Cell(c)->BorderStyle(), 1) << c;
    // The dice give no answer now.
    const int top = form->DieTop(0);
    ClickField(ColumnPoint(0));
    EXPECT_EQ(form->DieTop(0), top);
}

// With the preview on, each boxed cell shows what it would bring, bonuses included; a click
// on a flat filled cell does nothing, a click on a boxed one scores it.
TEST_F(MouseGame, PreviewNumbersAndCellClicks)
{
    form->mnuScoringPreview->setChecked(true);
    gScores[1][CatOnes] = 3;
    gScores[1][CatTwos] = 6;
    gScores[1][CatFours] = 16;
    gScores[1][CatFives] = 20;
    gScores[1][CatSixes] = 12;   // left sum 57
    logic().RefreshScoreboard();
    Click(form->cmdRoll);
    FinishRoll();
    logic().mDice = {3, 3, 1, 2, 5};
    answers = {vbYes};
    Click(form->cmdRoll);
    EXPECT_EQ(form->Cell(CatThrees)->Caption(), "41 ");
    EXPECT_EQ(form->Cell(CatFullHouse)->Caption(), "0 ");
    EXPECT_EQ(form->Cell(CatFullHouse)->BackColor(), QColor(192, 192, 192));
    EXPECT_EQ(form->Cell(CatChance)->Caption(), "14 ");
    EXPECT_EQ(form->Cell(CatOnes)->Caption(), "3 ") << "a filled cell keeps its value";
    EXPECT_EQ(form->Cell(CatOnes)->BorderStyle(), 0);

    Click(form->Cell(CatOnes));
    EXPECT_EQ(gScores[1][CatChance], EmptyCell);
    EXPECT_FALSE(form->lblSelectCategory->isHidden()) << "a flat cell is no choice";

    answers = {vbNo};
    Click(form->lblRight[3]);   // Full House scores nothing while others would: the question
    ASSERT_EQ(asked.size(), 2u);
    EXPECT_EQ(asked[1].text, "Take a zero?");
    EXPECT_EQ(asked[1].style, vbYesNo | vbQuestion);
    EXPECT_EQ(gScores[1][CatFullHouse], EmptyCell) << "No keeps the cell open";

    Click(form->lblLeft[3]);
    EXPECT_EQ(gScores[1][CatThrees], 6);
    EXPECT_EQ(form->lblLeftTotal->Caption(), "63");
    EXPECT_EQ(form->lblBonusTotal->Caption(), "35");
    EXPECT_EQ(form->Cell(CatThrees)->Caption(), "6 ");
    EXPECT_FALSE(form->lblPleaseRoll->isHidden()) << "the next turn begins";
}

// A whole one-player game by mouse: each turn one roll, Accept, and the first boxed white cell
// (or the first boxed one at all). After the 13th turn the card is full, its totals agree with
// the rules, and the finished game waits with no turn open.
TEST_F(MouseGame, WholeGameToAFullCard)
{
    for (int turn = 1; turn <= 13; ++turn) {
        SCOPED_TRACE("turn " + std::to_string(turn));
        ClickField(ColumnPoint(2));
        FinishRoll();
        answers = {vbYes, vbYes};   // Accept, and a zero if it comes to that
        Click(form->imgDie[0], Qt::RightButton);
        ASSERT_FALSE(form->lblSelectCategory->isHidden());
        int chosen = 0;
        for (int c = 1; c <= 13 && !chosen; ++c)
            if (form->Cell(c)->BorderStyle() == 1 && form->Cell(c)->BackColor() == QColor(255, 255, 255))
                chosen = c;
        for (int c = 1; c <= 13 && !chosen; ++c)
            if (form->Cell(c)->BorderStyle() == 1)
                chosen = c;
        ASSERT_NE(chosen, 0);
        const Evaluation expected = EvaluateCategory(logic().mDice, gScores[1], chosen);
        Click(form->Cell(chosen));
        EXPECT_EQ(gScores[1][chosen], expected.score);
    }
    EXPECT_TRUE(PlayerCardFull(gScores[1]));
    const CardTotals totals = TotalsOf(gScores[1]);
    EXPECT_EQ(form->lblLeftTotal->Caption(), QString::number(totals.left));
    EXPECT_EQ(form->lblRightTotal->Caption(), QString::number(totals.right));
    EXPECT_EQ(form->lblTotal->Caption(), QString::number(PlayerTotal(1)));
    for (int c = 1; c <= 13; ++c)
        EXPECT_EQ(form->Cell(c)->Caption(), QString::number(gScores[1][c]) + " ");
    EXPECT_TRUE(form->lblPleaseRoll->isHidden());
    EXPECT_TRUE(form->lblSelectCategory->isHidden());
    EXPECT_FALSE(form->cmdRoll->isEnabled());
}
