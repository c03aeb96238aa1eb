// The rule book, and the largest card scored through the table.
#include "TableFixture.h"

// The 13 categories' values for these dice on a card with these rows filled; "15+100" is a score and its bonus.
static std::string Values(const std::vector<std::pair<int, int>>& rows, DiceValues dice)
{
    ScoreCard card;
    card.rows.fill(EmptyCell);
    card[BonusCell] = 0;
    for (auto [row, value] : rows)
        card[row] = std::int16_t(value);
    std::string all;
    for (int c = 1; c <= CategoryCount; ++c) {
        const Evaluation e = EvaluateCategory(dice, card, c);
        all += (c > 1 ? " " : "") + std::to_string(e.score) + (e.bonus ? "+" + std::to_string(e.bonus) : "");
    }
    return all;
}

// Five of a kind is no full house, four of a kind also three of a kind; straights allow a pair and any order. A repeat
// Zarvo earns 100 where it scores once Zarvo holds 50; the 35 comes once, at 63 in the left column, also beside it.
TEST(EvaluateCategory, ValuesAndAwards)
{
    const struct { std::vector<std::pair<int, int>> rows; DiceValues dice; const char* values; } cases[] = {
        //                    1 2 3 4 5  6  3k 4k FH SS LS Z  Ch
        {{}, {2, 2, 3, 3, 3}, "0 4 9 0 0 0 13 0 25 0 0 0 13"},
        {{}, {5, 5, 5, 5, 2}, "0 2 0 0 20 0 22 22 0 0 0 0 22"},
        {{}, {4, 4, 4, 4, 4}, "0 0 0 20 0 0 20 20 0 0 0 50 20"},
        {{}, {1, 2, 3, 4, 5}, "1 2 3 4 5 0 0 0 0 30 35 0 15"},
        {{}, {6, 3, 4, 5, 2}, "0 2 3 4 5 6 0 0 0 30 35 0 20"},
        {{}, {1, 2, 3, 4, 4}, "1 2 3 8 0 0 0 0 0 30 0 0 14"},
        {{}, {6, 1, 3, 5, 4}, "1 0 3 4 5 6 0 0 0 30 0 0 19"},
        {{}, {1, 2, 4, 5, 6}, "1 2 0 4 5 6 0 0 0 0 0 0 18"},
        {{{CatZarvo, 50}}, {3, 3, 3, 3, 3}, "0 0 15+100 0 0 0 15+100 15+100 0 0 0 50 15+100"},
        {{{CatZarvo, 0}}, {3, 3, 3, 3, 3}, "0 0 15 0 0 0 15 15 0 0 0 50 15"},
        {{{1, 4}, {2, 8}, {4, 12}, {5, 15}, {6, 18}}, {3, 3, 1, 2, 5}, "1 2 6+35 0 5 0 0 0 0 0 0 0 14"},
        {{{1, 4}, {2, 8}, {4, 12}, {5, 15}, {6, 18}, {BonusCell, 35}}, {3, 3, 1, 2, 5}, "1 2 6 0 5 0 0 0 0 0 0 0 14"},
        {{{1, 3}, {2, 6}, {3, 9}, {4, 12}, {5, 15}, {CatZarvo, 50}, {BonusCell, 100}}, {6, 6, 6, 6, 6},
         "0 0 0 0 0 30+135 30+100 30+100 0 0 0 50 30+100"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Values(c.rows, c.dice), c.values) << &c - cases;
}

// The largest card, turn by turn: Zarvo first, then nine repeat awards, the 35 coming with the Fives
// (5 + 10 + 15 + 20 + 25 >= 63); each cell holds its score alone: 105 + 230 + 935 = 1270.
TEST_F(TableTest, LargestCardScoredThroughTheTable)
{
    NewGame();
    const std::pair<DiceValues, int> turns[] = {
        {{5, 5, 5, 5, 5}, CatZarvo}, {{1, 1, 1, 1, 1}, CatOnes}, {{2, 2, 2, 2, 2}, CatTwos},
        {{3, 3, 3, 3, 3}, CatThrees}, {{4, 4, 4, 4, 4}, CatFours}, {{5, 5, 5, 5, 5}, CatFives},
        {{6, 6, 6, 6, 6}, CatSixes}, {{6, 6, 6, 6, 6}, CatThreeOfAKind}, {{6, 6, 6, 6, 6}, CatFourOfAKind},
        {{6, 6, 6, 6, 6}, CatChance}, {{2, 2, 3, 3, 3}, CatFullHouse}, {{1, 2, 3, 4, 6}, CatSmallStraight},
        {{2, 3, 4, 5, 6}, CatLargeStraight}};
    for (auto [dice, category] : turns)
        TakeTurn(dice, category);
    EXPECT_EQ(PlayerTotal(1), 1270);
    EXPECT_EQ(screen.Captions(), "5 |10 |15 |20 |25 |30 |30 |30 |25 |30 |35 |50 |30 ");
    EXPECT_EQ(screen.Caption(Control::lblLeftTotal) + " " + screen.Caption(Control::lblRightTotal) + " " +
              screen.Caption(Control::lblBonusTotal) + " " + screen.Caption(Control::lblTotal), "105 230 935 1270");
}
