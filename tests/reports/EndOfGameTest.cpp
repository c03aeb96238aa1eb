// A two-player game to its end on the real window with the real dialogs, twice: each card full
// but for one category, the last turns played by clicks, every dialog answered by a key.
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "DataFileFixture.h"
#include "GameDialogs.h"
#include "frmNewGame.h"
#include "frmPlayerResults.h"
#include "frmSummary.h"

namespace {
// Each card with its last category open (-1), that category, and the dice of the last turn.
const std::tuple<std::array<int, 15>, int, DiceValues> Endings[] = {
    {{0, 3, 6, 9, 12, 15, 18, 20, 0, 25, 30, 35, 50, -1, 35}, CatChance, {3, 3, 1, 2, 5}},
    {{0, 1, 2, 3, 4, 5, 6, 0, 0, 0, 30, 0, -1, 22, 0}, CatZarvo, {4, 4, 4, 4, 4}}};

template <class... W> std::string Captions(const W*... w) { return ((" " + w->Caption().toStdString()) + ...); }

using EndOfGame = DataFileFixture;

// The dialogs come in order with the figures of the table above, worked out by hand; Yes starts
// the next game with the sessions kept (so no session record then), No saves the setup and ends.
TEST_F(EndOfGame, ResultsResultsSummaryPromptThenYesThenNo)
{
    MakeFreshFile();
    // Scores no game can reach keep the high-score check silent.
    Sql("INSERT INTO Setup VALUES (-1, 0, 0, -1); UPDATE HighScores SET Score = 1500;"
        "INSERT INTO PlayersInUse VALUES (1, '< Player 1 >'), (2, '< Player 2 >');");
    SetMsgBoxHandler([](const std::string&, int, const std::string&) { return int(vbYes); });
    frmMain form;
    GameDialogs dialogs(form);
    form.SetDialogs(&dialogs);
    form.Form_Load();
    form.move(37, 52);
    std::vector<std::string> seen;
    bool sayNo = false;
    QTimer answerer;
    QObject::connect(&answerer, &QTimer::timeout, [&] {
        // Keys go to the active window; a mnemonic clicks its button only after a moment.
        auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!d || !d->isActiveWindow() || d->property("answered").toBool())
            return;
        std::string shown = d->windowTitle().toStdString();
        if (auto* r = dynamic_cast<frmPlayerResults*>(d))
            shown += Captions(r->fraCurrentSession, r->lblScored, r->lblCurrentInfo, r->lblAllHigh, r->lblAllLow, r->lblAllAvg);
        if (auto* s = dynamic_cast<frmSummary*>(d)) {
            for (int i = 0; i < 8; ++i)
                if (!s->lblName[i]->isHidden())
                    shown += Captions(s->lblName[i], s->lblLeft[i], s->lblRight[i], s->lblBonus[i], s->lblTotal[i], s->lblZarvos[i]);
            shown += Captions(s->lblTotalLeft, s->lblTotalRight, s->lblTotalBonus, s->lblTotalTotal, s->lblTotalZarvos) + " @"
                + std::to_string(s->lblTotals->y() * 15) + " " + std::to_string(s->cmdOK->y() * 15) + " " + std::to_string(s->height() * 15);
            // Beside the main window, centred on it in height, give or take the offscreen frame.
            EXPECT_LE((QPoint(s->frameGeometry().left(), s->frameGeometry().center().y()) - QPoint(form.frameGeometry().left(), form.frameGeometry().center().y())).manhattanLength(), 4);
        }
        seen.push_back(shown);
        d->setProperty("answered", true);
        const bool no = sayNo && dynamic_cast<frmNewGame*>(d);
        QTest::keyClick(d->focusWidget() ? d->focusWidget() : d, no ? Qt::Key_N : Qt::Key_Return, no ? Qt::AltModifier : Qt::NoModifier);
    });
    answerer.start(0);
    // Each player's last turn: a roll, the table's dice, Accept (confirmed), the one open cell.
    const auto playLastRound = [&] {
        for (int p = 1; p <= 2; ++p)
            for (int row = 1; row <= BonusCell; ++row)
                gScores[p][row] = std::int16_t(std::get<0>(Endings[p - 1])[row]);
        for (const auto& [card, last, dice] : Endings) {
            QTest::mouseClick(form.cmdRoll, Qt::LeftButton);
            while (form.Logic().mRollPhase != 0)
                form.Logic().tmrRoll_Timer();
            form.Logic().mDice = dice;
            QTest::mouseClick(form.cmdRoll, Qt::LeftButton);
            QTest::mouseClick(form.Cell(last), Qt::LeftButton);
        }
    };
    form.mnuAnimation->trigger();   // off, to be found so in the saved setup
    gScores[1][CatOnes] = 3;
    form.mnuScoringSummary->trigger();   // mid-game: open cells add nothing
    playLastRound();
    EXPECT_EQ(form.lblPleaseRoll->Caption(), "Player 1's turn. Please roll.");
    sayNo = true;
    playLastRound();
    const std::string summary = "Zarvo - Scoring Summary Player 1  63  174  35  272  1 Player 2  21  102  0  123  1  84  276  35  395  2 @1260 1680 2145";
    EXPECT_EQ(seen, (std::vector<std::string>{
        "Zarvo - Scoring Summary Player 1  3  0  0  3  0 Player 2  0  0  0  0  0  3  0  0  3  0 @1260 1680 2145",
        "Zarvo - Results Player 1's Results: Player 1 Scored: 272 Congratulations, an all-time high! 272 272 272",
        "Zarvo - Results Player 2's Results: Player 2 Scored: 123 An all-time low! Better luck next time! 272 123 198",
        summary, " Zarvo - New Game",
        "Zarvo - Results Player 1's Results: Player 1 Scored: 272 You bettered your overall average... 272 123 222",
        "Zarvo - Results Player 2's Results: Player 2 Scored: 123 Brought your overall average down... 272 123 198",
        summary, " Zarvo - New Game"}));
    EXPECT_EQ(Sql("SELECT * FROM Setup; SELECT GamesPlayed FROM Player"), "-1|0|0|0;4");
}
}
