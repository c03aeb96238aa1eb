#include "frmPlayerResults.h"

#include <QPushButton>

#include "Accessible.h"
#include "ControlNames.h"
#include "Look.h"
#include "PlayerStatistics.h"
#include "QtServices.h"
#include "modGlobalVars.h"

namespace {
// Without the all-time figures their line goes, and everything below it moves up.
constexpr int AllTimeLine = 240;
}

frmPlayerResults::frmPlayerResults(QWidget* owner)
    : DialogWindow(owner, tr("Zarvo - Results"), 3855, 2640, TitleBar::CloseBox, true)
{
    cmdOK = new QPushButton(tr("OK"), this);   // created first: first in the tab order
    Place(cmdOK, {2400, 2160, 1335, 375});
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    lblScored = NewLabel(this, {240, 180, 3375, 255}, {}, Align::Centre);
    lblScored->setFont(Look::CaptionFont());
    SetBold(lblScored);

    fraCurrentSession = new Frame(this);
    Place(fraCurrentSession, {120, 600, 3615, 1455});
    QWidget* frame = fraCurrentSession;
    lblCurrentHighLbl = NewLabel(frame, {1080, 300, 735, 255}, tr("High"), Align::Centre);
    lblCurrentLowLbl = NewLabel(frame, {1920, 300, 735, 255}, tr("Low"), Align::Centre);
    lblCurrentAvgLbl = NewLabel(frame, {2760, 300, 735, 255}, tr("Average"), Align::Centre);
    lblSession = NewLabel(frame, {120, 600, 735, 255}, tr("Session:"));
    lblCurrentHigh = NewLabel(frame, {1080, 600, 735, 255}, {}, Align::Centre);
    lblCurrentLow = NewLabel(frame, {1920, 600, 735, 255}, {}, Align::Centre);
    lblCurrentAvg = NewLabel(frame, {2760, 600, 735, 255}, {}, Align::Centre);
    lblAll = NewLabel(frame, {120, 840, 735, 255}, tr("All-time:"));
    lblAllHigh = NewLabel(frame, {1080, 840, 735, 255}, {}, Align::Centre);
    lblAllLow = NewLabel(frame, {1920, 840, 735, 255}, {}, Align::Centre);
    lblAllAvg = NewLabel(frame, {2760, 840, 735, 255}, {}, Align::Centre);
    lblCurrentInfo = NewLabel(frame, {120, 1200, 3375, 255}, {}, Align::Centre);   // transparent
    SetNames({{cmdOK, "cmdOK"}, {lblScored, "lblScored"}, {fraCurrentSession, "fraCurrentSession"},
              {lblCurrentHighLbl, "lblCurrentHighLbl"}, {lblCurrentLowLbl, "lblCurrentLowLbl"},
              {lblCurrentAvgLbl, "lblCurrentAvgLbl"}, {lblSession, "lblSession"}, {lblCurrentHigh, "lblCurrentHigh"},
              {lblCurrentLow, "lblCurrentLow"}, {lblCurrentAvg, "lblCurrentAvg"}, {lblAll, "lblAll"},
              {lblAllHigh, "lblAllHigh"}, {lblAllLow, "lblAllLow"}, {lblAllAvg, "lblAllAvg"},
              {lblCurrentInfo, "lblCurrentInfo"}});
}

void frmPlayerResults::ShowValues()
{
    const ResultValues shown = CountGameResults(gCurrentPlayer);
    fraCurrentSession->SetCaption(QString::fromStdString(shown.SessionCaption));
    lblScored->SetCaption(QString::fromStdString(shown.Scored));
    lblCurrentInfo->SetCaption(QString::fromStdString(shown.Info));
    lblCurrentHigh->SetCaption(QString::fromStdString(shown.CurrentHigh));
    lblCurrentLow->SetCaption(QString::fromStdString(shown.CurrentLow));
    lblCurrentAvg->SetCaption(QString::fromStdString(shown.CurrentAvg));
    lblAllHigh->SetCaption(QString::fromStdString(shown.AllHigh));
    lblAllLow->SetCaption(QString::fromStdString(shown.AllLow));
    lblAllAvg->SetCaption(QString::fromStdString(shown.AllAvg));
    for (const QList<Label*>& row : {QList<Label*>{lblSession, lblCurrentHigh, lblCurrentLow, lblCurrentAvg},
                                     QList<Label*>{lblAll, lblAllHigh, lblAllLow, lblAllAvg}})
        NameRow(row, {lblCurrentHighLbl, lblCurrentLowLbl, lblCurrentAvgLbl});
    // Bold only ever goes on: a record stays marked however the line reads.
    const std::pair<bool, Label*> marks[] = {{shown.BoldCurrentHigh, lblCurrentHigh},
                                             {shown.BoldCurrentLow, lblCurrentLow},
                                             {shown.BoldAllHigh, lblAllHigh},
                                             {shown.BoldAllLow, lblAllLow}};
    for (const auto& [bold, label] : marks)
        if (bold)
            SetBold(label);
    if (shown.AllTime)
        return;
    for (Label* label : {lblAll, lblAllHigh, lblAllLow, lblAllAvg})
        label->hide();
    AddToTop(lblCurrentInfo, -AllTimeLine);
    AddToHeight(fraCurrentSession, -AllTimeLine);
    AddToTop(cmdOK, -AllTimeLine);
    SetClientHeight(ClientHeight() - AllTimeLine);
}
