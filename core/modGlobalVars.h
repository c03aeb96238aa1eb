#pragma once
// The state that the game's parts share. It has no owner object: the windows and
// modules read and write it directly, each at the moments its rules name.
#include <array>
#include <cstdint>
#include <string>

#include "OneBased.h"

// Score card rows 1..13 are the categories, addressed by CategoryIndex.
enum CategoryIndex : int {
    CatOnes = 1, CatTwos, CatThrees, CatFours, CatFives, CatSixes,
    CatThreeOfAKind, CatFourOfAKind, CatFullHouse, CatSmallStraight, CatLargeStraight,
    CatZarvo, CatChance,
};
constexpr int CategoryCount = 13;
constexpr int BonusCell = 14;        // running sum of a player's bonus points
constexpr std::int16_t EmptyCell = -1;

// One player's column of gScores, rows 1..14 (index 0 unused).
struct ScoreCard {
    std::array<std::int16_t, BonusCell + 1> rows{};
    std::int16_t& operator[](int row) { return rows.at(row); }
    std::int16_t operator[](int row) const { return rows.at(row); }
};

struct SessionStats {
    std::int16_t SessionHigh = 0;
    std::int16_t SessionLow = 9999;
    double SessionAverage = 0.0;
    std::int32_t SessionGames = 0;
};

constexpr int MaxPlayers = 8;

extern OneBased<std::string> gPlayerNames;   // UBound is the number of players
extern OneBased<ScoreCard> gScores;          // gScores[player][row]
extern int gCurrentPlayer;
extern OneBased<SessionStats> gSessionStats;
extern int gNewGameChoice;                    // 1 yes, 2 no, 0 never answered
extern bool gKeyboardOffered;
extern std::string gHighScoreName;
