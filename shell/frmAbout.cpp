#include "frmAbout.h"

#include <QPainter>
#include <QPushButton>
#include <qdrawutil.h>

#include "ControlNames.h"
#include "Label.h"
#include "Look.h"
#include "QtServices.h"
#include "TitleArt.h"
#include "Twips.h"
#include "AppInfo.h"

namespace {
constexpr int AboutWidth = 4065, AboutHeight = 2295;
// A fixed dialog frame: a raised two-pixel bevel and one pixel of face colour inside it.
constexpr int BorderPixels = 3;
}

frmAbout::frmAbout(QWidget* owner)
    : DialogWindow(owner, QString(), AboutWidth, AboutHeight, TitleBar::NoCloseBox, false)
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setFixedSize(TwipsToPixels(AboutWidth) + 2 * BorderPixels, TwipsToPixels(AboutHeight) + 2 * BorderPixels);
    auto* client = new QWidget(this);
    client->setGeometry(BorderPixels, BorderPixels, TwipsToPixels(AboutWidth), TwipsToPixels(AboutHeight));

    imgMain = NewLabel(client, {120, 120, 2190, 1755});
    // Stretched to its rectangle, at the screen's pixel density.
    const qreal ratio = devicePixelRatioF();
    QPixmap art = QPixmap::fromImage(DrawTitleArt().scaled(imgMain->size() * ratio, Qt::IgnoreAspectRatio,
                                                           Qt::SmoothTransformation));
    art.setDevicePixelRatio(ratio);
    imgMain->SetPicture(art);

    picTitle = new QWidget(client);
    Place(picTitle, {2400, 120, 1575, 655});
    lblTitle = NewLabel(picTitle, {0, 0, 1095, 375}, "Zarvo", Align::Centre);
    lblTitle->setFont(Look::TitleFont());
    lblVersion = NewLabel(picTitle, {600, 360, 855, 255}, tr("Version %1").arg(ZarvoVersion));

    lblInfo = NewLabel(client, {2520, 840, 1335, 855}, tr("Five dice and a score card for one to eight players."),
                       Align::Centre);
    lblProgrammer = NewLabel(client, {60, 1920, 2295, 375}, tr("Made by the Zarvo developers."),
                             Align::Centre);
    for (Label* credit : {lblInfo, lblProgrammer})
        credit->setFont(Look::SmallSerifFont());

    cmdOK = new QPushButton(tr("OK"), client);
    Place(cmdOK, {2520, 1800, 1335, 375});
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    SetNames({{imgMain, "imgMain"}, {picTitle, "picTitle"}, {lblTitle, "lblTitle"}, {lblVersion, "lblVersion"},
              {lblInfo, "lblInfo"}, {lblProgrammer, "lblProgrammer"}, {cmdOK, "cmdOK"}});
    CentreOnOwner();
}

void frmAbout::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    qDrawWinPanel(&painter, rect(), palette(), false);
}

void frmAbout::cmdOK_Click()
{
    accept();
    // The main window comes forward again, as it stood before the box opened.
    if (QWidget* owner = parentWidget()) {
        owner->show();
        owner->raise();
        owner->activateWindow();
    }
}
