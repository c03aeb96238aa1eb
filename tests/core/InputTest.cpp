// Mouse and keyboard on the table, and the boxes and numbers that show what can be chosen.
#include "TableFixture.h"

namespace {

class InputTest : public TableTest {
protected:
    void Set(Option o, bool on = true) { screen.checked[o] = on; }
    // Which dice show the cursor picture, as one letter each: 'I' inverted, '.' ordinary.
    std::string DieLooks() const
    {
        std::string looks;
        for (const FakeDie& d : screen.dice)
            looks += d.list == ImageList::ilsDieInv ? 'I' : '.';
        return looks;
    }
    void Keys(std::initializer_list<int> keys)
    {
        for (int key : keys)
            EXPECT_EQ(table.Form_KeyDown(key), 0) << key;
    }
};

constexpr int AllButtons[] = {vbLeftButton, vbRightButton, vbMiddleButton};

}  // namespace

// With cmdRoll disabled the dice answer no button, during a first roll (whose dice field is
// still enabled) as during the choice. While the player is asked to roll, any button anywhere
// in the dice field rolls, without moving a die.
TEST_F(InputTest, DiceWhileRollingChoosingOrAskedToRoll)
{
    for (int button : AllButtons) {
        NewGame(1);
        table.lblDie_MouseUp(0, button);
        EXPECT_EQ(Now(), "Roll -+--- 0") << button;
        EXPECT_EQ(table.mRollPhase, 2) << button;
        EXPECT_EQ(screen.dice[0].top, RollRow) << button;
        table.tmrRoll_Timer();
        table.imgDie_MouseUp(1, button);
        table.lblDie_MouseUp(3, button);
        EXPECT_EQ(table.mRollPhase * 100 + table.mRollTicks, 201) << button;
        RunTicks();
        msg.answers = {vbYes};
        table.RollOrAccept();
        table.imgDie_MouseUp(0, button);
        EXPECT_EQ(screen.dice[0].top, KeepRow) << button;
        EXPECT_TRUE(screen.Visible(Control::lblSelectCategory)) << button;
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
    const struct {
        int die, button, top;
        const char* caption;
    } clicks[] = {{3, vbLeftButton, RollRow, "Roll"}, {1, vbMiddleButton, RollRow, "Roll"},
                  {3, vbMiddleButton, KeepRow, "Roll"}, {1, vbLeftButton, KeepRow, "Accept"},
                  {4, vbLeftButton, RollRow, "Roll"}};
    for (const auto& c : clicks) {
        table.lblDie_MouseUp(c.die, c.button);
        EXPECT_EQ(screen.dice[c.die].top, c.top) << c.die;
        EXPECT_EQ(screen.Caption(Control::cmdRoll), c.caption) << c.die;
    }
    table.imgDie_MouseUp(0, vbRightButton);
    EXPECT_EQ(table.mRollPhase, 1);
    EXPECT_EQ(screen.dice[0].top, KeepRow);
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
    msg.answers = {vbYes};
    table.RollOrAccept();
    table.lblLeft_Click(2);
    EXPECT_EQ(gScores[1][CatOnes] + gScores[1][CatChance] + gScores[1][CatTwos], 4);
    EXPECT_TRUE(screen.Visible(Control::lblSelectCategory));
    table.lblRight_Click(4);
    EXPECT_EQ(gScores[1][CatSmallStraight], 30);
}

// The choice boxes every open cell 30 twips higher, white where it would score and light grey
// where not, with the value and its bonuses in the box only while the preview is on; a
// filled cell, a scored zero too, stays flat with its score. After the choice the cell holds
// the score alone and the bonus shows under Bonus.
TEST_F(InputTest, ChoiceBoxesAndPreview)
{
    NewGame(1);
    SetCard({{CatSixes, 12}, {CatZarvo, 0}});
    ReachChoice({1, 2, 3, 4, 6});
    EXPECT_EQ(screen.Forms(), "WWWWg-gggWg-W");
    EXPECT_EQ(screen.Captions(), "|||||12 ||||||0 |");

    NewGame(1);
    Set(Option::ShowScoringPreview);
    SetCard({{CatOnes, 4}, {CatTwos, 8}, {CatFours, 12}, {CatFives, 15}, {CatSixes, 18}, {CatSmallStraight, 0}});
    ReachChoice({3, 3, 1, 2, 5});
    EXPECT_EQ(screen.Forms(), "--W---ggg-ggW");
    EXPECT_EQ(screen.Captions(), "4 |8 |41 |12 |15 |18 |0 |0 |0 |0 |0 |0 |14 ");
    ClickCell(CatThrees);
    EXPECT_EQ(screen.cells[CatThrees].caption, "6 ");
    EXPECT_EQ(screen.Caption(Control::lblLeftTotal) + " " + screen.Caption(Control::lblBonusTotal) + " " +
                  screen.Caption(Control::lblTotal), "63 35 98");

    NewGame(1);
    Set(Option::ShowScoringPreview);
    SetCard({{CatZarvo, 50}});
    ReachChoice({4, 4, 4, 4, 4});
    EXPECT_EQ(screen.Forms(), "gggWggWWggg-W");
    EXPECT_EQ(screen.Captions(), "0 |0 |0 |120 |0 |0 |120 |120 |0 |0 |0 |50 |120 ");
}

// A second pass from the menu adds or removes the numbers of the boxed cells only; boxes,
// places, colours and a cell cursor stay. Outside the choice only the check mark changes.
TEST_F(InputTest, PreviewSwitchedFromTheMenu)
{
    NewGame(1);
    Set(Option::UseKeyboard);
    table.mnuScoringPreview_Click();
    EXPECT_TRUE(screen.Checked(Option::ShowScoringPreview));
    EXPECT_EQ(screen.Captions(), "||||||||||||");
    table.mnuScoringPreview_Click();
    SetCard({{CatFives, 10}});
    ReachChoice({6, 6, 6, 2, 2});
    EXPECT_EQ(screen.Forms(), "CWgg-WWgWgggW");
    table.mnuScoringPreview_Click();
    EXPECT_EQ(screen.Forms(), "CWgg-WWgWgggW");
    EXPECT_EQ(screen.Captions(), "0 |4 |0 |0 |10 |18 |22 |0 |25 |0 |0 |0 |22 ");
    table.mnuScoringPreview_Click();
    EXPECT_EQ(screen.Forms(), "CWgg-WWgWgggW");
    EXPECT_EQ(screen.Captions(), "||||10 ||||||||");
}

// Marking and unmarking act only on the form they change, so the 30-twip offset never adds up
// and a boxed cell keeps its colour; unmarking blanks a box but keeps a flat cell's score.
// Showing the card unboxes every cell and always shows four numbers, 0 on an empty card.
TEST_F(InputTest, MarkUnmarkAndRefresh)
{
    NewGame(1);
    table.MarkCategory(CatFours, true);
    table.MarkCategory(CatFours, false);
    EXPECT_EQ(screen.Forms(), "---W---------");
    screen.cells[CatFours].caption = "17 ";
    table.UnmarkCategory(CatFours);
    table.UnmarkCategory(CatFours);
    EXPECT_EQ(screen.Forms(), "-------------");
    EXPECT_EQ(screen.Captions(), "||||||||||||");
    SetCard({{CatChance, 0}});
    table.UnmarkCategory(CatChance);
    EXPECT_EQ(screen.Captions(), "||||||||||||0 ");
    table.ClearCategoryCaptions();
    EXPECT_EQ(screen.Captions(), "||||||||||||");

    NewGame(1);
    ReachChoice({1, 2, 3, 4, 5});
    table.RefreshScoreboard();
    EXPECT_EQ(screen.Forms(), "-------------");
    for (Control total : {Control::lblLeftTotal, Control::lblRightTotal, Control::lblBonusTotal, Control::lblTotal})
        EXPECT_EQ(screen.Caption(total), "0");
    EXPECT_EQ(screen.Caption(Control::fraScoreboard), "Player 1's Scoreboard");
}

// The cell cursor: Up and Down wrap within a column, Left and Right change column in the same
// row, and Chance has no partner. The new cell shows the cursor, the old one loses it.
TEST_F(InputTest, CategoryCursorMoves)
{
    const struct {
        int up, down, side;
    } moves[CategoryCount + 1] = {
        {}, {6, 2, 7}, {1, 3, 8}, {2, 4, 9}, {3, 5, 10}, {4, 6, 11}, {5, 1, 12},
        {13, 8, 1}, {7, 9, 2}, {8, 10, 3}, {9, 11, 4}, {10, 12, 5}, {11, 13, 6}, {12, 7, 13},
    };
    NewGame(1);
    Set(Option::UseKeyboard);
    ReachChoice({1, 2, 3, 4, 6});
    const std::string boxes = screen.Forms().replace(0, 1, "W");
    for (int from = 1; from <= CategoryCount; ++from) {
        const std::pair<int, int> keys[] = {{vbKeyUp, moves[from].up}, {vbKeyDown, moves[from].down},
                                            {vbKeyLeft, moves[from].side}, {vbKeyRight, moves[from].side}};
        for (auto [key, to] : keys) {
            table.HideCategoryCursor();
            table.mKeyCursor = from;
            table.ShowCategoryCursor();
            EXPECT_EQ(table.Form_KeyDown(key), 0);
            EXPECT_EQ(table.mKeyCursor, to) << from << " key " << key;
            EXPECT_EQ(screen.Forms(), std::string(boxes).replace(to - 1, 1, "C")) << from << " key " << key;
        }
    }
}

// Enter rolls before the first roll and between rolls, whether the mode is on or not, and
// brings the confirm question when the caption is "Accept". Before the first roll of a run
// there is no face to take the cursor off.
TEST_F(InputTest, EnterRollsAndAccepts)
{
    for (bool keyboard : {false, true}) {
        NewGame(1);
        Set(Option::UseKeyboard, keyboard);
        table.mDice = {0, 0, 0, 0, 0};
        const int refreshes = screen.refreshCount[2];
        Keys({vbKeyReturn});
        EXPECT_EQ(table.mRollPhase, 2);
        EXPECT_EQ(screen.refreshCount[2], refreshes + 1);
        EXPECT_EQ(screen.dice[2].face, 6);
        RunTicks();
        msg.answers = {vbNo};
        Keys({vbKeyReturn});
        EXPECT_EQ(msg.calls.back().text, "No dice selected.\r\nAre you satisfied with the roll?");
        MarkDice({4});
        Keys({vbKeyReturn});
        EXPECT_EQ(table.mRollPhase, 1);
    }
    EXPECT_EQ(msg.calls.size(), 2u);
}

// In the choice Enter does nothing with the mode off and brings no offer; with the mode on it
// scores the boxed cell under the cursor, and does nothing on a filled one.
TEST_F(InputTest, EnterWhileChoosing)
{
    NewGame(1);
    SetCard({{CatChance, 20}});
    ReachChoice({2, 2, 2, 5, 5});
    Keys({vbKeyReturn});
    EXPECT_EQ(gScores[1][CatOnes], EmptyCell);
    table.mnuUseKeyboard_Click();
    Keys({vbKeyRight, vbKeyUp, vbKeyReturn});
    EXPECT_TRUE(screen.Visible(Control::lblSelectCategory));
    Keys({vbKeyDown, vbKeyDown, vbKeyDown, vbKeyReturn});
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
    const auto check = [&] {
        for (int key : {0, 8, 9, 27, 32, 36, 41, 46, 65, 112})
            EXPECT_EQ(table.Form_KeyDown(key), key);
        Keys({vbKeyLeft, vbKeyUp, vbKeyRight, vbKeyDown});
    };
    check();
    table.RollOrAccept();
    check();
    Keys({vbKeyReturn});
    RunTicks();
    check();
    Set(Option::UseKeyboard);
    check();
}

// The offer to switch keyboard use on comes at the first arrow key of a run, once only even
// after No, never once the mode was switched on from the menu, and the key does nothing more.
// Accepted during a roll it shows no cursor until the dice rest, then the one under mKeyCursor.
TEST_F(InputTest, KeyboardOffer)
{
    NewGame(1);
    Roll();
    msg.answers = {vbNo};
    Keys({vbKeyDown});
    ASSERT_EQ(msg.calls.size(), 1u);
    EXPECT_EQ(msg.calls[0].text, "Do you want to enable keyboard use?");
    EXPECT_EQ(msg.calls[0].title, "Zarvo - Enable Keyboard");
    EXPECT_EQ(msg.calls[0].style, vbYesNo | vbQuestion);
    EXPECT_FALSE(screen.Checked(Option::UseKeyboard));
    EXPECT_TRUE(InColumns(KeepRow));
    Keys({vbKeyLeft});
    table.StartNewGame();
    Keys({vbKeyRight});

    NewGame(1);
    table.mnuUseKeyboard_Click();
    Roll();
    Keys({vbKeyLeft, vbKeyUp, vbKeyRight, vbKeyDown});
    table.mnuUseKeyboard_Click();
    Keys({vbKeyLeft});
    EXPECT_EQ(msg.calls.size(), 1u);

    NewGame(1);
    table.RollOrAccept();
    table.tmrRoll_Timer();
    msg.answers = {vbYes};
    Keys({vbKeyUp});
    EXPECT_TRUE(screen.Checked(Option::UseKeyboard));
    for (int n = 0; table.mRollPhase != 0 && n < 100; ++n) {
        ASSERT_EQ(DieLooks(), ".....");
        table.tmrRoll_Timer();
    }
    EXPECT_EQ(DieLooks(), "..I..");
    EXPECT_EQ(screen.dice[2].face, table.mDice[2]);
}

// Between rolls the cursor wraps over the five dice, Up and Down move the die under it (which
// keeps the cursor) and the caption is worked out again; switching the mode off and on takes
// the cursor off the same die and puts it back.
TEST_F(InputTest, DieCursor)
{
    NewGame(1);
    Set(Option::UseKeyboard);
    Roll();
    SetDice({1, 2, 3, 4, 5});
    table.ShowDieCursor();
    Keys({vbKeyLeft, vbKeyLeft, vbKeyLeft});
    EXPECT_EQ(DieLooks(), "....I");
    EXPECT_EQ(screen.dice[4].face * 10 + screen.dice[0].face, 51);
    Keys({vbKeyRight});
    EXPECT_EQ(DieLooks(), "I....");
    Keys({vbKeyDown});
    EXPECT_EQ(screen.dice[0].top, RollRow);
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Roll");
    EXPECT_EQ(DieLooks(), "I....");
    Keys({vbKeyUp});
    EXPECT_EQ(screen.dice[0].top, KeepRow);
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Accept");
    screen.captions[Control::cmdRoll] = "Roll";
    Keys({vbKeyUp});
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Accept");

    Keys({vbKeyRight});
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(DieLooks(), ".....");
    EXPECT_EQ(screen.dice[1].face, 2);
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(DieLooks(), ".I...");
}

// Switching the mode off on a boxed cell gives it back its choice colour, white if it would
// score and light grey if not, with black text; the preview number stays.
TEST_F(InputTest, ModeOffRestoresCellColour)
{
    NewGame(1);
    Set(Option::ShowScoringPreview);
    Set(Option::UseKeyboard);
    ReachChoice({5, 5, 5, 2, 2});
    ASSERT_EQ(screen.Forms(), "CWggWgWgWgggW");
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(screen.Forms(), "gWggWgWgWgggW");
    table.mnuUseKeyboard_Click();
    Keys({vbKeyRight, vbKeyDown, vbKeyDown});
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(screen.Forms(), "gWggWgWgWgggW");
    EXPECT_EQ(screen.Captions(), "0 |4 |0 |0 |15 |0 |19 |0 |25 |0 |0 |0 |19 ");
}
