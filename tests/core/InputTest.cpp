// Mouse and keyboard on the table, and the boxes and numbers that show what can be chosen.
#include "TableFixture.h"

using InputTest = TableTest;

// A turn by mouse. Asked to roll, any column rolls; no button acts while cmdRoll is disabled; between rolls the
// right button is cmdRoll, asking first if no die is marked, and the others move a die between the rows. The choice
// boxes open cells, white where they would score, else grey, and only boxes can be taken. "Take a zero?" comes
// while another open cell would score; No leaves everything as it was.
TEST_F(InputTest, TurnByMouse)
{
    NewGame();
    gScores[1][CatSixes] = 12, gScores[1][CatZarvo] = 0;
    table.RefreshScoreboard();
    table.lblDie_MouseUp(4, vbMiddleButton);
    table.tmrRoll_Timer();
    table.imgDie_MouseUp(1, vbRightButton);
    EXPECT_EQ(std::pair(table.mRollPhase, table.mRollTicks), std::pair(2, 1));
    RunTicks();
    answers = {vbNo, vbYes, vbNo, vbYes};   // twice the Accept question, twice the zero one
    table.imgDie_MouseUp(3, vbRightButton);
    EXPECT_EQ(Turn(), "Accept ++-+- 1");
    const std::pair<int, const char*> clicks[] = {
        {3, "kkkrk Roll"}, {1, "krkrk Roll"}, {3, "krkkk Roll"}, {1, "kkkkk Accept"}, {4, "kkkkr Roll"}};
    for (auto [die, looks] : clicks) {
        table.lblDie_MouseUp(die, die == 3 ? vbMiddleButton : vbLeftButton);
        EXPECT_EQ(Dice() + " " + screen.Caption(Control::cmdRoll), looks);
    }
    table.imgDie_MouseUp(0, vbRightButton);
    table.tmrRoll_Timer();   // the first tick of a later roll hides the die labels
    EXPECT_EQ(Turn() + std::to_string(screen.dice[0].top), "Roll ----- 1120");
    RunTicks();
    table.mDice = {1, 2, 3, 4, 6};
    table.imgDie_MouseUp(0, vbRightButton);
    table.imgDie_MouseUp(0, vbRightButton);
    EXPECT_EQ(calls, std::vector(2, Box("No dice selected.\r\nAre you satisfied with the roll?",
                                        vbYesNo | vbQuestion | vbDefaultButton2)));
    const std::string choice = screen.Forms() + screen.Captions() + Turn() + screen.cells[CatChance].tip;
    EXPECT_EQ(choice, "WWWWg-gggWg-W|||||12 ||||||0 |Accept ----+ 3Scoring category");
    table.lblLeft_Click(CatSixes);
    table.lblRight_Click(CatZarvo - 6);
    ClickCell(CatFullHouse);
    EXPECT_EQ(calls.back() + screen.Forms() + screen.Captions() + Turn() + screen.cells[CatChance].tip,
              Box("Take a zero?", vbYesNo | vbQuestion) + choice);
    ClickCell(CatFullHouse);
    EXPECT_EQ(gScores[1][CatFullHouse], 0);
}

// A turn by keys. Only game keys are used up; the first arrow offers the mode, also after the menu switched it on
// and off, and once even after No. The die cursor
// shows when the dice rest and wraps; after the third roll the cell cursor starts on Ones and moves as the cursor
// table says, the preview renumbers the boxes both ways, and Enter takes the boxed cell under it; mode off, nothing.
TEST_F(InputTest, TurnByKeys)
{
    NewGame();
    gScores[1][CatChance] = 20;
    table.RefreshScoreboard();
    for (int key : {0, 8, 9, 27, 32, 36, 41, 46, 65, 112})
        EXPECT_EQ(table.Form_KeyDown(key), key);
    table.mnuUseKeyboard_Click();
    table.mnuUseKeyboard_Click();   // on and off by the menu is not the offer: the arrow still brings it
    answers = {vbNo};
    Keys({vbKeyDown, vbKeyLeft});
    EXPECT_EQ(calls, std::vector{Box("Do you want to enable keyboard use?", vbYesNo | vbQuestion,
                                     "Zarvo - Enable Keyboard")});
    table.mnuUseKeyboard_Click();
    Keys({vbKeyReturn});
    RunTicks();
    EXPECT_EQ(Dice(), "kkKkk");
    Keys({vbKeyLeft, vbKeyLeft, vbKeyLeft});
    EXPECT_EQ(Dice(), "kkkkK");
    Keys({vbKeyRight, vbKeyDown, vbKeyReturn});
    EXPECT_EQ(Dice() + std::to_string(table.mRollPhase), "rkkkk1");
    RunTicks();
    Keys({vbKeyDown, vbKeyReturn});
    RunTicks();
    EXPECT_EQ(Turn() + screen.Forms()[0], "Roll ----+ 3C");
    table.mDice = {2, 2, 2, 5, 5};   // as if the last draw had given these
    table.mnuScoringPreview_Click();
    EXPECT_EQ(screen.Captions(), "0 |6 |0 |0 |10 |0 |16 |0 |25 |0 |0 |0 |20 ");
    table.mnuScoringPreview_Click();
    table.mnuUseKeyboard_Click();
    Keys({vbKeyReturn});
    EXPECT_EQ(screen.Forms()[0] + screen.Captions() + std::to_string(table.mRollPhase), "g||||||||||||20 0");
    table.mnuUseKeyboard_Click();
    // The cursor's cell after each key; at 0 the looks of Ones, Twos, Sixes and Three of a Kind, which it has left
    // white or grey by these dice, and of Four of a Kind under it.
    std::string visited;
    for (int key : {+vbKeyUp, +vbKeyDown, +vbKeyRight, +vbKeyUp, +vbKeyLeft, +vbKeyDown, +vbKeyLeft, +vbKeyDown, +vbKeyRight, 0,
                    +vbKeyUp, +vbKeyUp, +vbKeyReturn, +vbKeyDown, +vbKeyDown, +vbKeyDown, +vbKeyReturn})
        visited += (key ? (Keys({key}), std::to_string(table.mKeyCursor)) : screen.Forms().erase(2, 3).substr(0, 5)) + " ";
    EXPECT_EQ(visited + screen.Captions(), "6 1 7 13 13 7 1 2 8 gWgWC 7 13 13 7 8 9 2 ||||||||25 ||||20 ");
}
