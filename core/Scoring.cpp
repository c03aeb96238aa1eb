#include "Scoring.h"

FaceCounts CountFaces(const DiceValues& dice)
{
    FaceCounts counts{};
    for (int value : dice)
        if (value >= 1 && value <= 6)
            ++counts[value];
    return counts;
}

int FaceTotal(const DiceValues& dice, int face) { return CountFaces(dice)[face] * face; }

bool HasExactCount(const DiceValues& dice, int n)
{
    const FaceCounts counts = CountFaces(dice);
    for (int face = 1; face <= 6; ++face)
        if (counts[face] == n)
            return true;
    return false;
}

namespace {
// Faces first..first+length-1 each shown at least `atLeast` and (if exact) exactly once.
bool Run(const FaceCounts& counts, int first, int length, bool exactlyOnce)
{
    for (int face = first; face < first + length; ++face)
        if (exactlyOnce ? counts[face] != 1 : counts[face] < 1)
            return false;
    return true;
}
}

bool IsSmallStraight(const DiceValues& dice)
{
    const FaceCounts c = CountFaces(dice);
    return Run(c, 1, 4, false) || Run(c, 2, 4, false) || Run(c, 3, 4, false);
}

bool IsLargeStraight(const DiceValues& dice)
{
    const FaceCounts c = CountFaces(dice);
    return Run(c, 1, 5, true) || Run(c, 2, 5, true);
}

int DiceTotal(const DiceValues& dice)
{
    int total = 0;
    for (int value : dice)
        total += value;
    return total;
}

namespace {
// A repeat five of a kind earns 100 where it scores, once a real Zarvo stands on the card.
void RepeatTest(const DiceValues& dice, const ScoreCard& card, Evaluation& e)
{
    if (HasExactCount(dice, 5) && card[CatZarvo] > 0 && e.score > 0)
        e.bonus = 100;
}

// The 35 of the left column, given once: by the left category that first reaches 63.
void UpperBonusTest(const ScoreCard& card, Evaluation& e)
{
    int leftSum = 0;
    for (int row = CatOnes; row <= CatSixes; ++row)
        if (card[row] >= 0)
            leftSum += card[row];
    if (card[BonusCell] % 100 == 0 && e.score + leftSum >= 63)
        e.bonus += 35;
}
}

Evaluation EvaluateCategory(const DiceValues& dice, const ScoreCard& card, int category)
{
    Evaluation e;
    switch (category) {
    case CatOnes: case CatTwos: case CatThrees: case CatFours: case CatFives: case CatSixes:
        e.score = FaceTotal(dice, category);
        RepeatTest(dice, card, e);
        UpperBonusTest(card, e);
        break;
    case CatThreeOfAKind:
        if (HasExactCount(dice, 3) || HasExactCount(dice, 4) || HasExactCount(dice, 5))
            e.score = DiceTotal(dice);
        RepeatTest(dice, card, e);
        break;
    case CatFourOfAKind:
        if (HasExactCount(dice, 4) || HasExactCount(dice, 5))
            e.score = DiceTotal(dice);
        RepeatTest(dice, card, e);
        break;
    case CatFullHouse:
        if (HasExactCount(dice, 3) && HasExactCount(dice, 2))
            e.score = 25;
        break;
    case CatSmallStraight:
        if (IsSmallStraight(dice))
            e.score = 30;
        break;
    case CatLargeStraight:
        if (IsLargeStraight(dice))
            e.score = 35;
        break;
    case CatZarvo:
        if (HasExactCount(dice, 5))
            e.score = 50;
        break;
    case CatChance:
        e.score = DiceTotal(dice);
        RepeatTest(dice, card, e);
        break;
    default:
        break;
    }
    return e;
}

bool AnyCategoryScores(const DiceValues& dice, const ScoreCard& card)
{
    for (int category = 1; category <= CategoryCount; ++category)
        if (card[category] == EmptyCell && EvaluateCategory(dice, card, category).Sum() > 0)
            return true;
    return false;
}

bool PlayerCardFull(const ScoreCard& card)
{
    for (int row = 1; row <= CategoryCount; ++row)
        if (card[row] == EmptyCell)
            return false;
    return true;
}

CardTotals TotalsOf(const ScoreCard& card)
{
    CardTotals t;
    for (int row = 1; row <= CategoryCount; ++row)
        if (card[row] >= 0)
            (row <= CatSixes ? t.left : t.right) += card[row];
    t.bonus = card[BonusCell];
    return t;
}
