// What a screen reader hears of the game table, recorded as Qt's AT-SPI bridge would pass it on,
// and the dice as a high-density screen shows them.
#include <QAccessible>
#include <regex>
#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "DieFaces.h"
#include "WindowFixture.h"

namespace {
QStringList g_heard;   // the name of each focus, "+" or "-" for a check mark set or cleared
int g_said = 0;        // every focus, change of name or change of state: what a screen reader may speak of

QString Names(QAccessibleInterface* node)   // the shown objects' names, in the order of the tree
{
    QString names = node->state().invisible ? QString() : node->text(QAccessible::Name) + "|";
    for (int i = 0; !names.isEmpty() && i < node->childCount(); ++i)
        names += Names(node->child(i));
    return names;
}
}

class ScreenReader : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        previous = QAccessible::installUpdateHandler([](QAccessibleEvent* e) {
            g_said += e->type() == QAccessible::Focus || e->type() == QAccessible::NameChanged || e->type() == QAccessible::StateChanged;
            if (e->type() == QAccessible::Focus && !e->accessibleInterface()->text(QAccessible::Name).isEmpty())
                g_heard << e->accessibleInterface()->text(QAccessible::Name);
            else if (e->type() == QAccessible::StateChanged && static_cast<QAccessibleStateChangeEvent*>(e)->changedStates().checked)
                g_heard << (e->accessibleInterface()->state().checked ? "+" : "-");
        });
    }
    void TearDown() override
    {
        QAccessible::installUpdateHandler(previous);
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(false);
        WindowTest::TearDown();
    }
    // What the keys bring, once the event loop has passed it on; the names said joined by " / ".
    std::string Hear(std::initializer_list<Qt::Key> keys)
    {
        g_heard.clear(), g_said = 0;
        for (Qt::Key key : keys)
            QTest::keyClick(form.get(), key), QCoreApplication::processEvents();
        return g_heard.join(" / ").toStdString();
    }
    // Enter, and the roll tick by tick with the event loop between: what is said, the faces
    // rolled written "<faces>", the face of the die under the cursor "<face>".
    std::string Roll()
    {
        Hear({Qt::Key_Return});
        while (logic().mRollPhase)
            logic().tmrRoll_Timer(), QCoreApplication::processEvents();
        QStringList faces;
        for (int d : logic().mDice)
            faces << QString::number(d);
        const char* words[] = {"", "one", "two", "three", "four", "five", "six"};
        return g_heard.join(" / ").replace(faces.join(", "), "<faces>").replace(words[logic().mDice[logic().mKeyCursor]], "<face>")
            .toStdString();
    }

    QAccessible::UpdateHandler previous = nullptr;
};

// The cursor is the focus, moved as the keys move it; a roll says "Rolling" once and, when it
// ends, the five faces and the rolls left with the die under the cursor, a die sent to the
// roll row loses its check mark; the choosing opens on Ones with the prompt and what each cell
// would score, a bonus said apart; a score says its points and whose turn it is. Tab reaches
// the totals. Nothing else is said of a roll than its start and its end.
TEST_F(ScreenReader, FollowsTheCursorAndTellsEachRollAndScore)
{
    ASSERT_TRUE(Shown());
    gScores[1][CatZarvo] = 50;
    logic().RefreshScoreboard();
    form->mnuUseKeyboard->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(form.get())->role(), QAccessible::Window);   // a frame with a title
    const QString tree = Names(QAccessible::queryAccessibleInterface(form.get()));   // the card's rows read with their cells
    EXPECT_TRUE(tree.contains("Player 1's turn. Please roll.|Die 1: on the pile|") && tree.contains("|Ones|Twos|Threes|")
                && tree.contains("|Ones: open|Twos: open|") && tree.contains("|Zarvo: 50|Chance: open|Left: 0|Right: 50|Bonus: 0|Total: 50|"))
        << tree.toStdString();

    EXPECT_EQ(Roll(), "Rolling / Rolled <faces>. Two rolls left. Keep die 3: <face>");
    EXPECT_LE(g_said, 14) << "a name, a state or a focus for each step of the dice?";
    EXPECT_EQ(std::regex_replace(Hear({Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Down}), std::regex(": \\w+"), ""),
              "Keep die 4 / Keep die 5 / Keep die 1 / Keep die 5 / -");
    EXPECT_EQ(Roll(), "Rolling / + / Rolled <faces>. One roll left. Keep die 5: <face>") << "back in the keep row, checked again";

    logic().mDice = {4, 4, 4, 4, 4};   // as if drawn: a second Zarvo
    answers = {vbYes};
    EXPECT_EQ(Hear({Qt::Key_Return}), "Please select a scoring category. Ones: open, would score nothing");
    EXPECT_EQ(Hear({Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Up, Qt::Key_Left, Qt::Key_Up}),
              "Sixes: open, would score nothing / Zarvo: 50 / Chance: open, would score 20 and a bonus of 100 / "
              "Chance: open, would score 20 and a bonus of 100 / Zarvo: 50 / Large Straight: open, would score nothing / "
              "Fives: open, would score nothing / Fours: open, would score 20 and a bonus of 100");
    EXPECT_EQ(Hear({Qt::Key_Return}), "Fours: 20 and a bonus of 100 written. Player 1's turn. Please roll.");
    QTest::keyClick(form.get(), Qt::Key_Tab);
    QTest::keyClick(form.get(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), form->lblLeftTotal);
    EXPECT_EQ(form->lblBonusTotal->accessibleName(), "Bonus: 100");
}

// The window keeps its layout at any density: at a device-pixel ratio of 2 (CTest runs this
// test a second time with QT_SCALE_FACTOR=2) it has twice the pixels of its twip size, and the
// dice are drawn for the screen's density, not scaled from pictures of another.
TEST_F(WindowTest, DiceAreSharpAtTheScreensDensity)
{
    const qreal ratio = form->devicePixelRatioF();
    EXPECT_EQ(form->Client()->grab().size(), QSize(4575 / 15, 4560 / 15) * ratio);
    form->mnuUseKeyboard->trigger();   // after a roll, the cursor's look too, drawn when first needed
    logic().cmdRoll_Click();
    FinishRoll();
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(form->imgDie[i]->Picture().toImage(),
                  DrawDieFace(form->DieFace(i), i == form->Logic().mKeyCursor ? ImageList::ilsDieInv : ImageList::ilsDie, ratio)) << i;
}
