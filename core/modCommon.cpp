#include "modCommon.h"

#include "modGlobalVars.h"

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
    std::string inner = name.size() >= 2 ? name.substr(1, name.size() - 2) : std::string();
    const auto first = inner.find_first_not_of(' ');
    if (first == std::string::npos)
        return "";
    const auto last = inner.find_last_not_of(' ');
    return inner.substr(first, last - first + 1);
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
