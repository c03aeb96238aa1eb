// The rule book, and the largest card scored through the table.
#include <sstream>

#include "Rows.h"
#include "TableFixture.h"

// Scoring.txt: each category's score and bonus for five dice on a card with some rows filled.
TEST(EvaluateCategory, ValuesAndAwards)
{
    for (const Words& row : ReadRows(ZARVO_TEST_DATA "/core/Scoring.txt")) {
        ScoreCard card;
        card.rows.fill(EmptyCell), card[BonusCell] = 0;
        std::istringstream filled(row[1] == "-" ? "" : row[1]);   // "12=50,14=100"
        for (int r = 0, v = 0; filled >> r && filled.ignore() >> v; filled.ignore())
            card[r] = std::int16_t(v);
        const DiceValues dice{row[0][0] - '0', row[0][1] - '0', row[0][2] - '0', row[0][3] - '0', row[0][4] - '0'};
        std::string values;
        for (int c = 1; c <= CategoryCount; ++c) {
            const Evaluation e = EvaluateCategory(dice, card, c);
            values += (c > 1 ? " " : "") + std::to_string(e.score) + (e.bonus ? "+" + std::to_string(e.bonus) : "");
        }
        EXPECT_EQ(values, row[2]) << row[0] << " " << row[1];
    }
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
