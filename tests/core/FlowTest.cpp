// The game around the turns: turns passing, the end of a card and of a game, New Game cutting in;
// and the roll as a tick machine: its length, its draws, where the dice land.
#include <set>

#include "TableFixture.h"

using FlowTest = TableTest;

// A full card brings results, then the high-score check; after the last, the summary (2+ players) and the prompt:
// 1 a new game, 2 the end, else Change Players. The last cell is worthless, but nothing open scores: no question.
TEST_F(FlowTest, EndOfCardAndGame)
{
    const struct { int players, choice; const char* dialogs; } cases[] = {
        {1, 2, " results highscore1 prompt unload"},
        {2, 1, " results highscore1 results highscore2 summary prompt"},
        {2, 0, " results highscore1 results highscore2 summary prompt players"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.choice);
        NewGame(c.players);
        screen.dialogs.clear();
        screen.promptAnswer = c.choice;
        for (int p = 1; p <= c.players; ++p)
            for (int row = 1; row <= CategoryCount; ++row)
                gScores[p][row] = row == CatFullHouse ? EmptyCell : 0;
        for (int p = 1; p <= c.players; ++p)
            TakeTurn({1, 2, 3, 4, 5}, CatFullHouse);
        EXPECT_EQ(screen.dialogs, c.dialogs);
        EXPECT_EQ(Turn(), c.choice == 1 ? TurnBegun : "Accept ----- 3");
    }
}

// The turn passes to player 2. New Game in any roll phase or in the choice ends it for good, leaves no box, and
// asks player 1 to roll with the dice on the pile.
TEST_F(FlowTest, NewGameCutsIn)
{
    for (int phase = 0; phase <= 4; ++phase) {   // phase 0: in the choice
        SCOPED_TRACE(phase);
        NewGame(2);
        TakeTurn({1, 2, 3, 4, 5}, CatChance);
        EXPECT_EQ(screen.Caption(Control::fraScoreboard) + Turn(), "Player 2's Scoreboard" + TurnBegun);
        if (phase == 1)
            Roll(), table.imgDie_MouseUp(0, vbLeftButton);
        phase ? table.RollOrAccept() : ReachChoice({6, 6, 2, 3, 3});
        for (int tick = 0; tick < 200 && table.mRollPhase != phase; ++tick)
            table.tmrRoll_Timer();
        table.tmrRoll_Timer();
        ASSERT_EQ(table.mRollPhase, phase);
        table.StartNewGame();
        for (int tick = 0; tick < 100; ++tick)
            table.tmrRoll_Timer();
        EXPECT_EQ(Dice() + screen.Forms() + screen.cells[CatChance].tip, "ppppp-------------");
        EXPECT_EQ(Turn() + screen.Caption(Control::lblPleaseRoll), TurnBegun + "Player 1's turn. Please roll.");
    }
}

using RollTest = TableTest;

// First roll 20 tumble + 7 spread + 18 settle ticks, later ones 7 gather + 27 + 3 (k + 1), drawing on even tumble
// ticks; switched off before the spread, the next tick draws once more and lands the dice. Each face 1..6 comes up.
TEST_F(RollTest, TicksDrawsAndLanding)
{
    const struct { std::vector<int> marked; int offAfter, ticks, drawn; } cases[] = {   // no marks: a first roll
        {{}, 99, 45, 50}, {{}, 0, 1, 5}, {{}, 5, 6, 15}, {{}, 25, 45, 50}, {{0, 4}, 99, 43, 20},
        {{2}, 99, 40, 10}, {{0, 1, 2, 3, 4}, 99, 52, 50}, {{1, 3}, 0, 1, 2}, {{0, 3, 4}, 3, 4, 3}};
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        NewGame();
        if (!c.marked.empty())
            Roll();
        for (int i : c.marked)
            table.imgDie_MouseUp(i, vbLeftButton);
        table.RollOrAccept();
        const int pictures = screen.pictures;
        int ticks = 0;
        for (; table.mRollPhase && ticks < 100; ++ticks) {
            screen.checked[Option::AnimateRolling] = ticks < c.offAfter;
            table.tmrRoll_Timer();
        }
        EXPECT_EQ(std::pair(ticks, screen.pictures - pictures), std::pair(c.ticks, c.drawn));
        EXPECT_EQ(Dice() + Turn(), c.marked.empty() ? "kkkkkAccept ++-+- 1" : "kkkkkAccept ++-+- 2");
    }
    table.GatherDice();
    std::set<int> faces;
    for (int n = 0; n < 100; ++n, faces.insert(table.mDice.begin(), table.mDice.end()))
        table.RollMarkedDice();
    EXPECT_EQ(faces, (std::set{1, 2, 3, 4, 5, 6}));
}
