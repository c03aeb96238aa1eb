#pragma once
// The rule book: what five dice are worth in each category of a player's card.
// Every routine here is a question; none changes the card.
#include <array>

#include "modGlobalVars.h"

using DiceValues = std::array<int, 5>;       // mDice, index 0..4, each 1..6
using FaceCounts = std::array<int, 7>;       // index 1..6

FaceCounts CountFaces(const DiceValues& dice);
int FaceTotal(const DiceValues& dice, int face);
bool HasExactCount(const DiceValues& dice, int n);
bool IsSmallStraight(const DiceValues& dice);
bool IsLargeStraight(const DiceValues& dice);
int DiceTotal(const DiceValues& dice);

struct Evaluation {
    int score = 0;   // what the category's cell would receive
    int bonus = 0;   // what the bonus row would gain
    int Sum() const { return score + bonus; }
};

// The value of `category` for these dice on `card`. Outside 1..13 it is 0 and 0.
Evaluation EvaluateCategory(const DiceValues& dice, const ScoreCard& card, int category);

// True if some open category of `card` would bring more than 0 for these dice.
bool AnyCategoryScores(const DiceValues& dice, const ScoreCard& card);

// True if no category row of `card` is still EmptyCell.
bool PlayerCardFull(const ScoreCard& card);

// The totals that the card shows: the left and right sums count filled cells only.
struct CardTotals {
    int left = 0, right = 0, bonus = 0;
    int Total() const { return left + right + bonus; }
};
CardTotals TotalsOf(const ScoreCard& card);
