// The roll as a tick machine: how many ticks a roll lasts, where the dice lie on the way, when
// the values are drawn, and what switching the animation off in the middle of a roll does.
#include <set>
#include <vector>

#include "TableFixture.h"

namespace {

class RollTest : public TableTest {
protected:
    // Finishes the first roll and marks the given dice for the next one.
    void DecideToRoll(std::vector<int> marked)
    {
        Roll();
        for (int i : marked)
            table.imgDie_MouseUp(i, vbLeftButton);
    }
    void ExpectInColumns(int top)
    {
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(screen.dice[i].left, DieColumnLeft(i)) << "die " << i;
            EXPECT_EQ(screen.dice[i].top, top) << "die " << i;
        }
    }
};

}  // namespace

// A first roll takes 20 tumble + 7 spread + 18 settle ticks; a later roll with k marked dice
// adds 7 gather ticks and settles in 3 (k + 1). With the animation off any roll takes one tick.
TEST_F(RollTest, TicksPerRoll)
{
    NewGame(1);
    EXPECT_EQ(Roll(), 45);
    const std::vector<std::vector<int>> marks{{2}, {0, 4}, {1, 2, 3}, {0, 1, 3, 4}, {0, 1, 2, 3, 4}};
    for (const auto& marked : marks) {
        SCOPED_TRACE(marked.size());
        NewGame(1);
        DecideToRoll(marked);
        EXPECT_EQ(Roll(), 37 + 3 * int(marked.size()));
        EXPECT_EQ(table.mRollsDone, 2);
    }
    NewGame(1, false);
    EXPECT_EQ(Roll(), 1);
    ExpectInColumns(KeepRow);
    MarkDice({0, 2, 3});
    EXPECT_EQ(Roll(), 1);
    EXPECT_EQ(table.mRollsDone, 2);
    ExpectInColumns(KeepRow);
}

// A later roll gathers the marked dice on the pile and spreads them back to their own columns
// before they settle; held dice never move.
TEST_F(RollTest, MarkedDiceGatherAndSpreadBack)
{
    NewGame(1);
    DecideToRoll({0, 1, 4});
    table.RollOrAccept();
    TickUntilPhase(2);
    for (int i : {0, 1, 4}) {
        EXPECT_EQ(screen.dice[i].left, PileLeft) << i;
        EXPECT_EQ(screen.dice[i].top, RollRow) << i;
    }
    for (int i : {2, 3}) {
        EXPECT_EQ(screen.dice[i].left, DieColumnLeft(i)) << i;
        EXPECT_EQ(screen.dice[i].top, KeepRow) << i;
    }
    TickUntilPhase(4);
    for (int i : {0, 1, 4})
        EXPECT_EQ(screen.dice[i].left, DieColumnLeft(i)) << i;
    RunTicks();
    ExpectInColumns(KeepRow);
}

// A first roll starts with all five on the pile: they tumble there and the spread brings each
// to its own column.
TEST_F(RollTest, FirstRollSpreadsFromThePile)
{
    NewGame(1);
    table.RollOrAccept();
    TickUntilPhase(3);
    for (const FakeDie& d : screen.dice) {
        EXPECT_EQ(d.left, PileLeft);
        EXPECT_EQ(d.top, RollRow);
    }
    TickUntilPhase(4);
    ExpectInColumns(RollRow);
    RunTicks();
    ExpectInColumns(KeepRow);
}

// Die 2 is the centre of all motion: rolled alone it never moves sideways, tumbles in place
// and jumps up on the third settle tick.
TEST_F(RollTest, MiddleDieAloneNeverMovesSideways)
{
    NewGame(1);
    DecideToRoll({2});
    table.RollOrAccept();
    int ticks = 0, settleTicks = 0;
    while (table.mRollPhase != 0 && ticks < 100) {
        const bool settling = table.mRollPhase == 4;
        table.tmrRoll_Timer();
        ++ticks;
        settleTicks += settling;
        for (int i = 0; i < 5; ++i)
            ASSERT_EQ(screen.dice[i].left, DieColumnLeft(i)) << "die " << i << " tick " << ticks;
        if (settleTicks < 3)
            ASSERT_EQ(screen.dice[2].top, RollRow) << "tick " << ticks;
        else
            ASSERT_EQ(screen.dice[2].top, KeepRow) << "tick " << ticks;
    }
    EXPECT_EQ(ticks, 40);
}

// The tumble draws every marked die on each even tick, 2 to 20: ten draws, the last one counts.
TEST_F(RollTest, DrawsOnEvenTumbleTicks)
{
    NewGame(1);
    table.RollOrAccept();
    for (int tick = 1; tick <= 20; ++tick) {
        const int before = screen.pictureCount;
        table.tmrRoll_Timer();
        EXPECT_EQ(screen.pictureCount - before, tick % 2 == 0 ? 5 : 0) << "tick " << tick;
    }
    EXPECT_EQ(table.mRollPhase, 3);
    const DiceValues drawn = table.mDice;
    const int pictures = screen.pictureCount;
    RunTicks();
    EXPECT_EQ(table.mDice, drawn);
    EXPECT_EQ(screen.pictureCount, pictures);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(screen.dice[i].face, drawn[i]);
}

// Only dice in RollRow are drawn; each draw is a face 1..6 shown from the ordinary list, and
// over many draws every face comes up.
TEST_F(RollTest, RollMarkedDiceDrawsOnlyMarkedDice)
{
    NewGame(1);
    screen.dice[1].top = KeepRow;
    screen.dice[3].top = KeepRow;
    table.mDice = {0, 9, 0, 9, 0};
    screen.dice[1].face = screen.dice[3].face = 9;
    std::set<int> seen[5];
    for (int n = 0; n < 600; ++n) {
        table.RollMarkedDice();
        for (int i : {0, 2, 4}) {
            ASSERT_GE(table.mDice[i], 1);
            ASSERT_LE(table.mDice[i], 6);
            ASSERT_EQ(screen.dice[i].face, table.mDice[i]);
            ASSERT_EQ(screen.dice[i].list, ImageList::ilsDie);
            seen[i].insert(table.mDice[i]);
        }
    }
    EXPECT_EQ(table.mDice[1], 9);
    EXPECT_EQ(table.mDice[3], 9);
    EXPECT_EQ(screen.dice[1].face, 9);
    EXPECT_EQ(screen.dice[3].face, 9);
    for (int i : {0, 2, 4})
        EXPECT_EQ(seen[i].size(), 6u) << "die " << i;
}

// The option is read on every tick of gather and tumble: switched off there, the next tick
// draws once more and lands every marked die in its own column in KeepRow, none left between
// columns, and the roll is finished.
TEST_F(RollTest, AnimationOffDuringGatherOrTumbleLandsAtOnce)
{
    struct Case {
        const char* what;
        std::vector<int> marked;   // empty: the first roll
        int phase, ticksIn;
    } cases[] = {
        {"first roll, tumble", {}, 2, 5},
        {"later roll, tumble", {1, 3}, 2, 4},
        {"later roll, gather", {0, 3, 4}, 1, 3},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        NewGame(1);
        if (!c.marked.empty())
            DecideToRoll(c.marked);
        const int rollsBefore = table.mRollsDone;
        table.RollOrAccept();
        TickUntilPhase(c.phase);
        for (int t = 0; t < c.ticksIn; ++t)
            table.tmrRoll_Timer();
        ASSERT_EQ(table.mRollPhase, c.phase);
        screen.checked[Option::AnimateRolling] = false;
        const int pictures = screen.pictureCount;
        table.tmrRoll_Timer();
        EXPECT_EQ(table.mRollPhase, 0);
        EXPECT_EQ(screen.pictureCount - pictures, c.marked.empty() ? 5 : int(c.marked.size()));
        ExpectInColumns(KeepRow);
        EXPECT_EQ(table.mRollsDone, rollsBefore + 1);
        EXPECT_EQ(screen.Caption(Control::cmdRoll), "Accept");
        EXPECT_TRUE(screen.DieLabelsVisible());
        EXPECT_EQ(RunTicks(), 0);
    }
}

// Once the spread has begun the option is no longer read: the roll ends as it began.
TEST_F(RollTest, AnimationOffDuringSpreadOrSettleChangesNothing)
{
    for (int phase : {3, 4}) {
        SCOPED_TRACE(phase);
        NewGame(1);
        table.RollOrAccept();
        int ticks = 0;
        while (table.mRollPhase != phase && ticks < 100) {
            table.tmrRoll_Timer();
            ++ticks;
        }
        table.tmrRoll_Timer();
        screen.checked[Option::AnimateRolling] = false;
        EXPECT_EQ(ticks + 1 + RunTicks(), 45);
        ExpectInColumns(KeepRow);
        EXPECT_EQ(table.mRollsDone, 1);
    }
}
