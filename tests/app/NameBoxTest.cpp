// The character rule of the two name boxes, txtName of the new-high-score window and the text
// of cboAddRemove in Change Players, for typed keys and for text an input method commits, with
// characters of every width: an emoji, a musical symbol and a rare ideograph are each one
// character of two 16-bit units.
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "DataFileFixture.h"
#include "frmHighScoreNotify.h"
#include "frmMain.h"
#include "frmPlayers.h"

namespace {
// The box's text and selection (in characters of plain ASCII), what arrives, and the text after.
struct Step {
    const char* before;
    int selStart, selLength;
    bool committed;   // by an input method, else one typed key
    const char* arrives;
    const char* after;
};
const Step Steps[] = {
    {"ABCDEFGHIJK", 11, 0, false, "😀", "ABCDEFGHIJK"},         // 11 characters: no emoji, however wide
    {"ABCDEFGHIJK", 11, 0, false, "l", "ABCDEFGHIJKl"},         // a small letter, the twelfth
    {"ABCDEFGHIJKL", 12, 0, false, "1", "ABCDEFGHIJKL"},        // no thirteenth
    {"ABCDEFGHIJKL", 12, 0, true, "𝄞", "ABCDEFGHIJKL"},
    {"ABCDEFGHIJKL", 11, 1, false, "😀", "ABCDEFGHIJK😀"},       // over a selection anything goes in whole
    {"ABCDEFGHIJK", 11, 0, true, "\U00020000", "ABCDEFGHIJK"},  // a rare ideograph from an input method
    {"ABCDEFGHIJ", 5, 0, true, "x😀yz", "ABCDExyFGHIJ"},        // each committed character in turn, up to 12
    {"AB", 2, 0, true, "é", "AB"},                              // a compose key's accented letter
    {"ABCDEFGHIJKL", 0, 2, true, " 𝄞Z", "𝄞ZCDEFGHIJKL"},        // no blank first, even over a selection
    {"ABC", 0, 3, false, " ", "ABC"},
    {"A B2", 4, 0, false, "!", "A B2"},
    {"A B2", 4, 0, false, "\b", "A B"},                         // Backspace passes
};

void Arrive(QWidget* box, const Step& step)
{
    const QString text = QString::fromUtf8(step.arrives);
    if (step.committed) {
        QInputMethodEvent input;
        input.setCommitString(text);
        QApplication::sendEvent(box, &input);
        return;
    }
    const Qt::Key key = text == "\b" ? Qt::Key_Backspace : Qt::Key_unknown;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(box, &press);
}
}

using NameBoxes = DataFileFixture;

TEST_F(NameBoxes, EveryCharacterMeetsTheRuleWhole)
{
    MakeFreshFile();
    frmMain form;
    frmPlayers players(&form, form.Logic());
    frmHighScoreNotify notify(nullptr);
    // The high-score box, and the player dialog's box, which hands what it gets to its text field.
    const std::pair<QWidget*, QLineEdit*> boxes[] = {{notify.txtName, notify.txtName},
                                                     {players.cboAddRemove, players.cboAddRemove->lineEdit()}};
    for (const auto& [box, field] : boxes) {
        for (const Step& step : Steps) {
            field->setText(step.before);
            field->setSelection(step.selStart, step.selLength);
            Arrive(box, step);
            EXPECT_EQ(field->text().toStdString(), step.after) << box->objectName().toStdString() << ": "
                                                                << step.before << " + " << step.arrives;
        }
    }
    // A pasted name is not filtered, but the high-score box keeps 12 characters, never half of one.
    notify.txtName->setText(QString::fromUtf8("ABCDEFGHIJK😀X"));
    EXPECT_EQ(notify.txtName->text().toStdString(), "ABCDEFGHIJK😀");
}
