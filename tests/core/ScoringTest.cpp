// The rule book: what five dice are worth in each category, the two awards, and the totals.
#include <gtest/gtest.h>

#include "Scoring.h"
#include "TableFixture.h"

namespace {

// A card with every category open and no bonus, then the given rows.
ScoreCard Card(std::initializer_list<std::pair<int, int>> rows = {})
{
    ScoreCard card;
    for (int row = 1; row <= CategoryCount; ++row)
        card[row] = EmptyCell;
    card[BonusCell] = 0;
    for (auto [row, value] : rows)
        card[row] = std::int16_t(value);
    return card;
}

struct Case {
    DiceValues dice;
    int category, score, bonus;
};

void ExpectCases(const ScoreCard& card, const std::vector<Case>& cases)
{
    for (const Case& c : cases) {
        const Evaluation e = EvaluateCategory(c.dice, card, c.category);
        EXPECT_EQ(e.score, c.score) << "category " << c.category << " dice " << c.dice[0] << c.dice[1]
                                    << c.dice[2] << c.dice[3] << c.dice[4];
        EXPECT_EQ(e.bonus, c.bonus) << "category " << c.category << " dice " << c.dice[0] << c.dice[1]
                                    << c.dice[2] << c.dice[3] << c.dice[4];
    }
}

}  // namespace

// On a fresh card no award is at stake: each category gives exactly its own rule's value.
// Five of a kind is no full house, four of a kind is also three of a kind, a pair inside a
// small straight does not matter, a large straight needs five different faces, order is free.
TEST(EvaluateCategory, PlainValuesOfEachCategory)
{
    ExpectCases(Card(), {
        {{2, 2, 3, 3, 3}, CatOnes, 0, 0},           {{2, 2, 3, 3, 3}, CatTwos, 4, 0},
        {{2, 2, 3, 3, 3}, CatThrees, 9, 0},         {{2, 2, 3, 3, 3}, CatThreeOfAKind, 13, 0},
        {{2, 2, 3, 3, 3}, CatFourOfAKind, 0, 0},    {{2, 2, 3, 3, 3}, CatFullHouse, 25, 0},
        {{2, 2, 3, 3, 3}, CatChance, 13, 0},        {{2, 2, 3, 3, 3}, CatSmallStraight, 0, 0},
        {{2, 2, 3, 3, 3}, CatLargeStraight, 0, 0},  {{2, 2, 3, 3, 3}, CatZarvo, 0, 0},
        {{5, 5, 5, 5, 2}, CatThreeOfAKind, 22, 0},  {{5, 5, 5, 5, 2}, CatFourOfAKind, 22, 0},
        {{5, 5, 5, 5, 2}, CatFullHouse, 0, 0},      {{5, 5, 5, 5, 2}, CatFives, 20, 0},
        {{4, 4, 4, 4, 4}, CatZarvo, 50, 0},         {{4, 4, 4, 4, 4}, CatFours, 20, 0},
        {{4, 4, 4, 4, 4}, CatThreeOfAKind, 20, 0},  {{4, 4, 4, 4, 4}, CatFourOfAKind, 20, 0},
        {{4, 4, 4, 4, 4}, CatChance, 20, 0},        {{4, 4, 4, 4, 4}, CatFullHouse, 0, 0},
        {{1, 1, 2, 2, 3}, CatThreeOfAKind, 0, 0},   {{6, 1, 6, 1, 1}, CatFullHouse, 25, 0},
        {{3, 3, 3, 1, 2}, CatFullHouse, 0, 0},      {{3, 3, 1, 1, 2}, CatFullHouse, 0, 0},
        {{1, 2, 3, 4, 5}, CatSmallStraight, 30, 0}, {{1, 2, 3, 4, 5}, CatLargeStraight, 35, 0},
        {{2, 3, 4, 5, 6}, CatSmallStraight, 30, 0}, {{6, 4, 2, 5, 3}, CatLargeStraight, 35, 0},
        {{1, 2, 3, 4, 4}, CatSmallStraight, 30, 0}, {{1, 2, 3, 4, 4}, CatLargeStraight, 0, 0},
        {{1, 2, 3, 4, 6}, CatSmallStraight, 30, 0}, {{1, 2, 3, 4, 6}, CatLargeStraight, 0, 0},
        {{1, 3, 4, 5, 6}, CatSmallStraight, 30, 0}, {{1, 3, 4, 5, 6}, CatLargeStraight, 0, 0},
        {{2, 3, 4, 5, 5}, CatSmallStraight, 30, 0}, {{2, 3, 4, 5, 5}, CatLargeStraight, 0, 0},
        {{1, 2, 4, 5, 6}, CatSmallStraight, 0, 0},  {{1, 2, 4, 5, 6}, CatLargeStraight, 0, 0},
        {{6, 1, 3, 2, 4}, CatSmallStraight, 30, 0}, {{1, 2, 3, 5, 6}, CatSmallStraight, 0, 0},
    });
}

// A repeat five of a kind earns 100 wherever it scores, but only when the Zarvo cell holds a
// real 50; a zero taken there, an open cell, or a mere four of a kind earn nothing extra.
TEST(EvaluateCategory, RepeatAwardNeedsAScoredZarvo)
{
    const DiceValues threes{3, 3, 3, 3, 3};
    ExpectCases(Card({{CatZarvo, 50}}), {
        {threes, CatThrees, 15, 100},       {threes, CatThreeOfAKind, 15, 100},
        {threes, CatFourOfAKind, 15, 100},  {threes, CatChance, 15, 100},
        {threes, CatOnes, 0, 0},            {threes, CatFullHouse, 0, 0},
        {threes, CatSmallStraight, 0, 0},   {threes, CatLargeStraight, 0, 0},
        {{3, 3, 3, 3, 1}, CatThrees, 12, 0}, {{3, 3, 3, 3, 1}, CatFourOfAKind, 13, 0},
        {{3, 3, 3, 3, 1}, CatThreeOfAKind, 13, 0}, {{3, 3, 3, 3, 1}, CatChance, 13, 0},
    });
    for (int zarvoCell : {0, -1}) {
        SCOPED_TRACE(zarvoCell);
        ExpectCases(Card({{CatZarvo, zarvoCell}}), {
            {threes, CatThrees, 15, 0}, {threes, CatThreeOfAKind, 15, 0},
            {threes, CatFourOfAKind, 15, 0}, {threes, CatChance, 15, 0},
        });
    }
}

// The 35 comes once, from the left category that brings the sum of the filled left cells to
// 63; open cells count for nothing, a repeat award does not block it, and a right category
// never earns it.
TEST(EvaluateCategory, UpperBonus)
{
    struct BonusCase {
        const char* what;
        ScoreCard card;
        DiceValues dice;
        int category, score, bonus;
    } cases[] = {
        {"57 reaches 63", Card({{1, 4}, {2, 8}, {4, 12}, {5, 15}, {6, 18}}), {3, 3, 1, 2, 5}, CatThrees, 6, 35},
        {"56 stays short", Card({{1, 3}, {2, 8}, {4, 12}, {5, 15}, {6, 18}}), {3, 3, 1, 2, 5}, CatThrees, 6, 0},
        {"open cells add nothing", Card({{2, 8}, {4, 16}, {5, 15}, {6, 18}}), {3, 3, 1, 2, 5}, CatThrees, 6, 35},
        {"right category", Card({{1, 4}, {2, 8}, {4, 12}, {5, 15}, {6, 18}}), {3, 3, 1, 2, 5}, CatChance, 14, 0},
        {"given at 35", Card({{1, 4}, {2, 8}, {4, 12}, {5, 15}, {6, 18}, {BonusCell, 35}}), {3, 3, 1, 2, 5}, CatThrees, 6, 0},
        {"given at 135", Card({{1, 4}, {2, 8}, {4, 12}, {5, 15}, {6, 18}, {BonusCell, 135}}), {3, 3, 1, 2, 5}, CatThrees, 6, 0},
        {"both awards", Card({{1, 3}, {2, 6}, {3, 9}, {4, 12}, {5, 15}, {CatZarvo, 50}, {BonusCell, 100}}),
         {6, 6, 6, 6, 6}, CatSixes, 30, 135},
    };
    for (const BonusCase& c : cases) {
        SCOPED_TRACE(c.what);
        const Evaluation e = EvaluateCategory(c.dice, c.card, c.category);
        EXPECT_EQ(e.score, c.score);
        EXPECT_EQ(e.bonus, c.bonus);
    }
}

// A category number outside 1..13 is worth nothing, even with dice that score everywhere.
TEST(EvaluateCategory, OutOfRangeCategoryIsWorthNothing)
{
    const ScoreCard card = Card({{CatZarvo, 50}, {1, 5}, {2, 10}, {3, 15}, {4, 20}, {5, 25}});
    for (int category : {0, 14, -1, 100}) {
        const Evaluation e = EvaluateCategory({6, 6, 6, 6, 6}, card, category);
        EXPECT_EQ(e.score, 0) << category;
        EXPECT_EQ(e.bonus, 0) << category;
    }
}

// Only open categories count when asking whether anything would score; filled ones are ignored
// however much they would bring.
TEST(AnyCategoryScores, LooksAtOpenCategoriesOnly)
{
    ScoreCard onlyFullHouseAndLarge = Card();
    for (int row = 1; row <= CategoryCount; ++row)
        if (row != CatFullHouse && row != CatLargeStraight)
            onlyFullHouseAndLarge[row] = 0;
    EXPECT_FALSE(AnyCategoryScores({1, 1, 2, 2, 3}, onlyFullHouseAndLarge));
    EXPECT_FALSE(AnyCategoryScores({1, 2, 3, 4, 6}, onlyFullHouseAndLarge));
    EXPECT_TRUE(AnyCategoryScores({1, 2, 3, 4, 5}, onlyFullHouseAndLarge));
    ScoreCard withSmall = onlyFullHouseAndLarge;
    withSmall[CatSmallStraight] = EmptyCell;
    EXPECT_TRUE(AnyCategoryScores({1, 2, 3, 4, 6}, withSmall));
    EXPECT_TRUE(AnyCategoryScores({1, 1, 2, 2, 3}, Card()));
}

// A card is full when no category row is empty; a scored 0 is filled, the bonus row is no category.
TEST(PlayerCardFull, ZeroIsFilledAndEmptyCellIsNot)
{
    ScoreCard card = Card();
    EXPECT_FALSE(PlayerCardFull(card));
    for (int row = 1; row <= CategoryCount; ++row)
        card[row] = 0;
    EXPECT_TRUE(PlayerCardFull(card));
    for (int row = 1; row <= CategoryCount; ++row) {
        ScoreCard oneOpen = card;
        oneOpen[row] = EmptyCell;
        EXPECT_FALSE(PlayerCardFull(oneOpen)) << row;
    }
}

class CommonTest : public TableTest {};

// A player's total adds every filled row and the bonus row; open cells subtract nothing, and
// another player's card does not leak in.
TEST_F(CommonTest, PlayerTotalSumsFilledRowsAndBonus)
{
    ResetGlobals(2);
    gScores.ReDim(2);
    ClearScoreboard();
    gScores[1][CatThrees] = 9;
    gScores[1][CatChance] = 0;
    gScores[1][CatZarvo] = 50;
    gScores[1][BonusCell] = 135;
    gScores[2][CatSixes] = 24;
    EXPECT_EQ(PlayerTotal(1), 194);
    EXPECT_EQ(PlayerTotal(2), 24);
}

// A placeholder shows without its marks and inner blanks; any other name is shown as it stands.
TEST_F(CommonTest, PlayerDisplayName)
{
    const std::pair<const char*, const char*> cases[] = {
        {"< Player 1 >", "Player 1"}, {"< Player 8 >", "Player 8"},
        {"Ann Lee", "Ann Lee"},       {" Bo  Dahl ", " Bo  Dahl "},
    };
    for (auto [entry, shown] : cases) {
        gPlayerNames[1] = entry;
        EXPECT_EQ(PlayerDisplayName(1), shown);
    }
}

// Clearing makes every category of every player open and every bonus row 0.
TEST_F(CommonTest, ClearScoreboardEmptiesAllCards)
{
    gScores.ReDim(3);
    for (int p = 1; p <= 3; ++p)
        for (int row = 1; row <= BonusCell; ++row)
            gScores[p][row] = std::int16_t(7 * p + row);
    ClearScoreboard();
    for (int p = 1; p <= 3; ++p) {
        for (int row = 1; row <= CategoryCount; ++row)
            EXPECT_EQ(gScores[p][row], EmptyCell) << p << "/" << row;
        EXPECT_EQ(gScores[p][BonusCell], 0) << p;
    }
}

// One fresh record per player, all zero except the session low, which starts at 9999.
TEST_F(CommonTest, ClearSessionStatsGivesOneFreshRecordPerPlayer)
{
    ResetGlobals(3);
    gSessionStats.ReDim(1, SessionStats{300, 120, 210.5, 4});
    ClearSessionStats();
    ASSERT_EQ(gSessionStats.UBound(), 3);
    for (int p = 1; p <= 3; ++p) {
        EXPECT_EQ(gSessionStats[p].SessionHigh, 0);
        EXPECT_EQ(gSessionStats[p].SessionLow, 9999);
        EXPECT_EQ(gSessionStats[p].SessionAverage, 0.0);
        EXPECT_EQ(gSessionStats[p].SessionGames, 0);
    }
}

// The largest card possible, scored turn by turn: a Zarvo first, then nine repeat awards, the
// upper bonus from the left category that first reaches 63, and the three fixed-value rows.
// Each cell holds its score alone; the card totals 105 + 230 + 935 = 1270.
TEST_F(CommonTest, LargestCardScoredThroughTheTable)
{
    NewGame(1, false);
    screen.promptAnswer = 2;
    const Case turns[] = {
        {{5, 5, 5, 5, 5}, CatZarvo, 50, 0},          {{1, 1, 1, 1, 1}, CatOnes, 5, 100},
        {{2, 2, 2, 2, 2}, CatTwos, 10, 100},         {{3, 3, 3, 3, 3}, CatThrees, 15, 100},
        {{4, 4, 4, 4, 4}, CatFours, 20, 100},        {{5, 5, 5, 5, 5}, CatFives, 25, 135},
        {{6, 6, 6, 6, 6}, CatSixes, 30, 100},        {{6, 6, 6, 6, 6}, CatThreeOfAKind, 30, 100},
        {{6, 6, 6, 6, 6}, CatFourOfAKind, 30, 100},  {{6, 6, 6, 6, 6}, CatChance, 30, 100},
        {{2, 2, 3, 3, 3}, CatFullHouse, 25, 0},      {{1, 2, 3, 4, 6}, CatSmallStraight, 30, 0},
        {{2, 3, 4, 5, 6}, CatLargeStraight, 35, 0},
    };
    int bonus = 0;
    for (const Case& t : turns) {
        SCOPED_TRACE(t.category);
        TakeTurn(t.dice, t.category);
        bonus += t.bonus;
        EXPECT_EQ(gScores[1][t.category], t.score);
        EXPECT_EQ(gScores[1][BonusCell], bonus);
    }
    EXPECT_EQ(bonus, 935);
    EXPECT_EQ(PlayerTotal(1), 1270);
    EXPECT_EQ(screen.Caption(Control::lblLeftTotal), "105");
    EXPECT_EQ(screen.Caption(Control::lblRightTotal), "230");
    EXPECT_EQ(screen.Caption(Control::lblBonusTotal), "935");
    EXPECT_EQ(screen.Caption(Control::lblTotal), "1270");
    EXPECT_EQ(screen.cells[CatZarvo].caption, "50 ");
    EXPECT_EQ(screen.cells[CatFives].caption, "25 ");
}
