// The menu bar: captions with their access letters, shortcuts, check marks, and what the
// entries of this window do.
#include <QAction>
#include <QMenu>
#include <QCoreApplication>
#include <QPushButton>
#include <QTimer>

#include "WindowFixture.h"

using Menu = WindowTest;

// Captions, shortcuts and the check marks as the window opens without a data file.
TEST_F(Menu, CaptionsShortcutsAndMarks)
{
    struct Item { QAction* action; const char* caption; QKeySequence shortcut; bool checkable, checked; };
    const Item items[] = {
        {form->mnuNewGame, "&New Game", QKeySequence(Qt::Key_F3), false, false},
        {form->mnuNewPlayers, "Change &Players...", QKeySequence(), false, false},
        {form->mnuExit, "E&xit", QKeySequence(), false, false},
        {form->mnuRememberPlayers, "&Remember Players", QKeySequence(), true, false},
        {form->mnuUseKeyboard, "Use &Keyboard", QKeySequence("Ctrl+K"), true, false},
        {form->mnuScoringPreview, "Show &Scoring Preview", QKeySequence("Ctrl+P"), true, false},
        {form->mnuAnimation, "&Animate Rolling", QKeySequence("Ctrl+A"), true, true},
        {form->mnuScoringSummary, "Scoring Su&mmary...", QKeySequence(), false, false},
        {form->mnuHighScores, "&High Scores...", QKeySequence(), false, false},
        {form->mnuInstructions, "&Contents...", QKeySequence(Qt::Key_F1), false, false},
        {form->mnuAbout, "&About...", QKeySequence(), false, false},
    };
    for (const Item& item : items) {
        SCOPED_TRACE(item.caption);
        EXPECT_EQ(item.action->text(), item.caption);
        EXPECT_EQ(item.action->shortcut(), item.shortcut);
        EXPECT_EQ(item.action->isCheckable(), item.checkable);
        EXPECT_EQ(item.action->isChecked(), item.checked);
    }
    EXPECT_EQ(form->mnuFile->title(), "&File");
    EXPECT_EQ(form->mnuOptions->title(), "&Options");
    EXPECT_EQ(form->mnuHelp->title(), "&Help");
    EXPECT_FALSE(form->mnuScoringSummary->isEnabled()) << "one player: no summary";
}

// A shortcut key runs its entry, and an option's click turns its mark exactly once.
TEST_F(Menu, ShortcutsTurnMarksOnce)
{
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QTest::keyClick(form.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(form->mnuScoringPreview->isChecked());
    QTest::keyClick(form.get(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_TRUE(form->mnuUseKeyboard->isChecked());
    QTest::keyClick(form.get(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(form->mnuAnimation->isChecked());
    form->mnuRememberPlayers->trigger();
    EXPECT_TRUE(form->mnuRememberPlayers->isChecked());
    form->mnuScoringPreview->trigger();
    EXPECT_FALSE(form->mnuScoringPreview->isChecked());
}

// New Game (F3) in the middle of a roll stops it: the dice lie on the pile, player 1 is asked
// to roll, and no later tick finishes the dropped roll.
TEST_F(Menu, NewGameDuringARoll)
{
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QTest::mouseClick(form->cmdRoll, Qt::LeftButton);
    for (int tick = 0; tick < 25; ++tick)
        logic().tmrRoll_Timer();   // into the spread
    QTest::keyClick(form.get(), Qt::Key_F3);
    EXPECT_EQ(logic().mRollPhase, 0);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(form->DieLeft(i), 1800);
        EXPECT_EQ(form->DieTop(i), RollRow);
    }
    logic().tmrRoll_Timer();
    EXPECT_EQ(logic().mRollsDone, 0);
    EXPECT_EQ(form->cmdRoll->text(), "Roll");
    EXPECT_FALSE(form->lblPleaseRoll->isHidden());
}

// The real timer drives a roll started by cmdRoll and sleeps again when the dice rest; here it
// runs with no delay between ticks, so nothing waits.
TEST_F(Menu, TheTimerRunsOnlyDuringARoll)
{
    EXPECT_FALSE(form->tmrRoll->isActive());
    form->tmrRoll->setInterval(0);
    QTest::mouseClick(form->cmdRoll, Qt::LeftButton);
    EXPECT_TRUE(form->tmrRoll->isActive());
    for (int events = 0; events < 10000 && form->tmrRoll->isActive(); ++events)
        QCoreApplication::processEvents();
    EXPECT_FALSE(form->tmrRoll->isActive());
    EXPECT_EQ(logic().mRollsDone, 1);
    EXPECT_EQ(form->cmdRoll->text(), "Accept");
}
