// The roll as a tick machine: its length, its draws, where the dice land, the animation switched off midway.
#include <set>

#include "TableFixture.h"

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
