#include "modCommon.h"

#include "modGlobalVars.h"
#include "Translate.h"

void ClearScoreboard()
{
    for (int p = 1; p <= gScores.UBound(); ++p) {
        for (int row = 1; row <= CategoryCount; ++row)
            gScores[p][row] = EmptyCell;
        gScores[p][BonusCell] = 0;
    }
}

std::string PlayerDisplayName(int player)
{
    const std::string& name = gPlayerNames[player];
    if (name.empty() || name[0] != '<')
        return name;
    for (int seat = 1; seat <= MaxPlayers; ++seat)
        if (name == PlaceholderName(seat))   // stored in English, shown in the player's language
            return Arg(Translate("modCommon", "Player %1"), {std::to_string(seat)});
    return TrimBlanks(name.size() >= 2 ? name.substr(1, name.size() - 2) : std::string());
}

std::string TrimBlanks(const std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return "";
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void ClearSessionStats()
{
    gSessionStats.ReDim(gPlayerNames.UBound(), SessionStats{});
}

int PlayerTotal(int player)
{
    int total = 0;
    for (int row = 1; row <= BonusCell; ++row)
        if (gScores[player][row] > -1)
            total += gScores[player][row];
    return total;
}

std::string PlaceholderName(int seat) { return "< Player " + std::to_string(seat) + " >"; }
