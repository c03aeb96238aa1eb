// The roll as a tick machine: how many ticks a roll lasts, where the dice lie on the way, when
// the values are drawn, and what switching the animation off in the middle of a roll does.
#include <set>

#include "TableFixture.h"

namespace {

class RollTest : public TableTest {
protected:
    // A new game whose first roll is over, with the given dice marked for the next one.
    void DecideToRoll(const std::vector<int>& marked, bool animate = true)
    {
        NewGame(1, animate);
        Roll();
        for (int i : marked)
            table.imgDie_MouseUp(i, vbLeftButton);
    }
};

}  // namespace

// A first roll takes 20 tumble + 7 spread + 18 settle ticks; a later roll with k marked dice
// adds 7 gather ticks and settles in 3 (k + 1). With the animation off any roll takes one tick
// and still ends with every die in its column in KeepRow.
TEST_F(RollTest, TicksPerRoll)
{
    NewGame(1);
    EXPECT_EQ(Roll(), 45);
    const std::vector<std::vector<int>> marks{{2}, {0, 4}, {1, 2, 3}, {0, 1, 3, 4}, {0, 1, 2, 3, 4}};
    for (const auto& marked : marks) {
        DecideToRoll(marked);
        EXPECT_EQ(Roll(), 37 + 3 * int(marked.size())) << marked.size();
        EXPECT_EQ(table.mRollsDone, 2);
    }
    NewGame(1, false);
    EXPECT_EQ(Roll(), 1);
    EXPECT_TRUE(InColumns(KeepRow));
    MarkDice({0, 2, 3});
    EXPECT_EQ(Roll(), 1);
    EXPECT_EQ(table.mRollsDone, 2);
    EXPECT_TRUE(InColumns(KeepRow));
}

// A first roll tumbles on the pile and spreads each die to its own column; a later roll
// gathers only the marked dice on the pile and spreads them back, while held dice never move.
TEST_F(RollTest, DiceGatherAndSpread)
{
    NewGame(1);
    table.RollOrAccept();
    TickUntilPhase(3);
    EXPECT_TRUE(AllDiceAt(PileLeft, RollRow));
    TickUntilPhase(4);
    EXPECT_TRUE(InColumns(RollRow));

    DecideToRoll({0, 1, 4});
    table.RollOrAccept();
    TickUntilPhase(2);
    const int lefts[] = {PileLeft, PileLeft, DieColumnLeft(2), DieColumnLeft(3), PileLeft};
    const int tops[] = {RollRow, RollRow, KeepRow, KeepRow, RollRow};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(screen.dice[i].left, lefts[i]) << i;
        EXPECT_EQ(screen.dice[i].top, tops[i]) << i;
    }
    TickUntilPhase(4);
    for (int i : {0, 1, 4})
        EXPECT_EQ(screen.dice[i].left, DieColumnLeft(i)) << i;
    RunTicks();
    EXPECT_TRUE(InColumns(KeepRow));
}

// Die 2 is the centre of all motion: rolled alone it never moves sideways, tumbles in place
// and jumps up on the third settle tick.
TEST_F(RollTest, MiddleDieAloneNeverMovesSideways)
{
    DecideToRoll({2});
    table.RollOrAccept();
    int ticks = 0, settleTicks = 0;
    for (; table.mRollPhase != 0 && ticks < 100; ++ticks) {
        settleTicks += table.mRollPhase == 4;
        table.tmrRoll_Timer();
        for (int i = 0; i < 5; ++i)
            ASSERT_EQ(screen.dice[i].left, DieColumnLeft(i)) << "die " << i << " tick " << ticks;
        ASSERT_EQ(screen.dice[2].top, settleTicks < 3 ? RollRow : KeepRow) << "tick " << ticks;
    }
    EXPECT_EQ(ticks, 40);
}

// The tumble draws every marked die on each even tick, 2 to 20: ten draws, and the last one is
// what the dice show when they rest.
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
    screen.dice[1].top = screen.dice[3].top = KeepRow;
    table.mDice = {0, 9, 0, 9, 0};
    screen.dice[1].face = screen.dice[3].face = 9;
    std::set<int> seen[5];
    for (int n = 0; n < 600; ++n) {
        table.RollMarkedDice();
        for (int i : {0, 2, 4}) {
            ASSERT_TRUE(table.mDice[i] >= 1 && table.mDice[i] <= 6) << table.mDice[i];
            ASSERT_EQ(screen.dice[i].face, table.mDice[i]);
            ASSERT_EQ(screen.dice[i].list, ImageList::ilsDie);
            seen[i].insert(table.mDice[i]);
        }
    }
    EXPECT_EQ(table.mDice[1] * 10 + table.mDice[3], 99);
    EXPECT_EQ(screen.dice[1].face * 10 + screen.dice[3].face, 99);
    for (int i : {0, 2, 4})
        EXPECT_EQ(seen[i].size(), 6u) << "die " << i;
}

// The option is read on every tick of gather and tumble: switched off there, the next tick
// draws the marked dice once more, lands each in its own column in KeepRow with none left
// between columns, and finishes the roll.
TEST_F(RollTest, AnimationOffDuringGatherOrTumbleLandsAtOnce)
{
    const struct {
        const char* what;
        std::vector<int> marked;   // empty: the first roll
        int phase, ticksIn;
    } cases[] = {
        {"first roll, tumble", {}, 2, 5},
        {"later roll, tumble", {1, 3}, 2, 4},
        {"later roll, gather", {0, 3, 4}, 1, 3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        if (c.marked.empty())
            NewGame(1);
        else
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
        EXPECT_TRUE(InColumns(KeepRow));
        EXPECT_EQ(table.mRollsDone, rollsBefore + 1);
        EXPECT_EQ(screen.Caption(Control::cmdRoll), "Accept");
        EXPECT_TRUE(screen.DieLabelsVisible());
    }
}

// Once the spread has begun the option is no longer read: the roll ends as it began.
TEST_F(RollTest, AnimationOffDuringSpreadOrSettleChangesNothing)
{
    for (int phase : {3, 4}) {
        NewGame(1);
        table.RollOrAccept();
        const int ticks = TickUntilPhase(phase);
        table.tmrRoll_Timer();
        screen.checked[Option::AnimateRolling] = false;
        EXPECT_EQ(ticks + 1 + RunTicks(), 45) << phase;
        EXPECT_TRUE(InColumns(KeepRow)) << phase;
    }
}
