#include "frmHighScoreNotify.h"

#include <QLineEdit>
#include <QPushButton>

#include "ControlNames.h"
#include "Label.h"
#include "Look.h"
#include "NameKeyRule.h"
#include "QtServices.h"
#include "TypedKeyFilter.h"
#include "modGlobalVars.h"

frmHighScoreNotify::frmHighScoreNotify(QWidget* owner)
    : DialogWindow(owner, tr("Zarvo - High Score"), 2760, 1965, TitleBar::NoCloseBox, false)
{
    // Created first, so first in the tab order: the window opens on OK, and Enter keeps the
    // offered name.
    cmdOK = new QPushButton(tr("OK"), this);
    Place(cmdOK, {1440, 1485, 1215, 375});
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });

    lblCongrats[0] = NewLabel(this, {120, 120, 2535, 255}, tr("Congratulations!"), Align::Centre);
    lblCongrats[0]->setFont(Look::CaptionFont());
    lblCongrats[1] = NewLabel(this, {120, 360, 2535, 255}, tr("You got a High Score!"), Align::Centre);
    lblCongrats[1]->setFont(Look::CaptionFont());
    SetBold(lblCongrats[1]);
    lblCongrats[2] = NewLabel(this, {480, 720, 1815, 495}, tr("(Please enter your name as you want it to appear.)"),
                              Align::Centre);
    auto* line1 = new Line(this, 60, 1200, 2700, 1200, Look::InactiveTitleBar);
    auto* line2 = new Line(this, 60, 1215, 2700, 1215, Look::WindowBackground);
    lblPlayerName = NewLabel(this, {120, 1320, 1215, 255}, tr("Player Name:"));

    txtName = new QLineEdit(this);
    Place(txtName, {120, 1560, 1215, 285});
    LimitCharacters(txtName, 12);
    txtName->setToolTip(tr("Enter your name."));
    txtName->setAccessibleName(tr("Player name"));
    FilterTypedKeys(txtName, NameKeyRefused);   // txtName_KeyPress
    SetArrayName(lblCongrats, "lblCongrats");
    SetNames({{cmdOK, "cmdOK"}, {line1, "Line1"}, {line2, "Line2"}, {lblPlayerName, "lblPlayerName"},
              {txtName, "txtName"}});

    txtName->setText(QString::fromStdString(gHighScoreName));
    cmdOK->setFocus();
}

void frmHighScoreNotify::cmdOK_Click()
{
    gHighScoreName = txtName->text().toStdString();
    accept();
}
