// The game table window itself: its fixed size, its fonts and longest captions, and how
// clicks, keys, menu commands and the timer reach the game; start-up and exit.
#include <QFontInfo>
#include <QPushButton>

#include "../common/ModalAnswer.h"
#include "Look.h"
#include "QtServices.h"
#include "WindowFixture.h"

using Window = WindowTest;

// The size is fixed, with no maximize box; on the pile die 2 lies on top showing a six. Without a
// data file (the smoke test sees that none is made) the default player and options play. Every
// control's rectangle and caption is the layout guard's.
TEST_F(Window, FixedSizeAndTheDefaults)
{
    EXPECT_FALSE(form->windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_EQ(form->minimumSize(), form->maximumSize());
    EXPECT_EQ(form->imgDie[2]->Picture().toImage(), form->ilsDie[6].toImage());
    EXPECT_EQ(form->imgDie[2]->parentWidget()->childAt(form->imgDie[2]->geometry().center()), form->imgDie[2]);
    EXPECT_EQ(std::tuple(form->mnuScoringSummary->isEnabled(), form->mnuRememberPlayers->isChecked(), form->mnuUseKeyboard->isChecked(),
                         form->mnuScoringPreview->isChecked(), form->mnuAnimation->isChecked()),
              std::tuple(false, false, false, false, true));
}

// The chosen font is really there, and the longest captions the game can give fit: the prompt
// with the longest name, the largest total, a boxed three-digit cell, the frame with the longest
// name and "Accept".
TEST_F(Window, NoCaptionIsClipped)
{
    EXPECT_EQ(QFontInfo(form->lblCategoryNames[0]->font()).family(), Look::FontFamily);
    auto fits = [](const Label* label, const QString& text) {
        return QFontMetrics(label->font()).horizontalAdvance(text) <= label->width() - 2 * label->BorderStyle();
    };
    EXPECT_TRUE(fits(form->lblPleaseRoll, "WWWWWWWWWWWW's turn. Please roll."));
    EXPECT_TRUE(fits(form->lblTotal, "1270"));
    form->lblRight[6]->SetBorderStyle(1);
    EXPECT_TRUE(fits(form->lblRight[6], "150 "));
    EXPECT_LE(QFontMetrics(form->fraScoreboard->font()).horizontalAdvance("WWWWWWWWWWWW's Scoreboard"),
              form->fraScoreboard->width() - 16);
    EXPECT_LE(QFontMetrics(form->cmdRoll->font()).horizontalAdvance("Accept"), form->cmdRoll->width() - 8);
}

// Enter rolls whichever control has the focus, and the focused button does not click a second
// time: on "Accept" one question comes; other keys pass to the controls. Between rolls a click
// in a die's column moves it and turns the caption; the right button rolls, or asks on
// "Accept", and moves no die.
TEST_F(Window, ClicksAndKeysReachTheGame)
{
    ASSERT_TRUE(Shown());
    form->cmdRoll->setFocus();
    QTest::keyClick(form->cmdRoll, Qt::Key_Return);
    EXPECT_EQ(FinishRoll(), 45);
    answers = {vbNo, vbNo, vbNo};
    QTest::keyClick(form->cmdRoll, Qt::Key_Return);
    QTest::keyClick(form->cmdRoll, Qt::Key_Space);
    QTest::mouseClick(form->imgDie[3], Qt::RightButton);
    EXPECT_EQ(asked.size(), 3u);
    QTest::mouseClick(form->lblDie[1], Qt::LeftButton);   // the column, between the rows
    EXPECT_EQ(std::pair(form->DieTop(1), form->cmdRoll->text()), std::pair(RollRow, QString("Roll")));
    QTest::mouseClick(form->imgDie[1], Qt::LeftButton);   // on the die itself, now in RollRow
    EXPECT_EQ(std::pair(form->DieTop(1), form->cmdRoll->text()), std::pair(KeepRow, QString("Accept")));
    QTest::mouseClick(form->lblDie[3], Qt::LeftButton);
    QTest::mouseClick(form->imgDie[0], Qt::RightButton);
    EXPECT_EQ(std::pair(form->DieTop(0), logic().mRollPhase), std::pair(KeepRow, 1));
}

// A roll that ends behind the keyboard offer leaves the offer in front: a real Return, sent to
// whatever window has the focus, answers the box with its default Yes.
TEST_F(Window, RollEndingBehindTheOfferLeavesItTheKeys)
{
    ASSERT_TRUE(Shown());
    SetMsgBoxHandler(QtMsgBox);
    QTest::keyClick(form.get(), Qt::Key_Return);
    bool answered = false;
    AnswerNextModal([&](QWidget* box) {
        FinishRoll();
        QCoreApplication::processEvents();   // the window system's answer to the roll's end
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Return);
        answered = box->isHidden();
        box->close();
    });
    QTest::keyClick(form.get(), Qt::Key_Down);   // the first arrow of the run brings the offer
    EXPECT_TRUE(answered);
    EXPECT_TRUE(form->mnuUseKeyboard->isChecked());
}

// A shortcut turns its option's mark exactly once; F3 in the middle of a roll stops it for good.
TEST_F(Window, ShortcutsAndNewGameDuringARoll)
{
    ASSERT_TRUE(Shown());
    for (Qt::Key key : {Qt::Key_P, Qt::Key_K, Qt::Key_A})
        QTest::keyClick(form.get(), key, Qt::ControlModifier);
    EXPECT_EQ(std::tuple(form->mnuScoringPreview->isChecked(), form->mnuUseKeyboard->isChecked(),
                         form->mnuAnimation->isChecked()), std::tuple(true, true, false));
    form->mnuAnimation->trigger();
    QTest::mouseClick(form->cmdRoll, Qt::LeftButton);
    for (int tick = 0; tick < 25; ++tick)
        logic().tmrRoll_Timer();   // into the spread
    QTest::keyClick(form.get(), Qt::Key_F3);
    EXPECT_EQ(std::tuple(logic().mRollPhase, form->lblPleaseRoll->isHidden()), std::tuple(0, false));
}

// The real timer drives a roll started by cmdRoll and sleeps again when the dice rest; here it
// runs with no delay between ticks, so nothing waits.
TEST_F(Window, TheTimerRunsOnlyDuringARoll)
{
    EXPECT_FALSE(form->tmrRoll->isActive());
    form->tmrRoll->setInterval(0);
    QTest::mouseClick(form->cmdRoll, Qt::LeftButton);
    EXPECT_TRUE(form->tmrRoll->isActive());
    for (int events = 0; events < 10000 && form->tmrRoll->isActive(); ++events)
        QCoreApplication::processEvents();
    EXPECT_FALSE(form->tmrRoll->isActive());
    EXPECT_EQ(form->cmdRoll->text(), "Accept");
}
