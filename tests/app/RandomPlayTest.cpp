// Random play: a seeded stream of user events against the whole program (the game table with
// every dialog) on a temporary data file. After every event the card and the table still obey
// the rules; at the end the data file is whole. ZARVO_RANDOM_EVENTS and ZARVO_RANDOM_SEED
// override the count and the seed, which a failure prints.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
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
    QList<QWidget*> targets;      // the controls a click is aimed at
    OneBased<ScoreCard> before;   // the cards before the event
    int runs = 0, results = 0;    // Results windows shown: one for each card that filled

    int Pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }
    template <class T> T Pick(std::initializer_list<T> items) { return items.begin()[Pick(int(items.size()))]; }

    // A new run of the program on the data file as the last one left it.
    void Start()
    {
        form = std::make_unique<frmMain>();
        dialogs = std::make_unique<GameDialogs>(*form);
        form->SetDialogs(dialogs.get());
        form->Form_Load();
        form->tmrRoll->setInterval(24 * 3600 * 1000);   // the test gives the ticks
        form->show();
        targets = {form->cmdRoll};
        for (int i = 0; i < 5; ++i)
            targets << form->imgDie[i] << form->lblDie[i];
        for (int c = 1; c <= CategoryCount; ++c)
            targets << form->Cell(c);
        ++runs;
        before = gScores;
    }

    // Every modal dialog is answered at random once it shows: a few picks in its boxes, then one
    // of its buttons, or the window is closed. One still open after its button (Add, Remove)
    // is answered again.
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
                box->isEditable() ? box->setEditText(Pick<QString>({"Ann", " O'Neil \"Jr\" ", "", "ann", "< Player >"}))
                                  : box->setCurrentIndex(Pick(box->count()));
        for (auto* text : dialog->findChildren<QLineEdit*>())
            if (!text->isHidden() && !qobject_cast<QComboBox*>(text->parent()) && Pick(2) == 0)
                text->setText(Pick<QString>({"Eve", "", "x'; DROP TABLE HighScores;--"}));
        QList<QPushButton*> buttons;
        for (auto* button : dialog->findChildren<QPushButton*>())
            if (!button->isHidden() && button->isEnabled())
                buttons << button;
        buttons.isEmpty() || Pick(8) == 0 ? void(dialog->close()) : buttons[Pick(int(buttons.size()))]->click();
        if (dialog->isVisible())
            QTimer::singleShot(0, dialog, [this, dialog] { Answer(dialog); });
    }

    // Clicks and keys most of the time, aimed at the controls often enough that games end;
    // menu commands now and then; leaving the program and the help seldom. Then some ticks.
    void Event()
    {
        QWidget* client = form->centralWidget();
        const int kind = Pick(1000);
        if (kind < 450) {
            QPoint at(Pick(client->width()), Pick(client->height()));
            QWidget* target = kind < 250 ? targets[Pick(int(targets.size()))] : client->childAt(at) ? client->childAt(at) : client;
            at = kind < 250 ? target->rect().center() : target->mapFrom(client, at);
            QTest::mouseClick(target, Pick({Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}), {}, at);
        } else if (kind < 900) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : form.get(),
                            Pick({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                  Qt::Key_Down, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Escape, Qt::Key_A}));
        } else if (QAction* item = kind < 999 ? Pick({form->mnuRememberPlayers, form->mnuUseKeyboard, form->mnuScoringPreview,
                                                      form->mnuAnimation, form->mnuScoringSummary, form->mnuHighScores, form->mnuAbout})
                                              : Pick({form->mnuNewGame, form->mnuNewPlayers, form->mnuExit, form->mnuInstructions});
                   item->isEnabled()) {
            item->trigger();
        }
        for (int ticks = Pick(60); ticks > 0 && form->Logic().mRollPhase != 0; --ticks)
            form->Logic().tmrRoll_Timer();
    }

    // The games counted in a player's row of the data file; -1 without a row.
    int GamesPlayed(const std::string& key)
    {
        const std::string rows = ";" + Sql("SELECT PlayerName, GamesPlayed FROM Player");
        const auto at = rows.find(";" + key + "|");
        return at == std::string::npos ? -1 : std::atoi(rows.c_str() + at + key.size() + 2);
    }

    // Unless a new game has cleared the cards: cells go from EmptyCell to a score once and the
    // bonus only grows. Always: the totals shown are the card's, one phase label at a time,
    // rolls done 0 to 3, boxes exactly on the open cells while choosing.
    void CheckInvariants()
    {
        bool fresh = true;
        for (int p = 1; p <= gScores.UBound(); ++p)
            for (int row = 1; row <= BonusCell; ++row)
                fresh = fresh && gScores[p][row] == (row == BonusCell ? 0 : EmptyCell);
        ASSERT_TRUE(fresh || gScores.UBound() == before.UBound());
        for (int p = 1; !fresh && p <= gScores.UBound(); ++p)
            for (int row = 1; row <= BonusCell; ++row)
                ASSERT_TRUE(row == BonusCell ? gScores[p][row] >= before[p][row]
                                             : before[p][row] == EmptyCell || gScores[p][row] == before[p][row])
                    << "player " << p << ", row " << row;
        const ScoreCard& card = gScores[gCurrentPlayer];
        int left = 0, right = 0;
        for (int row = 1; row <= CategoryCount; ++row)
            (row <= 6 ? left : right) += std::max<int>(card[row], 0);
        ASSERT_EQ(QStringList({form->lblLeftTotal->Caption(), form->lblRightTotal->Caption(), form->lblBonusTotal->Caption(),
                               form->lblTotal->Caption()}).join(' '),
                  QString("%1 %2 %3 %4").arg(left).arg(right).arg(card[BonusCell]).arg(left + right + card[BonusCell]));
        const bool choosing = !form->lblSelectCategory->isHidden();
        ASSERT_LE(int(!form->lblPleaseRoll->isHidden()) + int(!form->lblKeep[0]->isHidden()) + int(choosing), 1);
        ASSERT_TRUE(form->Logic().mRollsDone >= 0 && form->Logic().mRollsDone <= 3);
        for (int c = 1; c <= CategoryCount; ++c)
            ASSERT_EQ(form->Cell(c)->BorderStyle() == 1, choosing && card[c] == EmptyCell) << "cell " << c;
    }
};

TEST_F(RandomPlay, TheRulesHoldWhateverThePlayersDo)
{
    MakeFreshFile();
    SetClock([] { return DateTime{2026, 11, 23, 20, 15, 0}; });   // the dice follow the seed alone
    SetMsgBoxHandler([this](const std::string&, int style, const std::string&) {
        return (style & vbYesNo) ? Pick({int(vbYes), int(vbNo)}) : int(vbOK);
    });
    qApp->installEventFilter(this);
    Start();
    int finished = 0;
    for (int n = 0; n < Events && !HasFatalFailure(); ++n) {
        SCOPED_TRACE("seed " + std::to_string(Seed) + ", event " + std::to_string(n));
        // A card with one open cell left may fill now: its row is to count the game once.
        const ScoreCard& card = gScores[gCurrentPlayer];
        const bool lastCell = !form->lblSelectCategory->isHidden()
            && std::count(card.rows.begin() + 1, card.rows.begin() + BonusCell, EmptyCell) == 1;
        const std::string key = gPlayerNames[gCurrentPlayer][0] == '<' ? "< Player >" : gPlayerNames[gCurrentPlayer];
        const int gamesBefore = lastCell ? GamesPlayed(key) : -1, resultsBefore = results;
        Event();
        if (results != resultsBefore) {
            ++finished;
            ASSERT_TRUE(lastCell && results == resultsBefore + 1);
            ASSERT_TRUE(gamesBefore < 0 || GamesPlayed(key) == gamesBefore + 1) << key;
        }
        if (form->isHidden()) {   // Exit, or No to another game: the program starts again
            Start();
            continue;
        }
        CheckInvariants();
        before = gScores;
    }
    qApp->removeEventFilter(this);
    form.reset();
    SetClock({});
    EXPECT_EQ(Sql("PRAGMA integrity_check; SELECT count(*) FROM HighScores"), "ok;10");
    std::printf("random play: %d events, seed %u, %d runs, %d cards finished\n", Events, Seed, runs, finished);
    EXPECT_GT(finished, 0);
}
}
