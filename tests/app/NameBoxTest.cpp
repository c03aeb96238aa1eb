// The character rule of the two name boxes, txtName of the new-high-score window and the text
// of cboAddRemove in Change Players, for typed keys and for text an input method commits, by the
// steps of NameBoxes.txt.
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "DataFileFixture.h"
#include "TableFile.h"
#include "frmHighScoreNotify.h"
#include "frmMain.h"
#include "frmPlayers.h"

namespace {
// Sends one step's text to the box, as a typed key or as an input method's commit.
void Arrive(QWidget* box, const QString& text, bool committed)
{
    if (committed) {
        QInputMethodEvent input;
        input.setCommitString(text);
        QApplication::sendEvent(box, &input);
        return;
    }
    QKeyEvent press(QEvent::KeyPress, text == "BS" ? Qt::Key_Backspace : Qt::Key_unknown, Qt::NoModifier,
                    text == "BS" ? "\b" : text);
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
        for (const QStringList& step : ReadTable(ZARVO_TEST_DATA "/app/NameBoxes.txt")) {
            field->setText(step[0]);
            field->setSelection(step[1].toInt(), step[2].toInt());
            Arrive(box, step[4], step[3] == "committed");
            EXPECT_EQ(field->text().toStdString(), step[5].toStdString()) << box->objectName().toStdString() << ": " << step.join(' ').toStdString();
        }
    }
    // A pasted name is not filtered, but the high-score box keeps 12 characters, never half of one.
    notify.txtName->setText(QString::fromUtf8("ABCDEFGHIJK😀X"));
    EXPECT_EQ(notify.txtName->text().toStdString(), "ABCDEFGHIJK😀");
}
