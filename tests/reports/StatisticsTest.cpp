// The end of a card on plain code: the records, the one line, the bold marks, the figures
// shown and the counted Player rows afterwards, against temporary data files (Statistics.txt);
// and the Scoring Summary's sums.
#include "DataFileFixture.h"
#include "Rows.h"
#include "PlayerStatistics.h"
#include "SummaryFigures.h"
#include "modCommon.h"

namespace {
// The file of a row of Statistics.txt, as statements on a fresh one.
std::string FileStatements(const std::string& file)
{
    const auto ann = file.find("Ann:"), refused = file.find("/refused");
    if (ann == std::string::npos)
        return "";
    return std::string(file.rfind("untyped/", 0) == 0 ? "DROP TABLE Player; CREATE TABLE Player (PlayerName, HighScore, LowScore, "
                                             "AverageScore, GamesPlayed);" : "")
        + "INSERT INTO Player VALUES ('Ann', " + file.substr(ann + 4, refused - ann - 4) + ");"
        + (refused == std::string::npos ? "" : "CREATE TRIGGER No BEFORE UPDATE ON Player BEGIN SELECT RAISE(ABORT, ''); END;");
}

class Statistics : public DataFileFixture, public testing::WithParamInterface<Words> {};

TEST_P(Statistics, CountsTheGameAndPicksTheLine)
{
    const Words& c = GetParam();
    if (c[0] != "-")
        MakeFreshFile(), Sql(FileStatements(c[0]));
    const Names seats = Split(c[1], '|');
    const int last = int(seats.size());
    gPlayerNames.ReDim(last), gScores.ReDim(last), ClearSessionStats();   // all rows 0: the bonus makes the total
    if (const auto s = Split(c[3], ','); s.size() == 4)
        gSessionStats[last] = {std::int16_t(std::stoi(s[0])), std::int16_t(std::stoi(s[1])), std::stod(s[2]), std::stoi(s[3])};
    ResultValues r;
    for (int p = 1; p <= last; ++p) {
        gPlayerNames[p] = seats[p - 1];
        gScores[p][BonusCell] = std::int16_t(std::stoi(Split(c[2], ',')[p - 1]));
        r = CountGameResults(p);
    }
    EXPECT_EQ(r.Info, c[4]);
    EXPECT_EQ((std::string{r.BoldCurrentHigh ? 'B' : '.', r.BoldCurrentLow ? 'B' : '.', r.BoldAllHigh ? 'B' : '.', r.BoldAllLow ? 'B' : '.'}), c[5]);
    EXPECT_EQ(r.CurrentHigh + " " + r.CurrentLow + " " + r.CurrentAvg + "|" + (r.AllTime ? r.AllHigh + " " + r.AllLow + " " + r.AllAvg : ""), c[6]);
    EXPECT_EQ(c[0] == "-" ? std::to_string(fs::exists(DataPath())) : Sql("SELECT * FROM Player WHERE GamesPlayed > 0"), c[7]);
}

INSTANTIATE_TEST_SUITE_P(EndOfCard, Statistics, testing::ValuesIn(ReadRows(ZARVO_TEST_DATA "/reports/Statistics.txt")));
}

// Open cells add nothing, so a half-played card sums to its PlayerTotal; the bonus row's hundreds are repeat
// Zarvos and its 35 is none; a zero taken in the Zarvo cell is no Zarvo. The grid, laid out for eight players,
// shrinks one row height for each missing one.
TEST(Summary, SumsEachPlayerAndTheTotalsRow)
{
    const std::vector<std::vector<std::pair<int, int>>> cards = {
        {{CatOnes, 3}, {CatFives, 25}, {CatSixes, 30}, {CatThreeOfAKind, 30}, {CatZarvo, 50}, {CatChance, 30}, {BonusCell, 235}},
        {{CatFours, 16}, {CatFullHouse, 25}, {CatZarvo, 0}, {BonusCell, 35}}, {}};
    // Left, Right, Bonus, Total, Zarvos of each player and of the totals row, worked out by hand.
    const std::vector<std::array<int, 5>> expected = {{58, 110, 235, 403, 3}, {16, 25, 35, 76, 0}, {0, 0, 0, 0, 0}, {74, 135, 270, 479, 3}};
    gPlayerNames.ReDim(3), gScores.ReDim(3), ClearScoreboard();
    for (int p = 1; p <= 3; ++p)
        for (const auto& [row, value] : cards[p - 1])
            gScores[p][row] = std::int16_t(value);
    SummaryFigures figures = SumSummaryGrid();
    figures.players.push_back(figures.totals);
    std::vector<std::array<int, 5>> sums;
    for (const SummaryLine& l : figures.players)
        sums.push_back({l.Left, l.Right, l.Bonus, l.Total, l.Zarvos});
    EXPECT_EQ(sums, expected);
    EXPECT_EQ((std::array{SummaryShift(2), SummaryShift(5), SummaryShift(8)}), (std::array{-1440, -720, 0}));
}
