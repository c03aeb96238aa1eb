// The game table window itself: its fixed size, font and longest captions, and how clicks, keys,
// menu commands and the timer reach the game.
#include <QFontInfo>
#include <QPushButton>

#include "../common/ModalAnswer.h"
#include "Look.h"
#include "QtServices.h"
#include "WindowFixture.h"

using Window = WindowTest;

// The size is fixed, with no maximize box; on the pile die 2 lies on top showing a six. Without a
// data file the default options play. The chosen font is really there, and the longest captions
// the game can give fit: the prompt and the frame with a twelve-letter name, the largest total,
// a boxed three-digit cell and "Accept". Every control's rectangle and caption is the layout guard's.
TEST_F(Window, FixedSizeDefaultsAndLongestCaptions)
{
    EXPECT_FALSE(form->windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_EQ(form->minimumSize(), form->maximumSize());
    EXPECT_EQ(form->imgDie[2]->Picture().toImage(), form->ilsDie[6].toImage());
    EXPECT_EQ(form->imgDie[2]->parentWidget()->childAt(form->imgDie[2]->geometry().center()), form->imgDie[2]);
    EXPECT_EQ(std::tuple(form->mnuScoringSummary->isEnabled(), form->mnuRememberPlayers->isChecked(), form->mnuUseKeyboard->isChecked(),
                         form->mnuScoringPreview->isChecked(), form->mnuAnimation->isChecked()),
              std::tuple(false, false, false, false, true));
    EXPECT_EQ(QFontInfo(form->lblCategoryNames[0]->font()).family(), Look::FontFamily);
    form->lblRight[6]->SetBorderStyle(1);
    for (auto [w, text, margin] : {std::tuple<QWidget*, const char*, int>{form->lblPleaseRoll, "WWWWWWWWWWWW's turn. Please roll.", 0},
                                   {form->lblTotal, "1270", 0}, {form->lblRight[6], "150 ", 2},
                                   {form->fraScoreboard, "WWWWWWWWWWWW's Scoreboard", 16}, {form->cmdRoll, "Accept", 8}})
        EXPECT_LE(QFontMetrics(w->font()).horizontalAdvance(text), w->width() - margin) << text;
}

// Enter rolls whichever control has the focus, and the focused button does not click a second
// time: on "Accept" one question comes. Between rolls a click in a die's column moves it and
// turns the caption; the right button rolls, or asks on "Accept", and moves no die. A shortcut
// turns its option's mark exactly once; F3 in the middle of a roll stops it for good. The real
// timer, here without delay, drives a roll started by cmdRoll and sleeps when the dice rest.
TEST_F(Window, ClicksKeysShortcutsAndTheTimerReachTheGame)
{
    ASSERT_TRUE(Shown());
    form->cmdRoll->setFocus();
    QTest::keyClick(form->cmdRoll, Qt::Key_Return);
    EXPECT_EQ(FinishRoll(), 45);
    answers = {vbNo, vbNo, vbNo};
    QTest::keyClick(form->cmdRoll, Qt::Key_Return);
    QTest::keyClick(form->cmdRoll, Qt::Key_Space);
    QTest::mouseClick(form->imgDie[3], Qt::RightButton);
    EXPECT_EQ(asked, 3);
    QTest::mouseClick(form->lblDie[1], Qt::LeftButton);   // the column, between the rows
    EXPECT_EQ(std::pair(form->DieTop(1), form->cmdRoll->text()), std::pair(RollRow, QString("Roll")));
    QTest::mouseClick(form->imgDie[1], Qt::LeftButton);   // on the die itself, now in RollRow
    EXPECT_EQ(std::pair(form->DieTop(1), form->cmdRoll->text()), std::pair(KeepRow, QString("Accept")));
    QTest::mouseClick(form->lblDie[3], Qt::LeftButton);
    QTest::mouseClick(form->imgDie[0], Qt::RightButton);
    EXPECT_EQ(std::pair(form->DieTop(0), logic().mRollPhase), std::pair(KeepRow, 1));

    for (Qt::Key key : {Qt::Key_P, Qt::Key_K, Qt::Key_A})
        QTest::keyClick(form.get(), key, Qt::ControlModifier);
    EXPECT_EQ(std::tuple(form->mnuScoringPreview->isChecked(), form->mnuUseKeyboard->isChecked(),
                         form->mnuAnimation->isChecked()), std::tuple(true, true, false));
    QTest::keyClick(form.get(), Qt::Key_F3);
    EXPECT_EQ(std::tuple(logic().mRollPhase, form->lblPleaseRoll->isHidden()), std::tuple(0, false));
    form->mnuAnimation->trigger();
    form->tmrRoll->setInterval(0);
    QTest::mouseClick(form->cmdRoll, Qt::LeftButton);
    EXPECT_TRUE(form->tmrRoll->isActive());
    for (int events = 0; events < 10000 && form->tmrRoll->isActive(); ++events)
        QCoreApplication::processEvents();
    EXPECT_EQ(std::pair(form->tmrRoll->isActive(), form->cmdRoll->text()), std::pair(false, QString("Accept")));
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
