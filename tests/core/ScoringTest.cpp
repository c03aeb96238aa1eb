// The rule book, the routines on the shared state, and the largest card scored through the table.
#include <algorithm>
#include <tuple>

#include "TableFixture.h"

// A card with every category open and no bonus, then the given rows.
static ScoreCard Card(std::initializer_list<std::pair<int, int>> rows = {})
{
    ScoreCard card;
    card.rows.fill(EmptyCell);
    card[BonusCell] = 0;
    for (auto [row, value] : rows)
        card[row] = std::int16_t(value);
    return card;
}

// What the 13 categories give for these dice, in order; "15+100" is a score and its bonus.
static std::string Values(const ScoreCard& card, DiceValues dice)
{
    std::string all;
    for (int c = 1; c <= CategoryCount; ++c) {
        const Evaluation e = EvaluateCategory(dice, card, c);
        all += (c > 1 ? " " : "") + std::to_string(e.score) + (e.bonus ? "+" + std::to_string(e.bonus) : "");
    }
    return all;
}

static ScoreCard With(ScoreCard card, int row, int value) { return card[row] = std::int16_t(value), card; }
static const std::initializer_list<std::pair<int, int>> left57 = {{1, 4}, {2, 8}, {4, 12}, {5, 15}, {6, 18}};

// Fresh card: 5 of a kind is no full house, 4 of a kind also 3 of a kind; straights allow a pair, any order.
TEST(EvaluateCategory, PlainValues)
{
    const std::pair<DiceValues, const char*> rolls[] = {
        //                1 2 3 4 5  6  3k 4k FH SS LS Z  Ch
        {{2, 2, 3, 3, 3}, "0 4 9 0 0 0 13 0 25 0 0 0 13"},
        {{5, 5, 5, 5, 2}, "0 2 0 0 20 0 22 22 0 0 0 0 22"},
        {{4, 4, 4, 4, 4}, "0 0 0 20 0 0 20 20 0 0 0 50 20"},
        {{3, 3, 3, 1, 2}, "1 2 9 0 0 0 12 0 0 0 0 0 12"},
        {{1, 2, 3, 4, 5}, "1 2 3 4 5 0 0 0 0 30 35 0 15"},
        {{6, 3, 4, 5, 2}, "0 2 3 4 5 6 0 0 0 30 35 0 20"},
        {{1, 2, 3, 4, 4}, "1 2 3 8 0 0 0 0 0 30 0 0 14"},
        {{6, 1, 3, 5, 4}, "1 0 3 4 5 6 0 0 0 30 0 0 19"},
        {{1, 2, 4, 5, 6}, "1 2 0 4 5 6 0 0 0 0 0 0 18"},
    };
    for (auto [dice, values] : rolls)
        EXPECT_EQ(Values(Card(), dice), values) << ::testing::PrintToString(dice);
    for (int outside : {0, 14, -1})
        EXPECT_EQ(EvaluateCategory({6, 6, 6, 6, 6}, Card({{CatZarvo, 50}}), outside).Sum(), 0) << outside;
}

// A repeat Zarvo earns 100 where it scores once Zarvo holds 50; the 35 once, on reaching 63 in the left column.
TEST(EvaluateCategory, Awards)
{
    const struct { ScoreCard card; DiceValues dice; const char* values; } cases[] = {
        {Card({{CatZarvo, 50}}), {3, 3, 3, 3, 3}, "0 0 15+100 0 0 0 15+100 15+100 0 0 0 50 15+100"},
        {Card({{CatZarvo, 50}}), {3, 3, 3, 3, 1}, "1 0 12 0 0 0 13 13 0 0 0 0 13"},
        {Card({{CatZarvo, 0}}), {3, 3, 3, 3, 3}, "0 0 15 0 0 0 15 15 0 0 0 50 15"},
        {Card(), {3, 3, 3, 3, 3}, "0 0 15 0 0 0 15 15 0 0 0 50 15"},
        {Card(left57), {3, 3, 1, 2, 5}, "1 2 6+35 0 5 0 0 0 0 0 0 0 14"},
        {With(Card(left57), CatOnes, 3), {3, 3, 1, 2, 5}, "1 2 6 0 5 0 0 0 0 0 0 0 14"},
        {Card({{2, 8}, {4, 16}, {5, 15}, {6, 18}}), {3, 3, 1, 2, 5}, "1 2 6+35 0 5 0 0 0 0 0 0 0 14"},
        {With(Card(left57), BonusCell, 35), {3, 3, 1, 2, 5}, "1 2 6 0 5 0 0 0 0 0 0 0 14"},
        {With(Card(left57), BonusCell, 135), {3, 3, 1, 2, 5}, "1 2 6 0 5 0 0 0 0 0 0 0 14"},
        {Card({{1, 3}, {2, 6}, {3, 9}, {4, 12}, {5, 15}, {CatZarvo, 50}, {BonusCell, 100}}), {6, 6, 6, 6, 6},
         "0 0 0 0 0 30+135 30+100 30+100 0 0 0 50 30+100"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Values(c.card, c.dice), c.values) << &c - cases;
}

// A cleared board is all open, bonus 0, and full once no category is open; a total adds the filled rows and
// the bonus; "anything scores?" asks the open categories only; fresh session records have low 9999.
TEST_F(TableTest, CardsAndSharedState)
{
    gPlayerNames.ReDim(3);
    ScoreCard dirty;
    dirty.rows.fill(7);
    gScores.ReDim(3, dirty);
    ClearScoreboard();
    for (int p = 1; p <= 3; ++p)
        EXPECT_TRUE(std::equal(gScores[p].rows.begin() + 1, gScores[p].rows.end(), Card().rows.begin() + 1)) << p;
    gScores[1] = Card({{CatThrees, 9}, {CatChance, 0}, {CatZarvo, 50}, {BonusCell, 135}});
    gScores[2][CatSixes] = 24;
    EXPECT_EQ(std::tuple(PlayerTotal(1), PlayerTotal(2), PlayerTotal(3)), std::tuple(194, 24, 0));
    ScoreCard zeros = Card();
    for (int row = 1; row <= CategoryCount; ++row)
        zeros[row] = 0;
    const ScoreCard two = With(With(zeros, CatFullHouse, EmptyCell), CatLargeStraight, EmptyCell);
    EXPECT_FALSE(AnyCategoryScores({1, 1, 2, 2, 3}, two));
    EXPECT_TRUE(AnyCategoryScores({1, 2, 3, 4, 5}, two));
    EXPECT_TRUE(PlayerCardFull(zeros));
    for (int row = 1; row <= CategoryCount; ++row)
        EXPECT_FALSE(PlayerCardFull(With(zeros, row, EmptyCell))) << row;
    gSessionStats.ReDim(1, SessionStats{300, 120, 210.5, 4});
    ClearSessionStats();
    ASSERT_EQ(gSessionStats.UBound(), 3);
    for (const SessionStats& s : {gSessionStats[1], gSessionStats[2], gSessionStats[3]})
        EXPECT_EQ(std::tuple(s.SessionHigh, s.SessionLow, s.SessionAverage, s.SessionGames),
                  std::tuple(0, 9999, 0.0, 0));
}

// The largest card, turn by turn: Zarvo first, then nine repeat awards, the 35 coming with the Fives
// (5 + 10 + 15 + 20 + 25 >= 63); each cell holds its score alone: 105 + 230 + 935 = 1270.
TEST_F(TableTest, LargestCardScoredThroughTheTable)
{
    NewGame(1, false);
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
