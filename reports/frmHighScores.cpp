#include "frmHighScores.h"

#include <QPushButton>

#include "Accessible.h"
#include "ControlNames.h"
#include "Frame.h"
#include "Label.h"
#include "Look.h"
#include "QtServices.h"
#include "modDatabase.h"

namespace {
constexpr int RowTops[HighScoreRows] = {555, 900, 1260, 1620, 1980, 2340, 2700, 3060, 3420, 3780};
}

frmHighScores::frmHighScores(QWidget* owner)
    : DialogWindow(owner, tr("Zarvo - High Scores"), 4575, 4845, TitleBar::CloseBox, true)
{
    fraTopTen = new Frame(this);
    Place(fraTopTen, {120, 120, 4335, 4135});
    lblNameLbl = NewLabel(fraTopTen, {600, 180, 1335, 255}, tr("Player:"));
    lblScoreLbl = NewLabel(fraTopTen, {1920, 180, 615, 255}, tr("Score:"), Align::Centre);
    blbDateLbl = NewLabel(fraTopTen, {2760, 180, 1455, 255}, tr("Date:"));
    for (Label* heading : {lblNameLbl, lblScoreLbl, blbDateLbl})
        SetBold(heading);
    auto* line1 = new Line(fraTopTen, 60, 450, 4260, 450, Look::InactiveTitleBar);
    auto* line2 = new Line(fraTopTen, 60, 465, 4260, 465, Look::WindowBackground);
    for (int i = 0; i < HighScoreRows; ++i) {
        lblNumbers[i] = NewLabel(fraTopTen, {120, RowTops[i], 255, 255}, QString("%1.").arg(i + 1));
        lblPlayerName[i] = NewLabel(fraTopTen, {600, RowTops[i], 1335, 255});
        lblScore[i] = NewLabel(fraTopTen, {1920, RowTops[i], 495, 255}, {}, Align::Right);
        lblDate[i] = NewLabel(fraTopTen, {2760, RowTops[i], 1455, 255});
    }

    cmdOK = new QPushButton(tr("OK"), this);
    Place(cmdOK, {3120, 4365, 1335, 375});
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);   // cmdOK_Click
    SetNames({{fraTopTen, "fraTopTen"}, {lblNameLbl, "lblNameLbl"}, {lblScoreLbl, "lblScoreLbl"},
              {blbDateLbl, "blbDateLbl"}, {line1, "Line1"}, {line2, "Line2"}, {cmdOK, "cmdOK"}});
    for (auto [array, name] : {std::pair{&lblNumbers, "lblNumbers"}, {&lblPlayerName, "lblPlayerName"},
                               {&lblScore, "lblScore"}, {&lblDate, "lblDate"}})
        SetArrayName(*array, name);

    loaded_ = Form_Load();
}

bool frmHighScores::Form_Load()
{
    if (!OpenDataFile(true))
        return false;
    const auto lines = ReadHighScoreLines(Now());
    CloseDataFile();
    for (int r = 0; r < HighScoreRows; ++r) {
        if (lines[r].bold)
            for (Label* label : {lblPlayerName[r], lblScore[r], lblDate[r]})
                SetBold(label);
        lblPlayerName[r]->SetCaption(QString::fromStdString(lines[r].player));
        lblScore[r]->SetCaption(QString::fromStdString(lines[r].score));
        lblDate[r]->SetCaption(QString::fromStdString(lines[r].date));
        NameRow({lblNumbers[r], lblPlayerName[r], lblScore[r], lblDate[r]});
    }
    return true;
}
