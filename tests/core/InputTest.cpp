// Mouse and keyboard on the table, and the boxes and numbers that show what can be chosen.
#include "TableFixture.h"

namespace {

class InputTest : public TableTest {
protected:
    void KeyboardOn() { screen.checked[Option::UseKeyboard] = true; }
    void PreviewOn() { screen.checked[Option::ShowScoringPreview] = true; }
    int DiceWithCursor() const
    {
        int n = 0;
        for (const FakeDie& d : screen.dice)
            n += d.list == ImageList::ilsDieInv;
        return n;
    }
    bool HasCursor(int category) const
    {
        return screen.cells[category].backColor == DarkGrey && screen.cells[category].foreColor == White;
    }
};

constexpr int AllButtons[] = {vbLeftButton, vbRightButton, vbMiddleButton};

}  // namespace

// With cmdRoll disabled the dice answer no button: not during a first roll (the field is still
// enabled then), and not during the choice.
TEST_F(InputTest, DiceIgnoreClicksWhileTheButtonIsDisabled)
{
    NewGame(1);
    table.RollOrAccept();
    for (int t = 0; t < 5; ++t)
        table.tmrRoll_Timer();
    ASSERT_TRUE(screen.Enabled(Control::picDisplayer));
    for (int button : AllButtons) {
        table.imgDie_MouseUp(1, button);
        table.lblDie_MouseUp(3, button);
    }
    EXPECT_EQ(table.mRollPhase, 2);
    EXPECT_EQ(table.mRollTicks, 5);
    RunTicks();
    msg.answers = {vbYes};
    table.RollOrAccept();
    for (int button : AllButtons)
        table.imgDie_MouseUp(0, button);
    EXPECT_EQ(screen.dice[0].top, KeepRow);
    EXPECT_TRUE(screen.Visible(Control::lblSelectCategory));
    EXPECT_EQ(msg.calls.size(), 1u);
}

// While the player is asked to roll any button anywhere in the dice field rolls, without
// moving a die.
TEST_F(InputTest, AnyButtonRollsWhileAskedToRoll)
{
    for (int button : AllButtons) {
        SCOPED_TRACE(button);
        NewGame(1);
        table.lblDie_MouseUp(0, button);
        EXPECT_EQ(table.mRollPhase, 2);
        EXPECT_FALSE(screen.Visible(Control::lblPleaseRoll));
        EXPECT_FALSE(screen.Enabled(Control::cmdRoll));
        EXPECT_EQ(screen.dice[0].top, RollRow);
    }
}

// Between rolls the right button is the command button and leaves the die alone; the left and
// the middle button move the die to the other row, and the caption follows the marks.
TEST_F(InputTest, DiceBetweenRolls)
{
    NewGame(1);
    Roll();
    msg.answers = {vbNo};
    table.imgDie_MouseUp(3, vbRightButton);
    EXPECT_EQ(msg.calls.size(), 1u);
    EXPECT_EQ(screen.dice[3].top, KeepRow);

    table.imgDie_MouseUp(3, vbLeftButton);
    EXPECT_EQ(screen.dice[3].top, RollRow);
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Roll");
    table.lblDie_MouseUp(1, vbMiddleButton);
    table.lblDie_MouseUp(3, vbMiddleButton);
    EXPECT_EQ(screen.dice[3].top, KeepRow);
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Roll");
    table.imgDie_MouseUp(1, vbLeftButton);
    EXPECT_EQ(screen.dice[1].top, KeepRow);
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Accept");

    table.imgDie_MouseUp(4, vbLeftButton);
    table.imgDie_MouseUp(0, vbRightButton);
    EXPECT_EQ(table.mRollPhase, 1);
    EXPECT_EQ(screen.dice[0].top, KeepRow);
    EXPECT_EQ(msg.calls.size(), 1u);
}

// Only a boxed cell can be taken: a click on a cell outside the choice, or on a filled cell
// during it, does nothing and asks nothing.
TEST_F(InputTest, OnlyBoxedCellsScore)
{
    NewGame(1);
    SetCard({{CatTwos, 6}});
    Roll();
    SetDice({1, 2, 3, 4, 6});
    table.lblLeft_Click(1);
    table.lblRight_Click(7);
    EXPECT_EQ(gScores[1][CatOnes], EmptyCell);
    EXPECT_EQ(gScores[1][CatChance], EmptyCell);

    msg.answers = {vbYes};
    table.RollOrAccept();
    table.lblLeft_Click(2);
    EXPECT_EQ(gScores[1][CatTwos], 6);
    EXPECT_TRUE(screen.Visible(Control::lblSelectCategory));
    table.lblRight_Click(4);
    EXPECT_EQ(gScores[1][CatSmallStraight], 30);
    EXPECT_EQ(msg.calls.size(), 1u);
}

// The choice boxes every open cell 30 twips higher, white where it would score and light grey
// where not; with the preview off no number is shown and filled cells stay flat.
TEST_F(InputTest, ChoiceBoxesOpenCells)
{
    NewGame(1);
    SetCard({{CatSixes, 12}, {CatZarvo, 0}});
    ReachChoice({1, 2, 3, 4, 6});
    const bool scores[CategoryCount + 1] = {false, true, true, true, true, false, true,
                                            false, false, false, true, false, false, true};
    for (int c = 1; c <= CategoryCount; ++c) {
        SCOPED_TRACE(c);
        if (c == CatSixes || c == CatZarvo) {
            EXPECT_EQ(screen.cells[c].borderStyle, 0);
            EXPECT_EQ(screen.cells[c].top, FlatCellTop(c));
            EXPECT_EQ(screen.cells[c].caption, c == CatSixes ? "12 " : "0 ");
            continue;
        }
        EXPECT_EQ(screen.cells[c].borderStyle, 1);
        EXPECT_EQ(screen.cells[c].backStyle, 1);
        EXPECT_EQ(screen.cells[c].top, FlatCellTop(c) - 30);
        EXPECT_EQ(screen.cells[c].backColor, scores[c] ? White : LightGrey);
        EXPECT_EQ(screen.cells[c].caption, "");
    }
}

// With the preview on each box shows the value with its bonuses and a trailing blank; a
// worthless box reads "0 ". After the choice the cell holds the score alone.
TEST_F(InputTest, PreviewNumbersIncludeBonuses)
{
    NewGame(1);
    PreviewOn();
    SetCard({{CatOnes, 4}, {CatTwos, 8}, {CatFours, 12}, {CatFives, 15}, {CatSixes, 18}, {CatSmallStraight, 0}});
    ReachChoice({3, 3, 1, 2, 5});
    EXPECT_EQ(screen.cells[CatThrees].caption, "41 ");
    EXPECT_EQ(screen.cells[CatChance].caption, "14 ");
    EXPECT_EQ(screen.cells[CatFullHouse].caption, "0 ");
    EXPECT_EQ(screen.cells[CatFullHouse].backColor, LightGrey);
    EXPECT_EQ(screen.cells[CatOnes].caption, "4 ");
    EXPECT_EQ(screen.cells[CatSmallStraight].caption, "0 ");
    EXPECT_EQ(screen.cells[CatSmallStraight].borderStyle, 0);
    ClickCell(CatThrees);
    EXPECT_EQ(screen.cells[CatThrees].caption, "6 ");
    EXPECT_EQ(screen.Caption(Control::lblLeftTotal), "63");
    EXPECT_EQ(screen.Caption(Control::lblBonusTotal), "35");
    EXPECT_EQ(screen.Caption(Control::lblTotal), "98");

    NewGame(1);
    PreviewOn();
    SetCard({{CatZarvo, 50}});
    ReachChoice({4, 4, 4, 4, 4});
    EXPECT_EQ(screen.cells[CatFours].caption, "120 ");
    EXPECT_EQ(screen.cells[CatChance].caption, "120 ");
    EXPECT_EQ(screen.cells[CatFullHouse].caption, "0 ");
    EXPECT_EQ(screen.cells[CatZarvo].caption, "50 ");
    EXPECT_EQ(screen.cells[CatZarvo].borderStyle, 0);
}

// A second pass from the menu adds or removes the numbers of the boxed cells only; boxes, places,
// colours and a cell cursor stay. Outside the choice the menu item changes only its check mark.
TEST_F(InputTest, PreviewSwitchedDuringTheChoice)
{
    NewGame(1);
    KeyboardOn();
    table.mnuScoringPreview_Click();
    EXPECT_TRUE(screen.Checked(Option::ShowScoringPreview));
    EXPECT_EQ(screen.cells[CatOnes].caption, "");
    table.mnuScoringPreview_Click();
    SetCard({{CatFives, 10}});
    ReachChoice({6, 6, 6, 2, 2});
    const auto before = screen.cells;
    table.mnuScoringPreview_Click();
    for (int c = 1; c <= CategoryCount; ++c) {
        SCOPED_TRACE(c);
        EXPECT_EQ(screen.cells[c].borderStyle, before[c].borderStyle);
        EXPECT_EQ(screen.cells[c].top, before[c].top);
        EXPECT_EQ(screen.cells[c].backColor, before[c].backColor);
    }
    EXPECT_EQ(screen.cells[CatSixes].caption, "18 ");
    EXPECT_EQ(screen.cells[CatFullHouse].caption, "25 ");
    EXPECT_EQ(screen.cells[CatOnes].caption, "0 ");
    EXPECT_EQ(screen.cells[CatFives].caption, "10 ");
    EXPECT_TRUE(HasCursor(CatOnes));
    table.mnuScoringPreview_Click();
    EXPECT_EQ(screen.cells[CatSixes].caption, "");
    EXPECT_EQ(screen.cells[CatOnes].caption, "");
    EXPECT_EQ(screen.cells[CatFives].caption, "10 ");
    EXPECT_EQ(screen.BoxedCount(), 12);
    EXPECT_TRUE(HasCursor(CatOnes));
}

// Marking and unmarking act only on the form they change, so the 30-twip offset never adds up,
// a boxed cell keeps its colour, and a flat filled cell keeps its score.
TEST_F(InputTest, MarkAndUnmarkNeverAddUp)
{
    NewGame(1);
    table.MarkCategory(CatFours, true);
    table.MarkCategory(CatFours, false);
    EXPECT_EQ(screen.cells[CatFours].top, FlatCellTop(CatFours) - 30);
    EXPECT_EQ(screen.cells[CatFours].backColor, White);
    table.UnmarkCategory(CatFours);
    table.UnmarkCategory(CatFours);
    EXPECT_EQ(screen.cells[CatFours].top, FlatCellTop(CatFours));
    EXPECT_EQ(screen.cells[CatFours].borderStyle, 0);
    SetCard({{CatChance, 0}});
    table.UnmarkCategory(CatChance);
    EXPECT_EQ(screen.cells[CatChance].caption, "0 ");
    EXPECT_EQ(screen.cells[CatChance].top, FlatCellTop(CatChance));
}

// Showing the card unboxes every cell and always shows four numbers; an empty card reads 0.
// Clearing the captions blanks every cell, a scored zero too.
TEST_F(InputTest, RefreshScoreboardShowsAFlatCard)
{
    NewGame(1);
    ReachChoice({1, 2, 3, 4, 5});
    ASSERT_EQ(screen.BoxedCount(), 13);
    table.RefreshScoreboard();
    EXPECT_EQ(screen.BoxedCount(), 0);
    for (int c = 1; c <= CategoryCount; ++c) {
        EXPECT_EQ(screen.cells[c].top, FlatCellTop(c)) << c;
        EXPECT_EQ(screen.cells[c].caption, "") << c;
    }
    for (Control total : {Control::lblLeftTotal, Control::lblRightTotal, Control::lblBonusTotal, Control::lblTotal})
        EXPECT_EQ(screen.Caption(total), "0");
    EXPECT_EQ(screen.Caption(Control::fraScoreboard), "Player 1's Scoreboard");
    SetCard({{CatTwos, 4}, {CatChance, 0}});
    EXPECT_EQ(screen.cells[CatChance].caption, "0 ");
    table.ClearCategoryCaptions();
    for (int c = 1; c <= CategoryCount; ++c)
        EXPECT_EQ(screen.cells[c].caption, "") << c;
}

// The cell cursor: Up and Down wrap within a column, Left and Right change column in the same
// row, and Chance has no partner. The new cell shows the cursor, the old one loses it.
TEST_F(InputTest, CategoryCursorMoves)
{
    struct Row {
        int up, down, side;
    } const moves[CategoryCount + 1] = {
        {}, {6, 2, 7}, {1, 3, 8}, {2, 4, 9}, {3, 5, 10}, {4, 6, 11}, {5, 1, 12},
        {13, 8, 1}, {7, 9, 2}, {8, 10, 3}, {9, 11, 4}, {10, 12, 5}, {11, 13, 6}, {12, 7, 13},
    };
    NewGame(1);
    KeyboardOn();
    ReachChoice({1, 2, 3, 4, 6});
    for (int from = 1; from <= CategoryCount; ++from) {
        const std::pair<int, int> keys[] = {
            {vbKeyUp, moves[from].up}, {vbKeyDown, moves[from].down},
            {vbKeyLeft, moves[from].side}, {vbKeyRight, moves[from].side}};
        for (auto [key, to] : keys) {
            SCOPED_TRACE(std::to_string(from) + " key " + std::to_string(key));
            table.HideCategoryCursor();
            table.mKeyCursor = from;
            table.ShowCategoryCursor();
            EXPECT_EQ(table.Form_KeyDown(key), 0);
            EXPECT_EQ(table.mKeyCursor, to);
            EXPECT_TRUE(HasCursor(to));
            if (to != from) {
                EXPECT_EQ(screen.cells[from].foreColor, Black);
            }
        }
    }
}

// Enter rolls before the first roll and between rolls, whether the mode is on or not, and
// brings the confirm question when the caption is "Accept". Before the first roll of a run
// there is no face to take the cursor off.
TEST_F(InputTest, EnterRollsAndAccepts)
{
    for (bool keyboard : {false, true}) {
        SCOPED_TRACE(keyboard);
        NewGame(1);
        screen.checked[Option::UseKeyboard] = keyboard;
        table.mDice = {0, 0, 0, 0, 0};
        const int refreshes = screen.refreshCount[2];
        EXPECT_EQ(table.Form_KeyDown(vbKeyReturn), 0);
        EXPECT_EQ(table.mRollPhase, 2);
        EXPECT_EQ(screen.refreshCount[2], refreshes + 1);
        EXPECT_EQ(screen.dice[2].face, 6);
        RunTicks();
        msg.answers = {vbNo};
        table.Form_KeyDown(vbKeyReturn);
        EXPECT_EQ(msg.calls.back().text, "No dice selected.\r\nAre you satisfied with the roll?");
        MarkDice({4});
        table.Form_KeyDown(vbKeyReturn);
        EXPECT_EQ(table.mRollPhase, 1);
    }
    EXPECT_EQ(msg.calls.size(), 2u);
}

// In the choice Enter scores the boxed cell under the cursor; on a filled cell, or with the
// mode off, it does nothing and brings no offer.
TEST_F(InputTest, EnterWhileChoosing)
{
    NewGame(1);
    SetCard({{CatOnes, 3}});
    ReachChoice({2, 2, 2, 5, 5});
    EXPECT_EQ(table.Form_KeyDown(vbKeyReturn), 0);
    EXPECT_TRUE(screen.Visible(Control::lblSelectCategory));
    EXPECT_EQ(gScores[1][CatFullHouse], EmptyCell);
    EXPECT_EQ(msg.calls.size(), 1u);

    table.mnuUseKeyboard_Click();
    ASSERT_EQ(table.mKeyCursor, 1);
    table.Form_KeyDown(vbKeyReturn);
    EXPECT_EQ(gScores[1][CatOnes], 3);
    EXPECT_TRUE(screen.Visible(Control::lblSelectCategory));
    table.Form_KeyDown(vbKeyRight);
    table.Form_KeyDown(vbKeyDown);
    table.Form_KeyDown(vbKeyDown);
    ASSERT_EQ(table.mKeyCursor, CatFullHouse);
    table.Form_KeyDown(vbKeyReturn);
    EXPECT_EQ(gScores[1][CatFullHouse], 25);
    EXPECT_EQ(table.mKeyCursor, 2);
    EXPECT_EQ(screen.cells[CatFullHouse].foreColor, Black);
    EXPECT_EQ(msg.calls.size(), 1u);
}

// Keys other than the arrows and Enter pass through unchanged in every phase; the five game
// keys are always used up.
TEST_F(InputTest, OnlyGameKeysAreUsedUp)
{
    NewGame(1);
    gKeyboardOffered = true;
    const int others[] = {0, 9, 27, 32, 36, 41, 65, 112, 8, 46};
    const auto check = [&] {
        for (int key : others)
            EXPECT_EQ(table.Form_KeyDown(key), key);
        for (int key : {vbKeyLeft, vbKeyUp, vbKeyRight, vbKeyDown})
            EXPECT_EQ(table.Form_KeyDown(key), 0);
    };
    check();
    EXPECT_TRUE(screen.Visible(Control::lblPleaseRoll));
    table.RollOrAccept();
    check();
    EXPECT_EQ(table.Form_KeyDown(vbKeyReturn), 0);
    RunTicks();
    check();
    KeyboardOn();
    check();
    EXPECT_EQ(msg.calls.size(), 0u);
}

// The offer to switch keyboard use on comes at the first arrow key of a run, once only even
// after No, and never once the mode has been switched on from the menu; the key itself does
// nothing more.
TEST_F(InputTest, KeyboardOffer)
{
    NewGame(1);
    Roll();
    msg.answers = {vbNo};
    table.Form_KeyDown(vbKeyDown);
    ASSERT_EQ(msg.calls.size(), 1u);
    EXPECT_EQ(msg.calls[0].text, "Do you want to enable keyboard use?");
    EXPECT_EQ(msg.calls[0].title, "Zarvo - Enable Keyboard");
    EXPECT_EQ(msg.calls[0].style, vbYesNo | vbQuestion);
    EXPECT_TRUE(gKeyboardOffered);
    EXPECT_FALSE(screen.Checked(Option::UseKeyboard));
    EXPECT_EQ(screen.dice[2].top, KeepRow);
    table.Form_KeyDown(vbKeyLeft);
    table.StartNewGame();
    table.Form_KeyDown(vbKeyRight);
    EXPECT_EQ(msg.calls.size(), 1u);

    NewGame(1);
    table.mnuUseKeyboard_Click();
    Roll();
    for (int key : {vbKeyLeft, vbKeyUp, vbKeyRight, vbKeyDown})
        table.Form_KeyDown(key);
    table.mnuUseKeyboard_Click();
    table.Form_KeyDown(vbKeyLeft);
    EXPECT_EQ(msg.calls.size(), 1u);

    NewGame(1);
    screen.checked[Option::UseKeyboard] = false;
    Roll();
    msg.answers = {vbYes};
    table.Form_KeyDown(vbKeyLeft);
    EXPECT_TRUE(screen.Checked(Option::UseKeyboard));
    EXPECT_EQ(table.mKeyCursor, 2);
    EXPECT_EQ(screen.dice[2].list, ImageList::ilsDieInv);
    EXPECT_EQ(DiceWithCursor(), 1);
}

// An offer accepted during a roll shows no cursor until the dice rest; then the die under the
// cursor shows its face inverted.
TEST_F(InputTest, OfferDuringARoll)
{
    NewGame(1);
    table.RollOrAccept();
    table.tmrRoll_Timer();
    msg.answers = {vbYes};
    table.Form_KeyDown(vbKeyUp);
    EXPECT_TRUE(screen.Checked(Option::UseKeyboard));
    for (int n = 0; table.mRollPhase != 0 && n < 100; ++n) {
        ASSERT_EQ(DiceWithCursor(), 0);
        table.tmrRoll_Timer();
    }
    EXPECT_EQ(screen.dice[2].list, ImageList::ilsDieInv);
    EXPECT_EQ(screen.dice[2].face, table.mDice[2]);
    EXPECT_EQ(DiceWithCursor(), 1);
}

// Between rolls the cursor wraps over the five dice, Up and Down move the die under it and the
// caption follows; a moved die keeps the cursor. Switching the mode off and on takes the
// cursor off the same die and puts it back.
TEST_F(InputTest, DieCursor)
{
    NewGame(1);
    KeyboardOn();
    Roll();
    SetDice({1, 2, 3, 4, 5});
    table.ShowDieCursor();
    table.Form_KeyDown(vbKeyLeft);
    table.Form_KeyDown(vbKeyLeft);
    table.Form_KeyDown(vbKeyLeft);
    EXPECT_EQ(table.mKeyCursor, 4);
    EXPECT_EQ(screen.dice[4].list, ImageList::ilsDieInv);
    EXPECT_EQ(screen.dice[4].face, 5);
    EXPECT_EQ(screen.dice[0].list, ImageList::ilsDie);
    EXPECT_EQ(screen.dice[0].face, 1);
    table.Form_KeyDown(vbKeyRight);
    EXPECT_EQ(table.mKeyCursor, 0);
    EXPECT_EQ(DiceWithCursor(), 1);

    table.Form_KeyDown(vbKeyDown);
    EXPECT_EQ(screen.dice[0].top, RollRow);
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Roll");
    EXPECT_EQ(screen.dice[0].list, ImageList::ilsDieInv);
    table.Form_KeyDown(vbKeyUp);
    EXPECT_EQ(screen.dice[0].top, KeepRow);
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Accept");
    screen.captions[Control::cmdRoll] = "Roll";
    table.Form_KeyDown(vbKeyUp);
    EXPECT_EQ(screen.dice[0].top, KeepRow);
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Accept");

    table.Form_KeyDown(vbKeyRight);
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(DiceWithCursor(), 0);
    EXPECT_EQ(screen.dice[1].face, 2);
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(screen.dice[1].list, ImageList::ilsDieInv);
    EXPECT_EQ(DiceWithCursor(), 1);
}

// Switching the mode off on a boxed cell gives it back its choice colour, white if it would
// score and light grey if not, with black text; the preview number stays.
TEST_F(InputTest, ModeOffRestoresCellColour)
{
    NewGame(1);
    PreviewOn();
    KeyboardOn();
    ReachChoice({5, 5, 5, 2, 2});
    ASSERT_TRUE(HasCursor(CatOnes));
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(screen.cells[CatOnes].backColor, LightGrey);
    EXPECT_EQ(screen.cells[CatOnes].foreColor, Black);
    EXPECT_EQ(screen.cells[CatOnes].caption, "0 ");
    table.mnuUseKeyboard_Click();
    table.Form_KeyDown(vbKeyRight);
    table.Form_KeyDown(vbKeyDown);
    table.Form_KeyDown(vbKeyDown);
    ASSERT_TRUE(HasCursor(CatFullHouse));
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(screen.cells[CatFullHouse].backColor, White);
    EXPECT_EQ(screen.cells[CatFullHouse].foreColor, Black);
    EXPECT_EQ(screen.cells[CatFullHouse].caption, "25 ");
}
