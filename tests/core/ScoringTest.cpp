// The rule book: what five dice are worth in each category, the two awards, and the totals.
#include <tuple>

#include "Scoring.h"
#include "TableFixture.h"

namespace {

// A card with every category open and no bonus, then the given rows.
ScoreCard Card(std::initializer_list<std::pair<int, int>> rows = {})
{
    ScoreCard card;
    card.rows.fill(EmptyCell);
    card[BonusCell] = 0;
    for (auto [row, value] : rows)
        card[row] = std::int16_t(value);
    return card;
}

// Score and bonus of all 13 categories for one roll, in category order.
struct Row {
    DiceValues dice;
    std::array<int, 13> score, bonus{};
};

void ExpectRows(const ScoreCard& card, std::initializer_list<Row> rows)
{
    for (const Row& r : rows)
        for (int c = 1; c <= CategoryCount; ++c) {
            const Evaluation e = EvaluateCategory(r.dice, card, c);
            EXPECT_EQ(e.score, r.score[c - 1]) << "category " << c << " dice " << ::testing::PrintToString(r.dice);
            EXPECT_EQ(e.bonus, r.bonus[c - 1]) << "category " << c << " dice " << ::testing::PrintToString(r.dice);
        }
}

}  // namespace

// On a fresh card no award is at stake and each category gives its own rule's value: five of a
// kind is no full house, four of a kind is also three of a kind, a pair inside a small straight
// does not matter, a large straight needs five different faces, and the order is free.
TEST(EvaluateCategory, PlainValues)
{
    ExpectRows(Card(), {
        //               1  2  3   4   5  6  3k  4k  FH  SS  LS  Z   Ch
        {{2, 2, 3, 3, 3}, {0, 4, 9, 0, 0, 0, 13, 0, 25, 0, 0, 0, 13}},
        {{5, 5, 5, 5, 2}, {0, 2, 0, 0, 20, 0, 22, 22, 0, 0, 0, 0, 22}},
        {{4, 4, 4, 4, 4}, {0, 0, 0, 20, 0, 0, 20, 20, 0, 0, 0, 50, 20}},
        {{3, 3, 3, 1, 2}, {1, 2, 9, 0, 0, 0, 12, 0, 0, 0, 0, 0, 12}},
        {{6, 1, 6, 1, 1}, {3, 0, 0, 0, 0, 12, 15, 0, 25, 0, 0, 0, 15}},
        {{1, 1, 2, 2, 3}, {2, 4, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 9}},
        {{1, 2, 3, 4, 5}, {1, 2, 3, 4, 5, 0, 0, 0, 0, 30, 35, 0, 15}},
        {{2, 3, 4, 5, 6}, {0, 2, 3, 4, 5, 6, 0, 0, 0, 30, 35, 0, 20}},
        {{1, 2, 3, 4, 4}, {1, 2, 3, 8, 0, 0, 0, 0, 0, 30, 0, 0, 14}},
        {{1, 2, 3, 4, 6}, {1, 2, 3, 4, 0, 6, 0, 0, 0, 30, 0, 0, 16}},
        {{1, 3, 4, 5, 6}, {1, 0, 3, 4, 5, 6, 0, 0, 0, 30, 0, 0, 19}},
        {{2, 3, 4, 5, 5}, {0, 2, 3, 4, 10, 0, 0, 0, 0, 30, 0, 0, 19}},
        {{1, 2, 4, 5, 6}, {1, 2, 0, 4, 5, 6, 0, 0, 0, 0, 0, 0, 18}},
        {{6, 1, 3, 2, 4}, {1, 2, 3, 4, 0, 6, 0, 0, 0, 30, 0, 0, 16}},
    });
}

// A repeat five of a kind earns 100 wherever it scores, once the Zarvo cell holds a real 50;
// a zero taken there, an open cell, or a mere four of a kind earn nothing extra.
TEST(EvaluateCategory, RepeatAward)
{
    const std::array<int, 13> fiveThrees{0, 0, 15, 0, 0, 0, 15, 15, 0, 0, 0, 50, 15};
    ExpectRows(Card({{CatZarvo, 50}}), {
        {{3, 3, 3, 3, 3}, fiveThrees, {0, 0, 100, 0, 0, 0, 100, 100, 0, 0, 0, 0, 100}},
        {{3, 3, 3, 3, 1}, {1, 0, 12, 0, 0, 0, 13, 13, 0, 0, 0, 0, 13}},
    });
    ExpectRows(Card({{CatZarvo, 0}}), {{{3, 3, 3, 3, 3}, fiveThrees}});
    ExpectRows(Card(), {{{3, 3, 3, 3, 3}, fiveThrees}});
}

// The 35 comes once, from the left category that brings the sum of the filled left cells to
// 63; open cells count for nothing, a repeat award does not block it, a right category never
// earns it, and a category number outside 1..13 is worth nothing at all.
TEST(EvaluateCategory, UpperBonusAndRange)
{
    const std::initializer_list<std::pair<int, int>> left57 = {{1, 4}, {2, 8}, {4, 12}, {5, 15}, {6, 18}};
    auto with = [](std::initializer_list<std::pair<int, int>> base, std::initializer_list<std::pair<int, int>> more) {
        ScoreCard card = Card(base);
        for (auto [row, value] : more)
            card[row] = std::int16_t(value);
        return card;
    };
    const struct {
        const char* what;
        ScoreCard card;
        DiceValues dice;
        int category, score, bonus;
    } cases[] = {
        {"57 reaches 63", Card(left57), {3, 3, 1, 2, 5}, CatThrees, 6, 35},
        {"56 stays short", with(left57, {{1, 3}}), {3, 3, 1, 2, 5}, CatThrees, 6, 0},
        {"open cells add nothing", Card({{2, 8}, {4, 16}, {5, 15}, {6, 18}}), {3, 3, 1, 2, 5}, CatThrees, 6, 35},
        {"right category", Card(left57), {3, 3, 1, 2, 5}, CatChance, 14, 0},
        {"given at 35", with(left57, {{BonusCell, 35}}), {3, 3, 1, 2, 5}, CatThrees, 6, 0},
        {"given at 135", with(left57, {{BonusCell, 135}}), {3, 3, 1, 2, 5}, CatThrees, 6, 0},
        {"both awards", Card({{1, 3}, {2, 6}, {3, 9}, {4, 12}, {5, 15}, {CatZarvo, 50}, {BonusCell, 100}}),
         {6, 6, 6, 6, 6}, CatSixes, 30, 135},
        {"category 0", Card({{CatZarvo, 50}}), {6, 6, 6, 6, 6}, 0, 0, 0},
        {"category 14", Card({{CatZarvo, 50}}), {6, 6, 6, 6, 6}, 14, 0, 0},
        {"category -1", Card({{CatZarvo, 50}}), {6, 6, 6, 6, 6}, -1, 0, 0},
    };
    for (const auto& c : cases) {
        const Evaluation e = EvaluateCategory(c.dice, c.card, c.category);
        EXPECT_EQ(e.score, c.score) << c.what;
        EXPECT_EQ(e.bonus, c.bonus) << c.what;
    }
}

// Only open categories count when asking whether anything would score; a card is full when no
// category row is open, a scored 0 being filled and the bonus row no category.
TEST(CardQuestions, AnyCategoryScoresAndPlayerCardFull)
{
    ScoreCard fullHouseAndLarge = Card();
    for (int row = 1; row <= CategoryCount; ++row)
        if (row != CatFullHouse && row != CatLargeStraight)
            fullHouseAndLarge[row] = 0;
    EXPECT_FALSE(AnyCategoryScores({1, 1, 2, 2, 3}, fullHouseAndLarge));
    EXPECT_FALSE(AnyCategoryScores({1, 2, 3, 4, 6}, fullHouseAndLarge));
    EXPECT_TRUE(AnyCategoryScores({1, 2, 3, 4, 5}, fullHouseAndLarge));
    EXPECT_TRUE(AnyCategoryScores({1, 1, 2, 2, 3}, Card()));

    EXPECT_FALSE(PlayerCardFull(Card()));
    ScoreCard zeros = Card();
    for (int row = 1; row <= CategoryCount; ++row)
        zeros[row] = 0;
    EXPECT_TRUE(PlayerCardFull(zeros));
    for (int row = 1; row <= CategoryCount; ++row) {
        ScoreCard oneOpen = zeros;
        oneOpen[row] = EmptyCell;
        EXPECT_FALSE(PlayerCardFull(oneOpen)) << row;
    }
}

using CommonTest = TableTest;

// The small routines on the shared state: a total adds the filled rows and the bonus row of
// one player only; a placeholder shows without its marks, any other name as it stands; a
// cleared board is all open with no bonus; fresh session records start at zero, low 9999.
TEST_F(CommonTest, SharedStateRoutines)
{
    ResetGlobals(3);
    gScores.ReDim(3);
    for (int p = 1; p <= 3; ++p)
        gScores[p].rows.fill(std::int16_t(7 * p));
    ClearScoreboard();
    for (int p = 1; p <= 3; ++p) {
        for (int row = 1; row <= CategoryCount; ++row)
            EXPECT_EQ(gScores[p][row], EmptyCell) << p << "/" << row;
        EXPECT_EQ(gScores[p][BonusCell], 0) << p;
    }
    gScores[1][CatThrees] = 9;
    gScores[1][CatChance] = 0;
    gScores[1][CatZarvo] = 50;
    gScores[1][BonusCell] = 135;
    gScores[2][CatSixes] = 24;
    EXPECT_EQ(PlayerTotal(1), 194);
    EXPECT_EQ(PlayerTotal(2), 24);
    EXPECT_EQ(PlayerTotal(3), 0);

    const std::pair<const char*, const char*> names[] = {
        {"< Player 1 >", "Player 1"}, {"< Player 8 >", "Player 8"}, {"Ann Lee", "Ann Lee"}, {" Bo  Dahl ", " Bo  Dahl "}};
    for (auto [entry, shown] : names) {
        gPlayerNames[2] = entry;
        EXPECT_EQ(PlayerDisplayName(2), shown);
    }

    gSessionStats.ReDim(1, SessionStats{300, 120, 210.5, 4});
    ClearSessionStats();
    ASSERT_EQ(gSessionStats.UBound(), 3);
    for (int p = 1; p <= 3; ++p) {
        const SessionStats& s = gSessionStats[p];
        EXPECT_EQ(std::tuple(s.SessionHigh, s.SessionLow, s.SessionAverage, s.SessionGames), std::tuple(0, 9999, 0.0, 0));
    }
}

// The largest card possible, scored turn by turn: a Zarvo first, then nine repeat awards, the
// upper bonus from the left category that first reaches 63, and the three fixed-value rows.
// Each cell holds its score alone; the card totals 105 + 230 + 935 = 1270.
TEST_F(CommonTest, LargestCardScoredThroughTheTable)
{
    NewGame(1, false);
    screen.promptAnswer = 2;
    const struct {
        DiceValues dice;
        int category, score, bonus;
    } turns[] = {
        {{5, 5, 5, 5, 5}, CatZarvo, 50, 0},          {{1, 1, 1, 1, 1}, CatOnes, 5, 100},
        {{2, 2, 2, 2, 2}, CatTwos, 10, 100},         {{3, 3, 3, 3, 3}, CatThrees, 15, 100},
        {{4, 4, 4, 4, 4}, CatFours, 20, 100},        {{5, 5, 5, 5, 5}, CatFives, 25, 135},
        {{6, 6, 6, 6, 6}, CatSixes, 30, 100},        {{6, 6, 6, 6, 6}, CatThreeOfAKind, 30, 100},
        {{6, 6, 6, 6, 6}, CatFourOfAKind, 30, 100},  {{6, 6, 6, 6, 6}, CatChance, 30, 100},
        {{2, 2, 3, 3, 3}, CatFullHouse, 25, 0},      {{1, 2, 3, 4, 6}, CatSmallStraight, 30, 0},
        {{2, 3, 4, 5, 6}, CatLargeStraight, 35, 0},
    };
    int bonus = 0;
    for (const auto& t : turns) {
        TakeTurn(t.dice, t.category);
        bonus += t.bonus;
        EXPECT_EQ(gScores[1][t.category], t.score) << t.category;
        EXPECT_EQ(gScores[1][BonusCell], bonus) << t.category;
    }
    EXPECT_EQ(PlayerTotal(1), 1270);
    EXPECT_EQ(screen.Captions(), "5 |10 |15 |20 |25 |30 |30 |30 |25 |30 |35 |50 |30 ");
    const std::pair<Control, const char*> totals[] = {
        {Control::lblLeftTotal, "105"}, {Control::lblRightTotal, "230"},
        {Control::lblBonusTotal, "935"}, {Control::lblTotal, "1270"}};
    for (auto [label, text] : totals)
        EXPECT_EQ(screen.Caption(label), text);
}
