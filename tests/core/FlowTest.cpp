// The turn and the game: what the table shows at each moment of a turn, the confirm and zero
// questions, the passing of the turn, the end of a card and of a game, and New Game cutting in.
#include "TableFixture.h"

namespace {

class FlowTest : public TableTest {
protected:
    // Plays on until the last card is full, each turn on the first open category.
    void PlayToTheEnd(int players)
    {
        for (int turn = 0; turn < 13 * players && !PlayerCardFull(gScores[players]); ++turn) {
            int open = 1;
            while (open < CategoryCount && gScores[gCurrentPlayer][open] != EmptyCell)
                ++open;
            TakeTurn(ScoringDice(open), open);
        }
    }
};

}  // namespace

// The controls follow the turn moment by moment: dice can be marked only between rolls, a
// later roll locks the dice field from its first tick, each finished roll gives the window the
// focus, and the third roll opens the choice at once with the caption still "Roll".
TEST_F(FlowTest, ControlsThroughATurn)
{
    NewGame(1);
    EXPECT_EQ(Now(), TurnBegun);
    EXPECT_EQ(screen.Caption(Control::lblPleaseRoll), "Player 1's turn. Please roll.");
    EXPECT_TRUE(AllDiceAt(PileLeft, RollRow));
    table.RollOrAccept();
    table.tmrRoll_Timer();
    EXPECT_EQ(Now(), "Roll -+--- 0");
    const int focus = screen.focusCount;
    RunTicks();
    EXPECT_EQ(Now(), "Accept ++-+- 1");
    EXPECT_EQ(screen.focusCount, focus + 1);
    EXPECT_TRUE(InColumns(KeepRow));
    MarkDice({1});
    table.RollOrAccept();
    EXPECT_EQ(Now(), "Roll -+-+- 1");
    table.tmrRoll_Timer();
    EXPECT_EQ(Now(), "Roll ----- 1");
    RunTicks();
    EXPECT_EQ(Now(), "Accept ++-+- 2");
    MarkDice({0, 4});
    Roll();
    EXPECT_EQ(Now(), "Roll ----+ 3");
    EXPECT_EQ(screen.focusCount, focus + 3);
    EXPECT_EQ(screen.cells[CatOnes].toolTip, "Scoring category");
    EXPECT_EQ(screen.cells[CatChance].toolTip, "Scoring category");
}

// With no die marked the button asks before it ends the rolling. No changes nothing, and the
// player may still mark and roll with the count unchanged; Yes opens the choice at once, with
// no draw and no animation.
TEST_F(FlowTest, AcceptAsksFirst)
{
    NewGame(1);
    Roll();
    const DiceValues dice{2, 2, 5, 6, 1};
    SetDice(dice);
    const std::string deciding = Now();
    msg.answers = {vbNo, vbYes};
    table.cmdRoll_Click();
    ASSERT_EQ(msg.calls.size(), 1u);
    EXPECT_EQ(msg.calls[0].text, "No dice selected.\r\nAre you satisfied with the roll?");
    EXPECT_EQ(msg.calls[0].style, vbYesNo | vbQuestion | vbDefaultButton2);
    EXPECT_EQ(msg.calls[0].title, "Zarvo - Confirm");
    EXPECT_EQ(Now(), deciding);
    EXPECT_EQ(table.mRollPhase, 0);

    const int pictures = screen.pictureCount;
    table.cmdRoll_Click();
    EXPECT_EQ(Now(), "Accept ----+ 3");
    EXPECT_EQ(table.mRollPhase, 0);
    EXPECT_EQ(table.mDice, dice);
    EXPECT_EQ(screen.pictureCount, pictures);
    EXPECT_EQ(screen.Forms(), "WWggWWggggggW");

    NewGame(1);
    Roll();
    msg.answers = {vbNo};
    table.RollOrAccept();
    MarkDice({3});
    Roll();
    EXPECT_EQ(table.mRollsDone, 2);
}

// "Take a zero?" guards a worthless choice only while another open category would score: No
// leaves the card and the choice as they were, Yes writes the 0. With nothing open that scores
// the zero is taken at once, and a choice that scores, however little, never asks.
TEST_F(FlowTest, ZeroQuestion)
{
    NewGame(1);
    ReachChoice({1, 2, 3, 4, 6});
    msg.answers = {vbNo};
    ClickCell(CatFullHouse);
    ASSERT_EQ(msg.calls.size(), 2u);   // the Accept question, then this one
    EXPECT_EQ(msg.calls[1].text, "Take a zero?");
    EXPECT_EQ(msg.calls[1].style, vbYesNo | vbQuestion);
    EXPECT_EQ(msg.calls[1].title, "Zarvo - Confirm");
    EXPECT_EQ(gScores[1][CatFullHouse], EmptyCell);
    EXPECT_TRUE(screen.Visible(Control::lblSelectCategory));
    EXPECT_EQ(screen.Forms(), "WWWWgWgggWggW");
    msg.answers = {vbYes};
    ClickCell(CatFullHouse);
    EXPECT_EQ(gScores[1][CatFullHouse], 0);
    EXPECT_EQ(screen.cells[CatFullHouse].caption, "0 ");

    NewGame(1);
    for (int row = 1; row <= CategoryCount; ++row)
        if (row != CatFullHouse && row != CatLargeStraight)
            gScores[1][row] = 0;
    table.RefreshScoreboard();
    TakeTurn({1, 1, 2, 2, 3}, CatFullHouse);
    EXPECT_EQ(gScores[1][CatFullHouse], 0);
    NewGame(1);
    TakeTurn({1, 2, 3, 4, 6}, CatOnes);
    EXPECT_EQ(gScores[1][CatOnes], 1);
    EXPECT_EQ(msg.calls.size(), 5u);   // no question beyond the three Accepts and the two above
}

// One player: after each scoring the same player starts again; the full card brings the results
// (with the final card shown and the choice closed) and the high-score check, then the prompt,
// and no summary.
TEST_F(FlowTest, OnePlayerGame)
{
    NewGame(1, false);
    screen.promptAnswer = 2;
    std::string atResults;
    screen.onResults = [&] { atResults = screen.Forms() + " " + screen.Caption(Control::lblTotal) + " " +
                                         screen.cells[1].toolTip + std::to_string(screen.Visible(Control::lblSelectCategory)); };
    for (int category = 1; category <= CategoryCount; ++category) {
        EXPECT_TRUE(screen.dialogs.empty()) << category;
        TakeTurn(ScoringDice(category), category);
        if (category < CategoryCount) {
            EXPECT_EQ(Now(), TurnBegun) << category;
        }
    }
    EXPECT_EQ(screen.dialogs, (std::vector<std::string>{"results", "highscore 1", "prompt", "unload"}));
    EXPECT_EQ(atResults, "------------- " + std::to_string(PlayerTotal(1)) + " 0");
}

// Two players: the turn passes after every scoring and the next card is shown, blank, with the
// dice on the pile; the first player's card comes back as it was left.
TEST_F(FlowTest, TurnPassesBetweenPlayers)
{
    NewGame(2, false);
    gPlayerNames[2] = "Bea Lind";
    table.StartNewGame();
    TakeTurn({4, 4, 4, 1, 2}, CatFours);
    EXPECT_EQ(gCurrentPlayer, 2);
    EXPECT_EQ(screen.Caption(Control::lblPleaseRoll), "Bea Lind's turn. Please roll.");
    EXPECT_EQ(screen.Caption(Control::fraScoreboard), "Bea Lind's Scoreboard");
    EXPECT_EQ(screen.Captions() + screen.Caption(Control::lblTotal), "||||||||||||0");
    EXPECT_TRUE(AllDiceAt(PileLeft, RollRow));
    TakeTurn({1, 2, 3, 4, 5}, CatChance);
    EXPECT_EQ(gCurrentPlayer, 1);
    EXPECT_EQ(screen.Caption(Control::fraScoreboard), "Player 1's Scoreboard");
    EXPECT_EQ(screen.Captions() + screen.Caption(Control::lblTotal), "|||12 |||||||||12");
}

// With two players each one's results and high-score check come at the end of their own card,
// the first before the second player's last turn; the summary and the prompt come once, after
// the last. The answer decides: 1 a new game with the same players and the session statistics
// untouched, 2 the end of the program, anything else the Change Players dialog.
TEST_F(FlowTest, EndOfGameAndPromptAnswer)
{
    const std::pair<int, const char*> answers[] = {{1, ""}, {2, "unload"}, {0, "players"}, {3, "players"}};
    for (auto [choice, next] : answers) {
        SCOPED_TRACE(choice);
        NewGame(2, false);
        gSessionStats[2].SessionGames = 4;
        screen.dialogs.clear();
        screen.promptAnswer = choice;
        std::string atResults;
        screen.onResults = [&] { atResults += std::to_string(gCurrentPlayer) + (PlayerCardFull(gScores[2]) ? "F" : "O"); };
        PlayToTheEnd(2);
        std::vector<std::string> expected{"results", "highscore 1", "results", "highscore 2", "summary", "prompt"};
        if (*next)
            expected.push_back(next);
        EXPECT_EQ(screen.dialogs, expected);
        EXPECT_EQ(atResults, "1O2F");
        EXPECT_EQ(gPlayerNames.UBound() * 10 + gSessionStats[2].SessionGames, 24);
        EXPECT_EQ(PlayerCardFull(gScores[2]), choice != 1);
        EXPECT_EQ(Now(), choice == 1 ? TurnBegun : "Accept ----- 3");
    }
}

// New Game stops a roll in any phase: the dice lie on the pile, player 1 is asked to roll,
// and no later tick finishes the interrupted roll.
class NewGameDuringRoll : public FlowTest, public ::testing::WithParamInterface<int> {};

TEST_P(NewGameDuringRoll, StopsTheRollForGood)
{
    const int phase = GetParam();
    NewGame(2);
    TakeTurn({1, 2, 3, 4, 5}, CatChance);
    ASSERT_EQ(gCurrentPlayer, 2);
    if (phase == 1) {
        Roll();
        MarkDice({0, 4});
    }
    table.RollOrAccept();
    TickUntilPhase(phase);
    table.tmrRoll_Timer();
    ASSERT_EQ(table.mRollPhase, phase);

    table.StartNewGame();
    const int focus = screen.focusCount;
    for (int tick = 0; tick < 100; ++tick)
        table.tmrRoll_Timer();
    EXPECT_EQ(table.mRollPhase, 0);
    EXPECT_TRUE(AllDiceAt(PileLeft, RollRow));
    EXPECT_EQ(gCurrentPlayer, 1);
    EXPECT_EQ(gScores[1][CatChance], EmptyCell);
    EXPECT_EQ(Now(), TurnBegun);
    EXPECT_EQ(screen.Caption(Control::lblPleaseRoll), "Player 1's turn. Please roll.");
    EXPECT_EQ(screen.focusCount, focus);
}

INSTANTIATE_TEST_SUITE_P(EachPhase, NewGameDuringRoll, ::testing::Values(1, 2, 3, 4));

// New Game during the choice leaves no box, no tooltip and no cell cursor, and puts the
// keyboard cursor on the middle die; outside a choice the cursor keeps its die.
TEST_F(FlowTest, NewGameDuringChoice)
{
    NewGame(1);
    screen.checked[Option::UseKeyboard] = true;
    ReachChoice({6, 6, 2, 3, 3});
    ASSERT_EQ(screen.Forms()[0], 'C');
    table.StartNewGame();
    EXPECT_EQ(table.mKeyCursor, 2);
    EXPECT_EQ(screen.Forms(), "-------------");
    EXPECT_EQ(screen.Captions(), "||||||||||||");
    EXPECT_EQ(screen.cells[CatOnes].toolTip, "");
    EXPECT_EQ(Now(), TurnBegun);
    Roll();
    EXPECT_EQ(screen.dice[2].list, ImageList::ilsDieInv);
    table.Form_KeyDown(vbKeyRight);
    table.Form_KeyDown(vbKeyRight);
    table.StartNewGame();
    EXPECT_EQ(table.mKeyCursor, 4);
}
