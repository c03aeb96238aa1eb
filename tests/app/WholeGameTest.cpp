// A whole game on the real window with the real dialogs: two players chosen in Change Players,
// played to the end, the first by mouse and the second by keys, the next game begun and left by
// Exit. The dice of each turn are set by the test after the roll; the expected cells, totals and
// dialog texts are worked out by hand.
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "DataFileFixture.h"
#include "GameDialogs.h"
#include "ModalAnswer.h"
#include "frmHighScoreNotify.h"
#include "frmHighScores.h"
#include "frmPlayerResults.h"
#include "frmPlayers.h"
#include "frmSummary.h"

namespace {
// One card: the dice, the category taken, and what its box shows in the preview (score and bonus).
const struct Turn { DiceValues dice; int category; const char* preview; const char* cell; } Card[] = {
    {{1, 1, 1, 2, 3}, CatOnes, "3 ", "3 "}, {{2, 2, 2, 5, 6}, CatTwos, "6 ", "6 "},
    {{3, 3, 3, 3, 1}, CatThrees, "12 ", "12 "}, {{4, 4, 4, 1, 2}, CatFours, "12 ", "12 "},
    {{5, 5, 5, 2, 3}, CatFives, "15 ", "15 "}, {{6, 6, 6, 1, 1}, CatSixes, "53 ", "18 "},   // 66: the 35
    {{2, 2, 3, 3, 3}, CatFullHouse, "25 ", "25 "}, {{1, 2, 3, 4, 6}, CatSmallStraight, "30 ", "30 "},
    {{2, 3, 4, 5, 6}, CatLargeStraight, "35 ", "35 "}, {{4, 4, 4, 4, 4}, CatZarvo, "50 ", "50 "},
    {{4, 4, 4, 4, 4}, CatThreeOfAKind, "120 ", "20 "},   // a repeat Zarvo: 100 more
    {{6, 6, 6, 6, 2}, CatFourOfAKind, "26 ", "26 "}, {{1, 1, 2, 2, 3}, CatChance, "9 ", "9 "}};
// The card: Left 66, Right 195, Bonus 135, Total 396, Zarvos 1 + 135 / 100.

template <class... L> std::string Texts(const L*... labels) { return ((" " + labels->Caption().toStdString()) + ...); }

// A screen reader can name every control it meets in the dialog: a label or button by its
// caption, a box by the name it was given (its text says nothing of what it is).
void ExpectNamed(const QDialog* d)
{
    for (QWidget* w : d->findChildren<QWidget*>()) {
        auto* label = dynamic_cast<Label*>(w);
        const bool box = qobject_cast<QComboBox*>(w) || (qobject_cast<QLineEdit*>(w) && !qobject_cast<QComboBox*>(w->parent()));
        if (!w->isHidden() && (box || qobject_cast<QAbstractButton*>(w) || (label && !label->Caption().isEmpty()))) {
            EXPECT_NE(box ? w->accessibleName() : QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name), "")
                << d->windowTitle().toStdString();
        }
    }
}

class WholeGame : public DataFileFixture {
protected:
    frmMain form;
    GameDialogs dialogs{form};
    std::vector<std::string> seen;   // each dialog, as it came

    // Answers each dialog with its default button, noting what it showed.
    void AnswerDialogs(QTimer& answerer)
    {
        QObject::connect(&answerer, &QTimer::timeout, [this] {
            auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!d || !d->isActiveWindow() || d->property("answered").toBool())
                return;
            std::string shown = d->windowTitle().toStdString();
            ExpectNamed(d);
            if (auto* r = dynamic_cast<frmPlayerResults*>(d))
                shown += Texts(r->lblScored, r->lblCurrentInfo, r->lblAllHigh, r->lblAllLow, r->lblAllAvg);
            if (auto* n = dynamic_cast<frmHighScoreNotify*>(d)) {
                shown += " " + n->txtName->text().toStdString();
                if (gCurrentPlayer == 1) {   // Ann types another name: real keys meet the character rule
                    EXPECT_EQ(n->focusWidget(), n->cmdOK);
                    n->txtName->selectAll(), QTest::keyClicks(n->txtName, " a b2cdefghi!");
                    shown += ">" + n->txtName->text().toStdString();
                }
            }
            if (auto* h = dynamic_cast<frmHighScores*>(d))
                shown += Texts(h->lblPlayerName[0], h->lblScore[0]) + (h->lblScore[0]->font().bold() ? " bold" : "");
            if (auto* s = dynamic_cast<frmSummary*>(d))   // where its rows stand is the layout guard's
                shown += Texts(s->lblName[1], s->lblLeft[1], s->lblRight[1], s->lblBonus[1], s->lblTotal[1], s->lblZarvos[1],
                               s->lblTotalLeft, s->lblTotalTotal, s->lblTotalZarvos);
            seen.push_back(shown);
            d->setProperty("answered", true);
            QTest::keyClick(d->focusWidget() ? d->focusWidget() : d, Qt::Key_Return);
        });
        answerer.start(0);
    }
    void Roll(DiceValues dice)
    {
        while (form.Logic().mRollPhase != 0)
            form.Logic().tmrRoll_Timer();
        form.Logic().mDice = dice;
    }
    // Player 1: the dice field, then the right button to accept, then the cell.
    void TurnByMouse(const Turn& t)
    {
        QTest::mouseClick(form.lblDie[0], Qt::LeftButton);
        Roll(t.dice);
        QTest::mouseClick(form.imgDie[4], Qt::RightButton);
        ASSERT_EQ(form.Cell(t.category)->Caption(), t.preview);
        ASSERT_EQ(form.Cell(t.category)->BackColor(), QColor(Qt::white));
        QTest::mouseClick(form.Cell(t.category), Qt::LeftButton);
    }
    // Player 2: Enter rolls and accepts; the cursor starts on Ones, Right crosses to the right
    // column, Down walks it; Enter takes the cell.
    void TurnByKeys(const Turn& t)
    {
        QTest::keyClick(&form, Qt::Key_Return);
        Roll(t.dice);
        QTest::keyClick(&form, Qt::Key_Return);
        if (t.category > CatSixes)
            QTest::keyClick(&form, Qt::Key_Right);
        for (int c = t.category > CatSixes ? CatThreeOfAKind : CatOnes; c < t.category; ++c)
            QTest::keyClick(&form, Qt::Key_Down);
        QTest::keyClick(&form, Qt::Key_Return);
    }
};

TEST_F(WholeGame, PlayersChosenThenAGameByMouseAndKeys)
{
    std::vector<std::string> titles;   // of the message boxes, each answered Yes: Accept, the offer
    SetMsgBoxHandler([&titles](const std::string&, int, const std::string& title) { return titles.push_back(title), int(vbYes); });
    form.SetDialogs(&dialogs);
    form.Form_Load();
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    // Without a data file: the message first, the note in place of Add and Remove; Close in the
    // middle of a turn changes nothing; High Scores has nothing to show but the message.
    QTest::mouseClick(form.cmdRoll, Qt::LeftButton);
    Roll(form.Logic().mDice);
    const auto state = [this] { return std::tuple(form.cmdRoll->text().toStdString(), form.Logic().mRollsDone, form.Logic().mDice); };
    const auto before = state();
    AnswerNextModal([](QWidget* modal) {
        auto& d = dynamic_cast<frmPlayers&>(*modal);
        EXPECT_TRUE(d.fraAddRemove->isHidden() && !d.lblNote->isHidden());
        ExpectNamed(&d), d.cmdCancel->click();
    });
    form.mnuNewPlayers->trigger();
    form.mnuHighScores->trigger();   // no table to show
    EXPECT_EQ(std::tuple(titles, state()), std::tuple(std::vector<std::string>(2, "Zarvo - Data File Error"), before));
    // With a fresh file: two names typed and added (no blank first; no "-" or "'"; twelve at most)
    // and seated; Play, the default, offers the summary, starts the sessions afresh and a new game.
    MakeFreshFile();
    gSessionStats[1].SessionGames = 4;
    AnswerNextModal([](QWidget* modal) {
        auto& d = dynamic_cast<frmPlayers&>(*modal);
        QTest::keyClicks(d.cboAddRemove, " Ann");
        d.cmdAdd->click();
        d.cboAddRemove->lineEdit()->selectAll();
        QTest::keyClicks(d.cboAddRemove, " Bo-b'by 1234567");
        QTest::keyClick(d.cboAddRemove, Qt::Key_Backspace);
        d.cmdAdd->click();
        for (auto [i, name] : {std::pair{0, "Ann"}, {1, "Bobby 12345"}})
            d.cboPlayer[i]->setCurrentIndex(d.cboPlayer[i]->findText(name));
        ExpectNamed(&d), QTest::keyClick(&d, Qt::Key_Return);
    });
    form.mnuNewPlayers->trigger();
    EXPECT_EQ(std::tuple(gPlayerNames.UBound(), form.mnuScoringSummary->isEnabled(), gSessionStats[1].SessionGames,
                         form.lblPleaseRoll->Caption().toStdString()), std::tuple(2, true, 0, std::string("Ann's turn. Please roll.")));
    form.mnuRememberPlayers->trigger(), form.mnuScoringPreview->trigger();
    QTimer answerer;
    AnswerDialogs(answerer);
    for (const Turn& t : Card) {
        SCOPED_TRACE(t.category);
        TurnByMouse(t);
        if (t.category == CatOnes)
            QTest::keyClick(&form, Qt::Key_Down);   // the first arrow: the offer, answered Yes
        TurnByKeys(t);
        if (t.category != CatChance) {
            ASSERT_EQ(form.Cell(t.category)->Caption(), t.cell) << "Ann's card is back";
        }
    }
    const std::string summary = "Zarvo - Scoring Summary Bobby 12345  66  195  135  396  2  132  792  4";
    EXPECT_EQ(seen, (std::vector<std::string>{
        "Zarvo - Results Ann Scored: 396 Congratulations, an all-time high! 396 396 396", "Zarvo - High Score Ann>a b2cdefghi",
        "Zarvo - High Scores a b2cdefghi 396 bold", "Zarvo - Results Bobby 12345 Scored: 396 Congratulations, an all-time high! 396 396 396",
        "Zarvo - High Score Bobby 12345", "Zarvo - High Scores a b2cdefghi 396 bold", summary, " Zarvo - New Game"}));
    EXPECT_EQ(form.lblPleaseRoll->Caption(), "Ann's turn. Please roll.") << "Yes: the next game";

    form.mnuExit->trigger();   // saves the setup: the options set here, the players, and one game each
    EXPECT_TRUE(form.isHidden());
    EXPECT_EQ(Sql("SELECT * FROM Setup; SELECT PlayerName FROM PlayersInUse; SELECT PlayerName, GamesPlayed FROM Player"),
              "-1|-1|-1|-1;Ann;Bobby 12345;< Player >|0;Ann|1;Bobby 12345|1");
}
}
