// Mouse and keyboard on the table, and the boxes and numbers that show what can be chosen.
#include "TableFixture.h"

using InputTest = TableTest;

// Asked to roll any button rolls; with cmdRoll disabled none acts; between rolls right is cmdRoll, others mark
TEST_F(InputTest, MouseOnDice)
{
    for (int button : {vbLeftButton, vbRightButton, vbMiddleButton}) {
        NewGame(1);
        table.lblDie_MouseUp(0, button);
        table.tmrRoll_Timer();
        table.imgDie_MouseUp(1, button);
        EXPECT_EQ(std::tuple(table.mRollPhase, table.mRollTicks, screen.dice[0].top), std::tuple(2, 1, RollRow));
        RunTicks();
        answers = {vbYes};
        table.RollOrAccept();
        table.imgDie_MouseUp(0, button);   // in the choice: a message box here would fail the test
    }
    NewGame(1);
    Roll();
    answers = {vbNo};
    table.imgDie_MouseUp(3, vbRightButton);
    EXPECT_EQ(calls.size(), 4u);
    const struct { int die, button, top; std::string caption; } clicks[] = {
        {3, vbLeftButton, RollRow, "Roll"}, {1, vbMiddleButton, RollRow, "Roll"}, {3, vbMiddleButton, KeepRow, "Roll"},
        {1, vbLeftButton, KeepRow, "Accept"}, {4, vbLeftButton, RollRow, "Roll"}};
    for (const auto& c : clicks) {
        table.lblDie_MouseUp(c.die, c.button);
        EXPECT_EQ(std::pair(screen.dice[c.die].top, screen.Caption(Control::cmdRoll)), std::pair(c.top, c.caption));
    }
    table.imgDie_MouseUp(0, vbRightButton);
    EXPECT_EQ(std::pair(table.mRollPhase, screen.dice[0].top), std::pair(1, KeepRow));
}

// Up and Down wrap within a column, Left and Right change column, Chance has no partner.
TEST_F(InputTest, CategoryCursorMoves)
{
    const struct { int up, down, side; } moves[CategoryCount + 1] = {
        {}, {6, 2, 7}, {1, 3, 8}, {2, 4, 9}, {3, 5, 10}, {4, 6, 11}, {5, 1, 12},
        {13, 8, 1}, {7, 9, 2}, {8, 10, 3}, {9, 11, 4}, {10, 12, 5}, {11, 13, 6}, {12, 7, 13}};
    NewGame(1);
    screen.checked[Option::UseKeyboard] = true;
    ReachChoice({1, 2, 3, 4, 6});
    const std::string boxes = screen.Forms().replace(0, 1, "W");
    for (int from = 1; from <= CategoryCount; ++from) {
        const auto [up, down, side] = moves[from];
        for (auto [key, to] : {std::pair(vbKeyUp, up), {vbKeyDown, down}, {vbKeyLeft, side}, {vbKeyRight, side}}) {
            table.HideCategoryCursor();
            table.mKeyCursor = from;
            table.ShowCategoryCursor();
            Keys({key});
            EXPECT_EQ(screen.Forms(), std::string(boxes).replace(to - 1, 1, "C")) << from << " key " << key;
        }
    }
}

// In the choice Enter takes the boxed cell under the cursor, with the mode off nothing. With the mode on it
// refreshes die 2 and rolls, also before any face exists, and asks on "Accept".
TEST_F(InputTest, Enter)
{
    NewGame(1);
    SetCard({{CatChance, 20}});
    ReachChoice({2, 2, 2, 5, 5});
    Keys({vbKeyReturn});
    table.mnuUseKeyboard_Click();
    Keys({vbKeyRight, vbKeyUp, vbKeyReturn});
    EXPECT_EQ(gScores[1][CatOnes] + gScores[1][CatChance], 19);
    Keys({vbKeyDown, vbKeyDown, vbKeyDown, vbKeyReturn});
    EXPECT_EQ(gScores[1][CatFullHouse], 25);
    EXPECT_EQ(std::pair(table.mKeyCursor, screen.cells[CatFullHouse].fg), std::pair(2, Black));

    NewGame(1);
    table.mDice = {0, 0, 0, 0, 0};
    Keys({vbKeyReturn});
    EXPECT_EQ(std::tuple(table.mRollPhase, screen.refreshed, screen.dice[2].face), std::tuple(2, 2, 6));
    RunTicks();
    answers = {vbNo};
    Keys({vbKeyReturn});
    MarkDice({4});
    Keys({vbKeyReturn});
    EXPECT_EQ(table.mRollPhase * 10 + int(calls.size()), 12);   // a later roll; two Accept questions so far
}

// Only game keys are used up. The first arrow of a run offers the mode, once even after No; accepted
// during a roll, the cursor shows when the dice rest.
TEST_F(InputTest, KeyboardOffer)
{
    NewGame(1);
    Roll();
    for (int key : {0, 8, 9, 27, 32, 36, 41, 46, 65, 112})
        EXPECT_EQ(table.Form_KeyDown(key), key);
    answers = {vbNo};
    Keys({vbKeyDown});
    EXPECT_EQ(calls, std::vector{Box("Do you want to enable keyboard use?", vbYesNo | vbQuestion,
                                     "Zarvo - Enable Keyboard")});
    EXPECT_FALSE(screen.Checked(Option::UseKeyboard));
    Keys({vbKeyLeft});
    table.StartNewGame();
    Keys({vbKeyRight});

    NewGame(1);
    table.RollOrAccept();
    table.tmrRoll_Timer();
    answers = {vbYes};
    Keys({vbKeyUp});
    EXPECT_EQ(DieLooks() + std::to_string(screen.Checked(Option::UseKeyboard)), ".....1");
    RunTicks();
    EXPECT_EQ(DieLooks(), "..I..");
}

// Between rolls the die cursor wraps and Up/Down move its die; the mode off and on hides and restores it.
// The menu makes no offer, so an arrow after the mode was switched on and off again still brings it.
TEST_F(InputTest, DieCursor)
{
    NewGame(1);
    table.mnuUseKeyboard_Click();
    Roll();
    table.mDice = {1, 2, 3, 4, 5};
    table.ShowDieCursor();
    Keys({vbKeyLeft, vbKeyLeft, vbKeyLeft});
    EXPECT_EQ(DieLooks() + std::to_string(screen.dice[4].face * 10 + screen.dice[0].face), "....I51");
    Keys({vbKeyRight, vbKeyDown});
    EXPECT_EQ(std::tuple(DieLooks(), screen.Caption(Control::cmdRoll), screen.dice[0].top),
              std::tuple("I....", "Roll", RollRow));
    Keys({vbKeyUp});
    EXPECT_EQ(std::tuple(screen.Caption(Control::cmdRoll), screen.dice[0].top), std::tuple("Accept", KeepRow));
    Keys({vbKeyRight});
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(DieLooks() + std::to_string(screen.dice[1].face), ".....2");
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(DieLooks(), ".I...");
    table.mnuUseKeyboard_Click();
    answers = {vbNo};
    Keys({vbKeyLeft});
    EXPECT_EQ(calls.size(), 1u);
}

// In the choice the preview renumbers boxed cells only, and the mode off gives the cell under the cursor
// its choice colour back, white or light grey; boxes stay. Outside the choice only the check mark changes.
TEST_F(InputTest, MenusWhileChoosing)
{
    NewGame(1);
    screen.checked[Option::UseKeyboard] = true;
    table.mnuScoringPreview_Click();
    EXPECT_EQ(screen.Captions() + std::to_string(screen.Checked(Option::ShowScoringPreview)), "||||||||||||1");
    SetCard({{CatFives, 10}});
    ReachChoice({6, 6, 6, 2, 2});
    const std::string numbers = "0 |4 |0 |0 |10 |18 |22 |0 |25 |0 |0 |0 |22 ";
    EXPECT_EQ(screen.Forms() + screen.Captions(), "CWgg-WWgWgggW" + numbers);
    table.mnuScoringPreview_Click();
    EXPECT_EQ(screen.Forms() + screen.Captions(), "CWgg-WWgWgggW||||10 ||||||||");
    table.mnuScoringPreview_Click();
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(screen.Forms() + screen.Captions(), "gWgg-WWgWgggW" + numbers);
    table.mnuUseKeyboard_Click();
    Keys({vbKeyRight, vbKeyDown, vbKeyDown});
    ASSERT_EQ(screen.Forms(), "gWgg-WWgCgggW");
    table.mnuUseKeyboard_Click();
    EXPECT_EQ(screen.Forms(), "gWgg-WWgWgggW");
}
