// The turn and the game: moment by moment, the questions, turns passing, the end, New Game cutting in.
#include "TableFixture.h"

using FlowTest = TableTest;

// Dice are markable only between rolls; each roll ends with the focus on the window; the third opens the choice
TEST_F(FlowTest, ControlsThroughATurn)
{
    NewGame(1);
    EXPECT_EQ(Turn() + screen.Caption(Control::lblPleaseRoll), TurnBegun + "Player 1's turn. Please roll.");
    table.RollOrAccept();
    table.tmrRoll_Timer();
    EXPECT_EQ(Turn(), "Roll -+--- 0");
    const int focus = screen.focus;
    RunTicks();
    EXPECT_EQ(Turn() + std::to_string(screen.focus - focus), "Accept ++-+- 11");
    MarkDice({1});
    table.RollOrAccept();
    EXPECT_EQ(Turn(), "Roll -+-+- 1");
    table.tmrRoll_Timer();
    EXPECT_EQ(Turn(), "Roll ----- 1");
    RunTicks();
    EXPECT_EQ(Turn(), "Accept ++-+- 2");
    MarkDice({0, 4});
    Roll();
    EXPECT_EQ(Turn() + std::to_string(screen.focus - focus), "Roll ----+ 33");
    EXPECT_EQ(screen.cells[CatOnes].tip + screen.cells[CatChance].tip, "Scoring categoryScoring category");
}

// Accept asks first: No changes nothing, Yes opens the choice at once with no draw. Open cells are boxed,
// white where they would score, else grey, and only boxes can be taken. A worthless one asks
// "Take a zero?" only while another open cell would score; No leaves everything as it was.
TEST_F(FlowTest, AcceptChoiceAndZero)
{
    NewGame(1);
    SetCard({{CatSixes, 12}, {CatZarvo, 0}});
    Roll();
    table.mDice = {1, 2, 3, 4, 6};
    table.lblLeft_Click(CatOnes);
    table.lblRight_Click(CatChance - 6);
    answers = {vbNo, vbYes};
    table.cmdRoll_Click();
    EXPECT_EQ(calls, std::vector{Box("No dice selected.\r\nAre you satisfied with the roll?",
                                     vbYesNo | vbQuestion | vbDefaultButton2)});
    EXPECT_EQ(Turn() + std::to_string(table.mRollPhase), "Accept ++-+- 10");
    const int pictures = screen.pictures;
    table.cmdRoll_Click();
    EXPECT_EQ(std::pair(table.mDice, screen.pictures), std::pair(DiceValues{1, 2, 3, 4, 6}, pictures));
    EXPECT_EQ(screen.Forms() + screen.Captions(), "WWWWg-gggWg-W|||||12 ||||||0 |");
    table.lblLeft_Click(CatSixes);
    table.lblRight_Click(CatZarvo - 6);
    answers = {vbNo};
    ClickCell(CatFullHouse);
    EXPECT_EQ(calls.back(), Box("Take a zero?", vbYesNo | vbQuestion));
    EXPECT_EQ(screen.Forms() + Turn() + std::to_string(table.mRollPhase), "WWWWg-gggWg-WAccept ----+ 30");
    EXPECT_EQ(std::pair(PlayerTotal(1), int(gScores[1][CatFullHouse])), std::pair(12, -1));
    answers = {vbYes};
    ClickCell(CatFullHouse);
    EXPECT_EQ(screen.cells[CatFullHouse].caption, "0 ");

    NewGame(1);
    for (int row = 1; row <= CategoryCount; ++row)
        gScores[1][row] = row == CatFullHouse || row == CatLargeStraight ? EmptyCell : 0;
    TakeTurn({1, 1, 2, 2, 3}, CatFullHouse);
    EXPECT_EQ(gScores[1][CatFullHouse], 0);
}

// Each full card: results (the card shown; '*' once the last card is full) and high-score check; after the last,
// the summary (2+ players) and the prompt: 1 a new game, same players and statistics; 2 the end; else Players.
TEST_F(FlowTest, EndOfCardAndGame)
{
    const struct { int players, choice; const char* dialogs; } cases[] = {
        {1, 2, " results* highscore1 prompt unload"},
        {2, 1, " results highscore1 results* highscore2 summary prompt"},
        {2, 2, " results highscore1 results* highscore2 summary prompt unload"},
        {2, 0, " results highscore1 results* highscore2 summary prompt players"},
        {2, 3, " results highscore1 results* highscore2 summary prompt players"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.players * 10 + c.choice);
        NewGame(c.players, false);
        gSessionStats[c.players].SessionGames = 4;
        screen.dialogs.clear();
        screen.promptAnswer = c.choice;
        for (int p = 1; p <= c.players; ++p)
            for (int row = 1; row < CatChance; ++row)
                gScores[p][row] = 0;
        screen.onResults = [&] {
            screen.dialogs += PlayerCardFull(gScores[c.players]) ? "*" : "";
            EXPECT_EQ(screen.Forms() + screen.cells[1].tip + Turn(), "-------------Accept ----- 3");
            EXPECT_EQ(screen.Caption(Control::lblTotal), std::to_string(PlayerTotal(gCurrentPlayer)));
        };
        for (int p = 1; p <= c.players; ++p)
            TakeTurn({1, 2, 3, 4, 5}, CatChance);
        EXPECT_EQ(screen.dialogs, c.dialogs);
        EXPECT_EQ(gPlayerNames.UBound() * 10 + gSessionStats[c.players].SessionGames, c.players * 10 + 4);
        EXPECT_EQ(Turn(), c.choice == 1 ? TurnBegun : "Accept ----- 3");
    }
}

// The turn passes to player 2. New Game stops a roll in any phase for good; in the choice it clears the boxes
// and puts the key cursor on die 2.
TEST_F(FlowTest, NewGameCutsIn)
{
    for (int phase = 1; phase <= 4; ++phase) {
        SCOPED_TRACE(phase);
        NewGame(2);
        TakeTurn({1, 2, 3, 4, 5}, CatChance);
        EXPECT_EQ(screen.Caption(Control::fraScoreboard) + Turn(), "Player 2's Scoreboard" + TurnBegun);
        EXPECT_TRUE(DiceAt(true, RollRow));
        if (phase == 1)
            Roll(), MarkDice({0, 4});
        table.RollOrAccept();
        TickUntilPhase(phase);
        table.tmrRoll_Timer();
        ASSERT_EQ(table.mRollPhase, phase);
        table.StartNewGame();
        for (int tick = 0; tick < 100; ++tick)
            table.tmrRoll_Timer();
        EXPECT_TRUE(DiceAt(true, RollRow));
        EXPECT_EQ(gScores[1][CatChance], EmptyCell);
        EXPECT_EQ(Turn() + screen.Caption(Control::lblPleaseRoll), TurnBegun + "Player 1's turn. Please roll.");
    }
    NewGame(1);
    screen.checked[Option::UseKeyboard] = true;
    ReachChoice({6, 6, 2, 3, 3});
    ASSERT_EQ(screen.Forms()[0], 'C');
    table.StartNewGame();
    EXPECT_EQ(screen.Forms() + screen.cells[CatOnes].tip + Turn(), "-------------" + TurnBegun);
    Roll();
    EXPECT_EQ(DieLooks(), "..I..");
}
