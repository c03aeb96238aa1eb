// Random play: a seeded stream of user events against the whole program (the game table with
// every dialog) on a temporary data file. After every event the card and the table still obey
// the rules; at the end the data file is whole. ZARVO_RANDOM_EVENTS and ZARVO_RANDOM_SEED
// override the count and the seed, which a failure prints.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <random>

#include "DataFileFixture.h"
#include "GameDialogs.h"
#include "Scoring.h"
#include "frmPlayerResults.h"

namespace {
int EnvOr(const char* name, int fallback)
{
    const char* value = std::getenv(name);
    return value ? std::atoi(value) : fallback;
}

class RandomPlay : public DataFileFixture {
public:
    std::mt19937 random{unsigned(EnvOr("ZARVO_RANDOM_SEED", 20261123))};
    std::unique_ptr<frmMain> form;
    std::unique_ptr<GameDialogs> dialogs;
    OneBased<ScoreCard> before;   // the cards before the event
    int starts = 0, finished = 0, dialogsAnswered = 0;

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
        ++starts;
        before = gScores;
    }

    // Every dialog that comes up is answered at random: a few picks in its boxes, then one of its
    // buttons, or its window is closed.
    void Answer(QDialog* dialog)
    {
        ++dialogsAnswered;
        for (auto* box : dialog->findChildren<QComboBox*>())
            if (!box->isHidden() && Pick(3) == 0) {
                if (box->isEditable())
                    box->setEditText(Pick<QString>({"Ann", "Bob", " O'Neil \"Jr\" ", "", "ann", "< Player >"}));
                else if (box->count() > 0)
                    box->setCurrentIndex(Pick(box->count()));
            }
        for (auto* text : dialog->findChildren<QLineEdit*>())
            if (!text->isHidden() && !qobject_cast<QComboBox*>(text->parent()) && Pick(2) == 0)
                text->setText(Pick<QString>({"Eve", "", "x'; DROP TABLE HighScores;--"}));
        QList<QPushButton*> buttons;
        for (auto* button : dialog->findChildren<QPushButton*>())
            if (!button->isHidden() && button->isEnabled())
                buttons << button;
        if (buttons.isEmpty() || Pick(8) == 0)
            dialog->close();
        else
            buttons[Pick(int(buttons.size()))]->click();
        // A button that leaves the dialog open (Add, Remove) gets a further answer.
        if (dialog->isVisible())
            QTimer::singleShot(0, dialog, [this, dialog] { Answer(dialog); });
    }

    // Clicks and keys most of the time, aimed at the controls often enough that games end;
    // menu commands now and then; leaving the program and the help seldom.
    void Event()
    {
        QWidget* client = form->centralWidget();
        const int kind = Pick(1000);
        if (kind < 450) {
            QWidget* target = client;
            QPoint at(Pick(client->width()), Pick(client->height()));
            if (kind < 250) {
                const int c = Pick(CategoryCount + 11);
                target = c < CategoryCount        ? form->Cell(c + 1)
                         : c < CategoryCount + 5  ? form->imgDie[c - CategoryCount]
                         : c < CategoryCount + 10 ? form->lblDie[c - CategoryCount - 5]
                                                  : static_cast<QWidget*>(form->cmdRoll);
                at = target->rect().center();
            } else if (client->childAt(at)) {
                target = client->childAt(at);
                at = target->mapFrom(client, at);
            }
            QTest::mouseClick(target, Pick({Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                            Qt::MiddleButton}), {}, at);
        } else if (kind < 900) {
            QWidget* focus = QApplication::focusWidget() ? QApplication::focusWidget() : form.get();
            QTest::keyClick(focus, Pick({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return, Qt::Key_Left, Qt::Key_Right,
                                         Qt::Key_Up, Qt::Key_Down, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Escape,
                                         Qt::Key_A}));
        } else if (kind < 999) {
            QAction* item = Pick({form->mnuRememberPlayers, form->mnuUseKeyboard, form->mnuScoringPreview,
                                  form->mnuAnimation, form->mnuScoringSummary, form->mnuHighScores, form->mnuAbout});
            if (item->isEnabled())
                item->trigger();
        } else {
            Pick({form->mnuNewGame, form->mnuNewPlayers, form->mnuNewPlayers, form->mnuExit, form->mnuInstructions,
                  form->mnuNewGame})->trigger();
        }
        for (int ticks = Pick(60); ticks > 0 && form->Logic().mRollPhase != 0; --ticks)
            form->Logic().tmrRoll_Timer();
    }

    // The games played under a player's row, as the data file counts them; -1 without a row.
    int GamesPlayed(std::string key)
    {
        for (std::size_t at = key.find('\''); at != std::string::npos; at = key.find('\'', at + 2))
            key.insert(at, "'");
        const std::string n = Sql("SELECT GamesPlayed FROM Player WHERE PlayerName = '" + key + "'");
        return n.empty() ? -1 : std::stoi(n);
    }
    static std::string Key(int player)
    {
        return gPlayerNames[player][0] == '<' ? "< Player >" : gPlayerNames[player];
    }

    // Cells go from EmptyCell to a score once, the bonus only grows, the totals shown are the
    // card's, one phase at a time, boxes exactly on the open cells while choosing.
    void CheckInvariants()
    {
        bool fresh = true;
        for (int p = 1; p <= gScores.UBound(); ++p)
            for (int row = 1; row <= BonusCell; ++row)
                fresh = fresh && gScores[p][row] == (row == BonusCell ? 0 : EmptyCell);
        if (!fresh) {
            ASSERT_EQ(gScores.UBound(), before.UBound());
            for (int p = 1; p <= gScores.UBound(); ++p) {
                for (int row = 1; row <= CategoryCount; ++row) {
                    if (before[p][row] != EmptyCell) {
                        ASSERT_EQ(gScores[p][row], before[p][row]) << "player " << p << ", row " << row;
                    }
                }
                ASSERT_GE(gScores[p][BonusCell], before[p][BonusCell]) << "player " << p;
            }
        }
        const ScoreCard& card = gScores[gCurrentPlayer];
        int left = 0, right = 0;
        for (int row = 1; row <= CategoryCount; ++row)
            (row <= 6 ? left : right) += std::max<int>(card[row], 0);
        for (auto [label, value] : {std::pair{form->lblLeftTotal, left}, {form->lblRightTotal, right},
                                    {form->lblBonusTotal, int(card[BonusCell])},
                                    {form->lblTotal, left + right + card[BonusCell]}})
            ASSERT_EQ(label->Caption(), QString::number(value));
        const bool choosing = !form->lblSelectCategory->isHidden();
        ASSERT_LE(int(!form->lblPleaseRoll->isHidden()) + int(!form->lblKeep[0]->isHidden()) + int(choosing), 1);
        ASSERT_GE(form->Logic().mRollsDone, 0);
        ASSERT_LE(form->Logic().mRollsDone, 3);
        for (int c = 1; c <= CategoryCount; ++c)
            ASSERT_EQ(form->Cell(c)->BorderStyle() == 1, choosing && card[c] == EmptyCell) << "cell " << c;
    }
};

TEST_F(RandomPlay, TheRulesHoldWhateverThePlayersDo)
{
    const int events = EnvOr("ZARVO_RANDOM_EVENTS", 100000);
    const unsigned seed = unsigned(EnvOr("ZARVO_RANDOM_SEED", 20261123));
    MakeFreshFile();
    SetClock([] { return DateTime{2026, 11, 23, 20, 15, 0}; });   // the dice follow the seed alone
    const std::string highScores = Sql("SELECT count(*) FROM HighScores");
    SetMsgBoxHandler([this](const std::string&, int style, const std::string&) {
        return (style & vbYesNo) ? Pick({int(vbYes), int(vbNo)}) : int(vbOK);
    });
    struct DialogWatch : QObject {
        RandomPlay* play;
        int results = 0;   // Results windows shown: one for each card that filled
        bool eventFilter(QObject* object, QEvent* event) override
        {
            auto* dialog = qobject_cast<QDialog*>(object);
            if (dialog && event->type() == QEvent::Show && dialog->isModal()) {
                results += dynamic_cast<frmPlayerResults*>(dialog) != nullptr;
                QTimer::singleShot(0, dialog, [this, dialog] { play->Answer(dialog); });
            }
            return false;
        }
    } watch;
    watch.play = this;
    qApp->installEventFilter(&watch);
    Start();
    for (int n = 0; n < events && !HasFatalFailure(); ++n) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", event " + std::to_string(n));
        // A card with one open cell left may fill now: its row is to count the game once.
        const ScoreCard& card = gScores[gCurrentPlayer];
        const bool lastCell = !form->lblSelectCategory->isHidden()
            && std::count(card.rows.begin() + 1, card.rows.begin() + BonusCell, EmptyCell) == 1;
        const std::string key = Key(gCurrentPlayer);
        const int gamesBefore = lastCell ? GamesPlayed(key) : -1, results = watch.results;
        Event();
        if (watch.results != results) {
            ++finished;
            ASSERT_TRUE(lastCell && watch.results == results + 1);
            if (gamesBefore >= 0) {
                ASSERT_EQ(GamesPlayed(key), gamesBefore + 1) << key;
            }
        }
        if (form->isHidden()) {   // Exit, or No to another game: the program starts again
            Start();
            continue;
        }
        CheckInvariants();
        before = gScores;
    }
    qApp->removeEventFilter(&watch);
    form.reset();
    SetClock({});
    EXPECT_EQ(Sql("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(Sql("SELECT count(*) FROM HighScores"), highScores);
    std::printf("random play: %d events, seed %u, %d runs, %d cards finished, %d dialogs answered\n", events,
                seed, starts, finished, dialogsAnswered);
    EXPECT_GT(finished, 0);
}
}
