#include "frmPlayerResults.h"

#include <QPushButton>

#include "Look.h"
#include "PlayerStatistics.h"
#include "QtServices.h"
#include "Twips.h"
#include "modGlobalVars.h"

namespace {
constexpr int LabelHeight = 255;
// Without the all-time figures their line goes, and everything below it moves up.
constexpr int AllTimeLine = 240;

// A label of one line.
Label* NewLabel(QWidget* parent, int left, int top, int width, const QString& caption = {},
                Qt::Alignment alignment = Qt::AlignLeft)
{
    return ::NewLabel(parent, left, top, width, LabelHeight, caption, alignment);
}
}

frmPlayerResults::frmPlayerResults(QWidget* owner)
    : DialogWindow(owner, "Zarvo - Results", 3855, 2640, TitleBar::CloseBox, true)
{
    cmdOK = new QPushButton("OK", this);   // created first: first in the tab order
    cmdOK->setGeometry(TwipsRect(2400, 2160, 1335, 375));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    lblScored = NewLabel(this, 240, 180, 3375, {}, Qt::AlignHCenter);
    lblScored->setFont(Look::CaptionFont());
    SetBold(lblScored);

    fraCurrentSession = new Frame(this);
    fraCurrentSession->setGeometry(TwipsRect(120, 600, 3615, 1455));
    QWidget* frame = fraCurrentSession;
    lblCurrentHighLbl = NewLabel(frame, 1080, 300, 735, "High", Qt::AlignHCenter);
    lblCurrentLowLbl = NewLabel(frame, 1920, 300, 735, "Low", Qt::AlignHCenter);
    lblCurrentAvgLbl = NewLabel(frame, 2760, 300, 735, "Average", Qt::AlignHCenter);
    lblSession = NewLabel(frame, 120, 600, 735, "Session:");
    lblCurrentHigh = NewLabel(frame, 1080, 600, 735, {}, Qt::AlignHCenter);
    lblCurrentLow = NewLabel(frame, 1920, 600, 735, {}, Qt::AlignHCenter);
    lblCurrentAvg = NewLabel(frame, 2760, 600, 735, {}, Qt::AlignHCenter);
    lblAll = NewLabel(frame, 120, 840, 735, "All-time:");
    lblAllHigh = NewLabel(frame, 1080, 840, 735, {}, Qt::AlignHCenter);
    lblAllLow = NewLabel(frame, 1920, 840, 735, {}, Qt::AlignHCenter);
    lblAllAvg = NewLabel(frame, 2760, 840, 735, {}, Qt::AlignHCenter);
    lblCurrentInfo = NewLabel(frame, 120, 1200, 3375, {}, Qt::AlignHCenter);   // transparent
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
    fraCurrentSession->resize(fraCurrentSession->width(), fraCurrentSession->height() - TwipsToPixels(AllTimeLine));
    AddToTop(cmdOK, -AllTimeLine);
    SetClientHeight(ClientHeight() - AllTimeLine);
}
