// Random play: a seeded stream of user events against the whole program (the game table with
// every dialog) on a temporary data file. After every event the card and the table still obey
// the rules; at the end the data file is whole. ZARVO_RANDOM_EVENTS and ZARVO_RANDOM_SEED
// override the count and the seed, which a failure prints.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <random>

#include "DataFileFixture.h"
#include "GameDialogs.h"
#include "frmPlayerResults.h"

namespace {
const unsigned Seed = std::getenv("ZARVO_RANDOM_SEED") ? std::atoi(std::getenv("ZARVO_RANDOM_SEED")) : 20261123;
const int Events = std::getenv("ZARVO_RANDOM_EVENTS") ? std::atoi(std::getenv("ZARVO_RANDOM_EVENTS")) : 100000;

class RandomPlay : public DataFileFixture, public QObject {
public:
    std::mt19937 random{Seed};
    std::unique_ptr<frmMain> form;
    std::unique_ptr<GameDialogs> dialogs;
    OneBased<ScoreCard> before;   // the cards before the event
    int results = 0;              // Results windows shown: one for each card that filled

    template <class T> T Pick(std::initializer_list<T> items) { return items.begin()[Pick(int(items.size()))]; }
    int Pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }

    // A new run of the program on the data file as the last one left it.
    void Start()
    {
        form = std::make_unique<frmMain>(), dialogs = std::make_unique<GameDialogs>(*form);
        form->SetDialogs(dialogs.get());
        form->Form_Load();
        form->tmrRoll->setInterval(24 * 3600 * 1000);   // the test gives the ticks
        form->show();
        before = gScores;
    }

    // Every modal dialog is answered once it shows: a pick in its boxes now and then, then one of
    // its buttons, or the window is closed; one still open after its button (Add) is answered again.
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* dialog = qobject_cast<QDialog*>(object);
        if (dialog && event->type() == QEvent::Show && dialog->isModal()) {
            results += dynamic_cast<frmPlayerResults*>(dialog) != nullptr;
            QTimer::singleShot(0, dialog, [this, dialog] { Answer(dialog); });
        }
        return false;
    }
    void Answer(QDialog* dialog)
    {
        for (auto* box : dialog->findChildren<QComboBox*>())
            if (!box->isHidden() && box->count() > 0 && Pick(3) == 0)
                box->isEditable() ? box->setEditText(Pick<QString>({"Ann", " O'Neil \"Jr\" ", "", "< Player >"}))
                                  : box->setCurrentIndex(Pick(box->count()));
        QList<QPushButton*> buttons;
        for (auto* button : dialog->findChildren<QPushButton*>())
            if (!button->isHidden() && button->isEnabled())
                buttons << button;
        buttons.isEmpty() || Pick(8) == 0 ? void(dialog->close()) : buttons[Pick(int(buttons.size()))]->click();
        if (dialog->isVisible())
            QTimer::singleShot(0, dialog, [this, dialog] { Answer(dialog); });
    }

    // Clicks anywhere in the window and keys most of the time, menu commands now and then; leaving
    // the program and the help seldom. Then some ticks.
    void Event()
    {
        QWidget* client = form->centralWidget();
        const int kind = Pick(1000);
        if (kind < 450) {
            QPoint at(Pick(client->width()), Pick(client->height()));
            QWidget* target = client->childAt(at) ? client->childAt(at) : client;
            QTest::mouseClick(target, Pick({Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}), {},
                              target->mapFrom(client, at));
        } else if (kind < 900) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : form.get(),
                            Pick({Qt::Key_Return, Qt::Key_Return, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
                                  Qt::Key_Space, Qt::Key_Tab, Qt::Key_Escape}));
        } else if (QAction* item = kind < 999 ? Pick({form->mnuRememberPlayers, form->mnuUseKeyboard, form->mnuScoringPreview,
                                                      form->mnuAnimation, form->mnuScoringSummary, form->mnuHighScores})
                                              : Pick({form->mnuNewGame, form->mnuNewPlayers, form->mnuExit, form->mnuInstructions});
                   item->isEnabled()) {
            item->trigger();
        }
        for (int ticks = Pick(60); ticks > 0 && form->Logic().mRollPhase != 0; --ticks)
            form->Logic().tmrRoll_Timer();
    }

    // Unless a new game has cleared the cards, cells go from EmptyCell to a score once and the
    // bonus only grows. Always: the totals shown are the card's, one phase label at a time, rolls
    // done 0 to 3, boxes exactly on the open cells while choosing.
    void CheckInvariants()
    {
        const bool fresh = std::all_of(&gScores[1], &gScores[1] + gScores.UBound(), [](const ScoreCard& card) {
            return std::count(card.rows.begin() + 1, card.rows.begin() + BonusCell, EmptyCell) == CategoryCount && !card[BonusCell];
        });
        for (int p = 1; !fresh && p <= gScores.UBound(); ++p)
            for (int row = 1; row <= BonusCell; ++row)
                ASSERT_TRUE(row == BonusCell ? gScores[p][row] >= before[p][row]
                                             : before[p][row] == EmptyCell || gScores[p][row] == before[p][row]) << p << "/" << row;
        const CardTotals t = TotalsOf(gScores[gCurrentPlayer]);
        ASSERT_EQ(QStringList({form->lblLeftTotal->Caption(), form->lblRightTotal->Caption(), form->lblBonusTotal->Caption(),
                               form->lblTotal->Caption()}).join(' '), QString("%1 %2 %3 %4").arg(t.left).arg(t.right).arg(t.bonus).arg(t.Total()));
        const bool choosing = !form->lblSelectCategory->isHidden();
        ASSERT_LE(int(!form->lblPleaseRoll->isHidden()) + int(!form->lblKeep[0]->isHidden()) + int(choosing), 1);
        ASSERT_TRUE(form->Logic().mRollsDone >= 0 && form->Logic().mRollsDone <= 3);
        for (int c = 1; c <= CategoryCount; ++c)
            ASSERT_EQ(form->Cell(c)->BorderStyle() == 1, choosing && gScores[gCurrentPlayer][c] == EmptyCell) << "cell " << c;
    }
};

// A card with one open cell left that fills brings one Results window and counts one game in its
// player's row; the file stays whole and keeps ten high scores.
TEST_F(RandomPlay, TheRulesHoldWhateverThePlayersDo)
{
    MakeFreshFile();
    SetClock([] { return DateTime{2026, 11, 23, 20, 15, 0}; });   // the dice follow the seed alone
    SetMsgBoxHandler([this](const std::string&, int style, const std::string&) {
        return (style & vbYesNo) ? Pick({int(vbYes), int(vbNo)}) : int(vbOK);
    });
    qApp->installEventFilter(this);
    Start();
    const auto games = [this] { return std::stoi(Sql("SELECT sum(GamesPlayed) FROM Player")); };
    int finished = 0;
    for (int n = 0; n < Events && !HasFatalFailure(); ++n) {
        SCOPED_TRACE("seed " + std::to_string(Seed) + ", event " + std::to_string(n));
        const ScoreCard& card = gScores[gCurrentPlayer];
        const bool lastCell = !form->lblSelectCategory->isHidden()
            && std::count(card.rows.begin() + 1, card.rows.begin() + BonusCell, EmptyCell) == 1;
        const int resultsBefore = results, gamesBefore = lastCell ? games() : 0;
        Event();
        if (results != resultsBefore) {
            ++finished;
            ASSERT_TRUE(lastCell && results == resultsBefore + 1);
            ASSERT_EQ(games(), gamesBefore + 1);
        }
        if (form->isHidden())   // Exit, or No to another game: the program starts again
            Start();
        CheckInvariants();
        before = gScores;
    }
    qApp->removeEventFilter(this);
    form.reset();
    SetClock({});
    EXPECT_EQ(Sql("PRAGMA integrity_check; SELECT count(*) FROM HighScores"), "ok;10");
    std::printf("random play: %d events, seed %u, %d cards finished\n", Events, Seed, finished);
    EXPECT_GT(finished, 0);
}
}
