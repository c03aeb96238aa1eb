// The turn and the game: what the table shows at each moment of a turn, the confirm and zero
// questions, the passing of the turn, the end of a card and of a game, and New Game cutting in.
#include <ostream>

#include "TableFixture.h"

namespace {

// What the player sees of the turn's progress.
struct Look {
    bool rollEnabled;
    std::string rollCaption;
    bool picEnabled, pleaseRoll, dieLabels, selectCategory;
    int rollsDone;
    bool operator==(const Look&) const = default;
};

std::ostream& operator<<(std::ostream& os, const Look& l)
{
    return os << "{cmdRoll " << l.rollEnabled << " \"" << l.rollCaption << "\", pic " << l.picEnabled
              << ", pleaseRoll " << l.pleaseRoll << ", dieLabels " << l.dieLabels << ", select "
              << l.selectCategory << ", rollsDone " << l.rollsDone << "}";
}

class FlowTest : public TableTest {
protected:
    Look Now() const
    {
        return {screen.Enabled(Control::cmdRoll), screen.Caption(Control::cmdRoll),
                screen.Enabled(Control::picDisplayer), screen.Visible(Control::lblPleaseRoll),
                screen.DieLabelsVisible(), screen.Visible(Control::lblSelectCategory), table.mRollsDone};
    }
    bool AllDiceAt(int left, int top) const
    {
        for (const FakeDie& d : screen.dice)
            if (d.left != left || d.top != top)
                return false;
        return true;
    }
    // Every player fills every category in turn; gives nothing back, the dialogs are logged.
    void PlayWholeGame(int players)
    {
        for (int category = 1; category <= CategoryCount; ++category)
            for (int p = 1; p <= players; ++p)
                TakeTurn(ScoringDice(category), category);
    }
};

}  // namespace

// The controls follow the turn moment by moment: the button is the only way on, dice can be
// marked only between rolls, and a later roll locks the dice field from its first tick.
// The third roll opens the choice at once, with the caption still "Roll".
TEST_F(FlowTest, ControlsThroughATurn)
{
    NewGame(1);
    const Look begun{true, "Roll", true, true, false, false, 0};
    const Look firstRolling{false, "Roll", true, false, false, false, 0};
    const Look decided1{true, "Accept", true, false, true, false, 1};
    const Look clickedRoll{false, "Roll", true, false, true, false, 1};
    const Look laterRolling{false, "Roll", false, false, false, false, 1};
    const Look decided2{true, "Accept", true, false, true, false, 2};
    const Look choosing{false, "Roll", false, false, false, true, 3};

    EXPECT_EQ(Now(), begun);
    EXPECT_EQ(screen.Caption(Control::lblPleaseRoll), "Player 1's turn. Please roll.");
    EXPECT_TRUE(AllDiceAt(PileLeft, RollRow));
    table.RollOrAccept();
    EXPECT_EQ(Now(), firstRolling);
    table.tmrRoll_Timer();
    EXPECT_EQ(Now(), firstRolling);
    const int focus = screen.focusCount;
    RunTicks();
    EXPECT_EQ(Now(), decided1);
    EXPECT_EQ(screen.focusCount, focus + 1);   // keys must reach the window, not the button
    for (const FakeDie& d : screen.dice)
        EXPECT_EQ(d.top, KeepRow);

    MarkDice({1});
    EXPECT_EQ(screen.Caption(Control::cmdRoll), "Roll");
    table.RollOrAccept();
    EXPECT_EQ(Now(), clickedRoll);
    table.tmrRoll_Timer();
    EXPECT_EQ(Now(), laterRolling);
    RunTicks();
    EXPECT_EQ(Now(), decided2);

    MarkDice({0, 4});
    table.RollOrAccept();
    table.tmrRoll_Timer();
    EXPECT_EQ(Now(), (Look{false, "Roll", false, false, false, false, 2}));
    RunTicks();
    EXPECT_EQ(Now(), choosing);
    EXPECT_EQ(screen.cells[CatOnes].toolTip, "Scoring category");
    EXPECT_EQ(screen.cells[CatChance].toolTip, "Scoring category");
    EXPECT_EQ(screen.BoxedCount(), 13);
}

// With no die marked the button asks before it ends the rolling. No changes nothing and the
// player may still mark and roll; Yes opens the choice at once, with no draw and no animation.
TEST_F(FlowTest, AcceptAsksAndYesEndsTheRolling)
{
    NewGame(1);
    Roll();
    const DiceValues dice{2, 2, 5, 6, 1};
    SetDice(dice);
    const Look deciding = Now();
    ASSERT_EQ(deciding.rollCaption, "Accept");

    msg.answers = {vbNo};
    table.cmdRoll_Click();
    ASSERT_EQ(msg.calls.size(), 1u);
    EXPECT_EQ(msg.calls[0].text, "No dice selected.\r\nAre you satisfied with the roll?");
    EXPECT_EQ(msg.calls[0].style, vbYesNo | vbQuestion | vbDefaultButton2);
    EXPECT_EQ(msg.calls[0].title, "Zarvo - Confirm");
    EXPECT_EQ(Now(), deciding);
    EXPECT_EQ(table.mRollPhase, 0);

    const int pictures = screen.pictureCount;
    msg.answers = {vbYes};
    table.cmdRoll_Click();
    EXPECT_EQ(msg.calls.size(), 2u);
    EXPECT_EQ(Now(), (Look{false, "Accept", false, false, false, true, 3}));
    EXPECT_EQ(table.mRollPhase, 0);
    EXPECT_EQ(table.mDice, dice);
    EXPECT_EQ(screen.pictureCount, pictures);
    EXPECT_EQ(screen.cells[CatOnes].caption, "");   // the preview is off
    EXPECT_EQ(screen.cells[CatOnes].backColor, White);
    EXPECT_EQ(screen.cells[CatFullHouse].backColor, LightGrey);
}

// After a No the player can mark a die and roll on; the question did not count as a roll.
TEST_F(FlowTest, NoToAcceptKeepsTheRollCount)
{
    NewGame(1);
    Roll();
    msg.answers = {vbNo};
    table.RollOrAccept();
    MarkDice({3});
    table.RollOrAccept();
    EXPECT_EQ(table.mRollPhase, 1);
    RunTicks();
    EXPECT_EQ(table.mRollsDone, 2);
    EXPECT_EQ(msg.calls.size(), 1u);
}

// "Take a zero?" guards a worthless choice only while another open category would score.
// No leaves the card and the choice as they were; Yes writes the 0 and ends the turn.
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
    EXPECT_EQ(screen.BoxedCount(), 13);

    msg.answers = {vbYes};
    ClickCell(CatFullHouse);
    EXPECT_EQ(gScores[1][CatFullHouse], 0);
    EXPECT_TRUE(screen.Visible(Control::lblPleaseRoll));
    EXPECT_EQ(screen.cells[CatFullHouse].caption, "0 ");
    EXPECT_EQ(msg.calls.size(), 3u);
}

// No question when nothing open would score (the zero is taken at once) or when the chosen
// category scores, however little. An unexpected message fails the test.
TEST_F(FlowTest, NoZeroQuestionWhenNothingElseScoresOrTheChoiceScores)
{
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
    EXPECT_EQ(msg.calls.size(), 2u);   // only the two Accept questions
}

// One player: after each scoring the same player starts again; the full card brings the
// results and the high-score check, then the prompt, and no summary. The results dialog
// sees the final card with the choice closed.
TEST_F(FlowTest, OnePlayerGame)
{
    NewGame(1, false);
    screen.promptAnswer = 2;
    bool choiceClosedAtResults = false;
    screen.onResults = [&] {
        choiceClosedAtResults = !screen.Visible(Control::lblSelectCategory) && screen.BoxedCount() == 0 &&
                                screen.cells[CatOnes].toolTip.empty() &&
                                screen.Caption(Control::lblTotal) == std::to_string(PlayerTotal(1));
    };
    for (int category = 1; category <= CategoryCount; ++category) {
        EXPECT_TRUE(screen.dialogs.empty()) << category;
        TakeTurn(ScoringDice(category), category);
        if (category < CategoryCount) {
            EXPECT_EQ(gCurrentPlayer, 1);
            EXPECT_TRUE(screen.Visible(Control::lblPleaseRoll));
        }
    }
    EXPECT_EQ(screen.dialogs, (std::vector<std::string>{"results", "highscore 1", "prompt", "unload"}));
    EXPECT_TRUE(choiceClosedAtResults);
    EXPECT_TRUE(PlayerCardFull(gScores[1]));
}

// Two players: the turn passes after every scoring and the next card is shown; each player's
// results come at the end of their own card, the summary and the prompt once after the last.
TEST_F(FlowTest, TwoPlayerGame)
{
    NewGame(2, false);
    gPlayerNames[2] = "Bea Lind";
    table.StartNewGame();
    screen.promptAnswer = 2;
    std::vector<int> resultsFor;
    std::vector<bool> secondCardFull;
    screen.onResults = [&] {
        resultsFor.push_back(gCurrentPlayer);
        secondCardFull.push_back(PlayerCardFull(gScores[2]));
    };

    TakeTurn({4, 4, 4, 1, 2}, CatFours);
    EXPECT_EQ(gCurrentPlayer, 2);
    EXPECT_EQ(screen.Caption(Control::lblPleaseRoll), "Bea Lind's turn. Please roll.");
    EXPECT_EQ(screen.Caption(Control::fraScoreboard), "Bea Lind's Scoreboard");
    EXPECT_EQ(screen.cells[CatFours].caption, "");
    EXPECT_EQ(screen.Caption(Control::lblTotal), "0");
    EXPECT_TRUE(AllDiceAt(PileLeft, RollRow));
    TakeTurn({1, 2, 3, 4, 5}, CatChance);
    EXPECT_EQ(gCurrentPlayer, 1);
    EXPECT_EQ(screen.Caption(Control::fraScoreboard), "Player 1's Scoreboard");
    EXPECT_EQ(screen.cells[CatFours].caption, "12 ");

    for (int turn = 0; turn < 24 && !PlayerCardFull(gScores[2]); ++turn) {
        int open = 1;
        while (open < CategoryCount && gScores[gCurrentPlayer][open] != EmptyCell)
            ++open;
        TakeTurn(ScoringDice(open), open);
    }
    EXPECT_EQ(screen.dialogs, (std::vector<std::string>{"results", "highscore 1", "results", "highscore 2",
                                                         "summary", "prompt", "unload"}));
    EXPECT_EQ(resultsFor, (std::vector<int>{1, 2}));
    EXPECT_EQ(secondCardFull, (std::vector<bool>{false, true}));
}

// The prompt's answer decides: 1 a new game with the same players and the session statistics
// untouched, 2 the end of the program, anything else the Change Players dialog.
TEST_F(FlowTest, PromptAnswerDecidesWhatFollows)
{
    struct Answer {
        int choice;
        const char* next;
        bool newGame;
    } answers[] = {{1, nullptr, true}, {2, "unload", false}, {0, "players", false}, {3, "players", false}};
    for (const Answer& a : answers) {
        SCOPED_TRACE(a.choice);
        NewGame(2, false);
        gSessionStats[2].SessionGames = 4;
        screen.dialogs.clear();
        screen.promptAnswer = a.choice;
        PlayWholeGame(2);
        std::vector<std::string> expected{"results", "highscore 1", "results", "highscore 2", "summary", "prompt"};
        if (a.next)
            expected.push_back(a.next);
        EXPECT_EQ(screen.dialogs, expected);
        EXPECT_EQ(gPlayerNames.UBound(), 2);
        EXPECT_EQ(gSessionStats.UBound(), 2);
        EXPECT_EQ(gSessionStats[2].SessionGames, 4);
        EXPECT_EQ(screen.Visible(Control::lblPleaseRoll), a.newGame);
        EXPECT_EQ(PlayerCardFull(gScores[2]), !a.newGame);
        if (a.newGame) {
            EXPECT_EQ(gCurrentPlayer, 1);
            EXPECT_EQ(gScores[1][CatChance], EmptyCell);
            EXPECT_EQ(gScores[2][BonusCell], 0);
        }
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
    for (int tick = 0; tick < 100; ++tick) {
        table.tmrRoll_Timer();
        EXPECT_EQ(table.mRollPhase, 0);
    }
    EXPECT_TRUE(AllDiceAt(PileLeft, RollRow));
    EXPECT_EQ(gCurrentPlayer, 1);
    EXPECT_EQ(gScores[1][CatChance], EmptyCell);
    EXPECT_EQ(Now(), (Look{true, "Roll", true, true, false, false, 0}));
    EXPECT_EQ(screen.Caption(Control::lblPleaseRoll), "Player 1's turn. Please roll.");
    EXPECT_EQ(screen.focusCount, focus);
}

INSTANTIATE_TEST_SUITE_P(EachPhase, NewGameDuringRoll, ::testing::Values(1, 2, 3, 4));

// New Game during the choice leaves no box and no cell cursor, and puts the keyboard cursor on
// the middle die; outside a choice the cursor keeps its die.
TEST_F(FlowTest, NewGameDuringChoiceClearsTheCard)
{
    NewGame(1);
    screen.checked[Option::UseKeyboard] = true;
    ReachChoice({6, 6, 2, 3, 3});
    ASSERT_EQ(table.mKeyCursor, 1);
    ASSERT_EQ(screen.cells[CatOnes].backColor, DarkGrey);

    table.StartNewGame();
    EXPECT_EQ(table.mKeyCursor, 2);
    EXPECT_EQ(screen.BoxedCount(), 0);
    EXPECT_FALSE(screen.Visible(Control::lblSelectCategory));
    for (int c = 1; c <= CategoryCount; ++c) {
        EXPECT_EQ(screen.cells[c].top, FlatCellTop(c)) << c;
        EXPECT_EQ(screen.cells[c].backStyle, 0) << c;
        EXPECT_EQ(screen.cells[c].caption, "") << c;
        EXPECT_EQ(screen.cells[c].toolTip, "") << c;
    }
    EXPECT_EQ(screen.cells[CatOnes].foreColor, Black);

    Roll();
    EXPECT_EQ(screen.dice[2].list, ImageList::ilsDieInv);
    table.Form_KeyDown(vbKeyRight);
    table.Form_KeyDown(vbKeyRight);
    table.StartNewGame();
    EXPECT_EQ(table.mKeyCursor, 4);
}
