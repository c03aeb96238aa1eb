// What a screen reader finds in the main window, walked through Qt's accessibility tree as an
// AT-SPI bridge does, and the dice as a high-density screen shows them.
#include <QAccessible>
#include <QPushButton>
#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "WindowFixture.h"

namespace {
QStringList g_events;   // the names announced as changed

// The names of the shown objects, in the order of the tree.
QStringList Names(QAccessibleInterface* node)
{
    if (node->state().invisible)
        return {};
    QStringList names{node->text(QAccessible::Name)};
    for (int i = 0; i < node->childCount(); ++i)
        names += Names(node->child(i));
    return names;
}
}

class Accessibility : public WindowTest {
protected:
    QStringList Tree() { return Names(QAccessible::queryAccessibleInterface(form.get())); }
};

// The categories, the cells with their values, the totals, the turn prompt and the five dice
// with face and row can all be read; a changed caption is announced.
TEST_F(Accessibility, TheCardAndTheDiceCanBeRead)
{
    const char* const faces[] = {"", "one", "two", "three", "four", "five", "six"};
    form->show();
    EXPECT_TRUE(Tree().join('|').contains(
        "Player 1's turn. Please roll.|Die 1: on the pile|Die 2: on the pile|Die 4: on the pile|Die 5: on the pile|"
        "Die 3: six, to roll|Player 1's Scoreboard|Ones|Twos|Threes|Fours|Fives|Sixes|Three of a Kind|Four of a Kind|"
        "Full House|Small Straight|Large Straight|Zarvo|Chance|Left|Right|Bonus|Total|Ones: open|Twos: open|"
        "Threes: open|Fours: open|Fives: open|Sixes: open|Three of a Kind: open|Four of a Kind: open|"
        "Full House: open|Small Straight: open|Large Straight: open|Zarvo: open|Chance: open|Left: 0|Right: 0|"
        "Bonus: 0|Total: 0")) << Tree().join('|').toStdString();
    QTest::mouseClick(form->cmdRoll, Qt::LeftButton);
    FinishRoll();
    int sum = 0;
    for (int i = 0; i < 5; ++i) {
        sum += logic().mDice[i];
        EXPECT_TRUE(Tree().contains(QString("Die %1: %2, kept").arg(i + 1).arg(faces[logic().mDice[i]]))) << i;
    }
    answers = {vbYes};
    QTest::mouseClick(form->cmdRoll, Qt::LeftButton);   // accept
    EXPECT_TRUE(Tree().contains("Chance: open, would score")) << "every roll scores in Chance";
    QTest::mouseClick(form->lblRight[7], Qt::LeftButton);
    EXPECT_TRUE(Tree().join('|').contains(QString("Chance: %1|Left: 0|Right: %1|Bonus: 0|Total: %1").arg(sum)));

    // As when a screen reader listens: the platform's bridge is on.
    QPlatformAccessibility* bridge = QGuiApplicationPrivate::platformIntegration()->accessibility();
    bridge->setActive(true);
    const auto previous = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        if (event->type() == QAccessible::NameChanged)
            g_events << event->accessibleInterface()->text(QAccessible::Name);
    });
    gPlayerNames.ReDim(2, "Ann");
    logic().StartNewGame();
    QAccessible::installUpdateHandler(previous);
    bridge->setActive(false);
    EXPECT_TRUE(g_events.contains("Ann's turn. Please roll."));
    EXPECT_TRUE(g_events.contains("Ann's Scoreboard"));
}

// The window keeps its layout at any density: at a device-pixel ratio of 2 (CTest runs this
// test a second time with QT_SCALE_FACTOR=2) it has twice the pixels of its twip size, and the
// dice are drawn at that resolution: every pixel is one of the four colours of a face, none an
// in-between grey of a scaled picture.
TEST_F(Accessibility, DiceAreSharpAtTheScreensDensity)
{
    const qreal ratio = form->devicePixelRatioF();
    EXPECT_EQ(form->centralWidget()->size(), QSize(4575 / 15, 4560 / 15));
    EXPECT_EQ(form->centralWidget()->grab().size(), QSize(305, 304) * ratio);
    const QList<QRgb> faceColours{qRgb(255, 255, 255), qRgb(0, 0, 0), qRgb(192, 192, 192), qRgb(128, 128, 128)};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(form->imgDie[i]->Picture().devicePixelRatio(), ratio) << "drawn for this screen";
        const QImage die = form->imgDie[i]->grab().toImage().convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(die.size(), QSize(41, 41) * ratio);
        for (int y = 0; y < die.height(); ++y)
            for (int x = 0; x < die.width(); ++x)
                ASSERT_TRUE(faceColours.contains(die.pixel(x, y) | 0xff000000u)) << i << ": " << x << "," << y;
    }
}
