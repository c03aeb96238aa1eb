// The game by key events on the real window: the window sees Enter and the arrow keys before
// any control, whichever has the focus, and a whole game can be played with them.
#include <QApplication>
#include <QPushButton>

#include "../common/ModalAnswer.h"
#include "QtServices.h"
#include "Scoring.h"
#include "WindowFixture.h"

class Keyboard : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    // A key as the user types it: to the widget that has the focus.
    void Key(Qt::Key key)
    {
        QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : form.get();
        QTest::keyClick(target, key);
    }
    void KeyOn(QWidget* target, Qt::Key key) { QTest::keyClick(target, key); }
    void RollAndAccept()
    {
        Key(Qt::Key_Return);
        FinishRoll();
        answers.push_back(vbYes);
        Key(Qt::Key_Return);
    }
};

// Enter rolls with the focus on cmdRoll or elsewhere, and the button does not click a second
// time: with the caption "Accept" exactly one question comes.
TEST_F(Keyboard, EnterRollsOnceWhereverTheFocusIs)
{
    form->cmdRoll->setFocus();
    KeyOn(form->cmdRoll, Qt::Key_Return);
    EXPECT_EQ(logic().mRollPhase, 2);
    EXPECT_EQ(FinishRoll(), 45);
    EXPECT_EQ(form->cmdRoll->text(), "Accept");

    form->cmdRoll->setFocus();
    answers = {vbNo};
    KeyOn(form->cmdRoll, Qt::Key_Return);
    EXPECT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0].text, "No dice selected.\r\nAre you satisfied with the roll?");

    form->SetDieTop(4, RollRow);
    logic().UpdateRollCaption();
    KeyOn(form->lblDie[0], Qt::Key_Return);   // focus elsewhere
    EXPECT_EQ(logic().mRollPhase, 1);
    EXPECT_EQ(FinishRoll(), 37 + 3);
    // Other keys pass untouched to the controls.
    form->cmdRoll->setFocus();
    answers = {vbNo};
    KeyOn(form->cmdRoll, Qt::Key_Space);
    EXPECT_EQ(logic().mRollPhase, 0) << "Space clicks the button, which asks";
    EXPECT_EQ(asked.size(), 2u);
}

// In the choosing phase Enter does nothing with the option off (and brings no offer); with it
// on, it scores the boxed cell under the cursor, and nothing on a filled one.
TEST_F(Keyboard, EnterInTheChoosingPhase)
{
    RollAndAccept();
    ASSERT_FALSE(form->lblSelectCategory->isHidden());
    Key(Qt::Key_Return);
    EXPECT_EQ(asked.size(), 1u) << "no offer, no question";
    EXPECT_FALSE(form->lblSelectCategory->isHidden());

    form->mnuUseKeyboard->trigger();
    gScores[1][CatOnes] = 2;   // make the cell under the cursor a filled, flat one
    logic().UnmarkCategory(CatOnes);
    form->SetCellCaption(CatOnes, "2 ");
    Key(Qt::Key_Return);
    EXPECT_FALSE(form->lblSelectCategory->isHidden()) << "a filled cell is no choice";
    Key(Qt::Key_Right);   // to Three of a Kind
    EXPECT_EQ(logic().mKeyCursor, CatThreeOfAKind);
    answers = {vbYes};
    Key(Qt::Key_Return);
    EXPECT_NE(gScores[1][CatThreeOfAKind], EmptyCell);
    EXPECT_EQ(logic().mKeyCursor, 2);
    EXPECT_FALSE(form->lblPleaseRoll->isHidden());
}

// A whole one-player game from key events only: the offer switches the mode on, Enter rolls
// and accepts, the arrows bring the cursor to the turn's own category, Enter scores it.
TEST_F(Keyboard, WholeGameByKeys)
{
    answers = {vbYes};
    Key(Qt::Key_Down);   // the offer
    ASSERT_TRUE(form->mnuUseKeyboard->isChecked());
    for (int category = 1; category <= 13; ++category) {
        SCOPED_TRACE("category " + std::to_string(category));
        RollAndAccept();
        ASSERT_EQ(logic().mKeyCursor, 1);
        if (category >= 7)
            Key(Qt::Key_Right);
        for (int step = category >= 7 ? 7 : 1; step < category; ++step)
            Key(Qt::Key_Down);
        ASSERT_EQ(logic().mKeyCursor, category);
        const Evaluation expected = logic().Evaluate(category);
        answers.push_back(vbYes);   // a zero question, if one comes
        Key(Qt::Key_Return);
        answers.clear();
        EXPECT_EQ(gScores[1][category], expected.score);
    }
    EXPECT_TRUE(PlayerCardFull(gScores[1]));
    EXPECT_EQ(form->lblTotal->Caption(), QString::number(PlayerTotal(1)));
    // The game is over: no key does anything now.
    Key(Qt::Key_Return);
    Key(Qt::Key_Down);
    EXPECT_EQ(logic().mRollPhase, 0);
    EXPECT_TRUE(form->lblPleaseRoll->isHidden());
}

// A roll that ends behind the keyboard offer leaves the offer in front: a real Return, sent to
// whatever window has the focus, answers the box with its default Yes.
TEST_F(Keyboard, RollEndingBehindTheOfferLeavesItTheKeys)
{
    SetMsgBoxHandler(QtMsgBox);
    Key(Qt::Key_Return);
    ASSERT_EQ(logic().mRollPhase, 2);
    bool answered = false;
    AnswerNextModal([&](QWidget* box) {
        FinishRoll();
        QCoreApplication::processEvents();   // the window system's answer to the roll's end
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Return);
        answered = box->isHidden();
        box->close();
    });
    Key(Qt::Key_Down);   // the first arrow of the run brings the offer
    EXPECT_TRUE(answered);
    EXPECT_TRUE(form->mnuUseKeyboard->isChecked());
}
