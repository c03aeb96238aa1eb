// The roll as a tick machine: its length, its draws, and the animation switched off midway.
#include <set>

#include "TableFixture.h"

using RollTest = TableTest;

// First roll 20 tumble + 7 spread + 18 settle ticks, later ones 7 gather + 27 + 3 (k + 1); unanimated 1.
TEST_F(RollTest, TicksPerRoll)
{
    for (bool animate : {true, false})
        for (const auto& marked : {std::vector{2}, {0, 4}, {1, 2, 3}, {0, 1, 3, 4}, {0, 1, 2, 3, 4}}) {
            NewGame(1, animate);
            EXPECT_EQ(Roll(), animate ? 45 : 1);
            EXPECT_TRUE(DiceAt(false, KeepRow));
            MarkDice(marked);
            EXPECT_EQ(Roll(), animate ? 37 + 3 * int(marked.size()) : 1) << marked.size();
            EXPECT_EQ(Turn(), "Accept ++-+- 2");
            EXPECT_TRUE(DiceAt(false, KeepRow));
        }
}

// Marked dice are drawn on even tumble ticks, held dice never; each face 1..6 comes up.
TEST_F(RollTest, Draws)
{
    NewGame(1);
    table.RollOrAccept();
    std::string perTick;
    for (int tick = 1, before = screen.pictures; tick <= 20; ++tick, before = screen.pictures) {
        table.tmrRoll_Timer();
        perTick += std::to_string(screen.pictures - before);
    }
    EXPECT_EQ(perTick, "05050505050505050505");
    RunTicks();

    MarkDice({0, 2, 4});
    table.mDice[1] = table.mDice[3] = 9;
    std::set<int> seen[5];
    for (int n = 0; n < 600; ++n) {
        table.RollMarkedDice();
        for (int i : {0, 2, 4})
            seen[i].insert(screen.dice[i].face == table.mDice[i] ? table.mDice[i] : -1);
    }
    for (int i : {0, 2, 4})
        EXPECT_EQ(seen[i], (std::set{1, 2, 3, 4, 5, 6})) << i;
    EXPECT_EQ(table.mDice[1] * 10 + table.mDice[3], 99);
}

// Switched off in gather or tumble, the next tick draws and lands the dice; later it is not read.
TEST_F(RollTest, AnimationSwitchedOffMidRoll)
{
    const struct { std::vector<int> marked; int phase, drawn; } cases[] = {   // no marks: the first roll
        {{0, 3, 4}, 1, 3}, {{1, 3}, 2, 2}, {{}, 2, 5}, {{}, 3, 0}, {{}, 4, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.phase);
        NewGame(1);
        if (!c.marked.empty())
            Roll(), MarkDice(c.marked);
        table.RollOrAccept();
        const int before = TickUntilPhase(c.phase) + 1;
        table.tmrRoll_Timer();
        ASSERT_EQ(table.mRollPhase, c.phase);
        screen.checked[Option::AnimateRolling] = false;
        const int pictures = screen.pictures, after = RunTicks();
        EXPECT_EQ(screen.pictures - pictures, c.drawn);
        EXPECT_EQ(c.phase <= 2 ? after : before + after, c.phase <= 2 ? 1 : 45);
        EXPECT_TRUE(DiceAt(false, KeepRow));
        EXPECT_EQ(Turn(), c.marked.empty() ? "Accept ++-+- 1" : "Accept ++-+- 2");
    }
}
