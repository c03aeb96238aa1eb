// frmMain's side of TableScreen: the operations the game's logic asks of the window, in the
// words of its controls, carried out on the widgets, each change handed on to what a screen
// reader hears.
#include <QAction>
#include <QApplication>
#include <QFrame>
#include <QPushButton>

#include "QBColor.h"
#include "QtServices.h"
#include "frmMain.h"

namespace {
QColor Rgb(std::uint32_t rgb) { return QColor::fromRgb(QRgb(rgb)); }
}

QWidget* frmMain::ControlWidget(Control c) const
{
    switch (c) {
    case Control::cmdRoll: return cmdRoll;
    case Control::picDisplayer: return picDisplayer;
    case Control::lblPleaseRoll: return lblPleaseRoll;
    case Control::lblSelectCategory: return lblSelectCategory;
    case Control::fraScoreboard: return fraScoreboard;
    case Control::lblLeftTotal: return lblLeftTotal;
    case Control::lblRightTotal: return lblRightTotal;
    case Control::lblBonusTotal: return lblBonusTotal;
    case Control::lblTotal: return lblTotal;
    case Control::mnuScoringSummary: break;   // a menu item, no widget
    }
    return nullptr;
}

std::string frmMain::Caption(Control c) const
{
    QWidget* w = ControlWidget(c);
    if (auto* label = qobject_cast<Label*>(w))
        return label->Caption().toStdString();
    if (w == cmdRoll)
        return rollCaption_;
    return fraScoreboard->Caption().toStdString();
}

void frmMain::SetCaption(Control c, const std::string& text)
{
    QWidget* w = ControlWidget(c);
    const QString caption = QString::fromStdString(text);
    if (auto* label = qobject_cast<Label*>(w)) {
        label->SetCaption(caption);
        for (auto [total, row] : {std::pair{lblLeftTotal, lblLeftLbl}, {lblRightTotal, lblRightLbl},
                                  {lblBonusTotal, lblBonusLbl}, {lblTotal, lblTotalLbl}})
            if (label == total)
                voice_.NameTotal(total, row);
    } else if (w == cmdRoll) {
        // The logic goes by the English caption; the player reads it in their language.
        rollCaption_ = text;
        cmdRoll->setText(text == "Accept" ? tr("Accept") : tr("Roll"));
    } else
        fraScoreboard->SetCaption(caption);
}

// A control's own Visible flag, also before the window is shown.
bool frmMain::Visible(Control c) const { return !ControlWidget(c)->isHidden(); }
void frmMain::SetVisible(Control c, bool visible) { ControlWidget(c)->setVisible(visible); }
bool frmMain::Enabled(Control c) const
{
    if (c == Control::picDisplayer)
        return diceFieldEnabled_;
    return c == Control::mnuScoringSummary ? mnuScoringSummary->isEnabled() : ControlWidget(c)->isEnabled();
}
void frmMain::SetEnabled(Control c, bool enabled)
{
    if (c == Control::picDisplayer) {
        diceFieldEnabled_ = enabled;
        return;
    }
    QWidget* w = ControlWidget(c);
    if (!w)
        return mnuScoringSummary->setEnabled(enabled);
    if (!enabled && w->hasFocus())
        client_->setFocus();   // Qt would hand the focus on to the next control, a total
    w->setEnabled(enabled);
}

bool frmMain::DieLabelsVisible() const { return !lblKeep[0]->isHidden(); }

void frmMain::SetDieLabelsVisible(bool visible)
{
    for (int i = 0; i < 5; ++i) {
        lblKeep[i]->setVisible(visible);
        lblRoll[i]->setVisible(visible);
    }
}

int frmMain::DieLeft(int i) const { return PlaceOf(imgDie[i]).left; }
void frmMain::SetDieLeft(int i, int left) { PlaceDie(i, left, DieTop(i)); }
int frmMain::DieTop(int i) const { return PlaceOf(imgDie[i]).top; }
void frmMain::SetDieTop(int i, int top) { PlaceDie(i, DieLeft(i), top); }
void frmMain::PlaceDie(int i, int left, int top)
{
    const TwipRect place = PlaceOf(imgDie[i]);
    Place(imgDie[i], {left, top, place.width, place.height});
    voice_.NameDie(i);
}
void frmMain::SetDieVisible(int i, bool visible) { imgDie[i]->setVisible(visible); }

void frmMain::SetDiePicture(int i, ImageList list, int face)
{
    if (face < 1 || face > 6)
        return;
    imgDie[i]->SetPicture(DiePicture(list, face));
    dieFace_[i] = face;
    dieCursor_[i] = list == ImageList::ilsDieInv;
    voice_.NameDie(i);
    if (dieCursor_[i])
        voice_.CursorOnDie(i);
}

void frmMain::RefreshDie(int i) { imgDie[i]->repaint(); }

Label* frmMain::Cell(int category) const
{
    return category <= CatSixes ? lblLeft[category] : lblRight[category - 6];
}

std::string frmMain::CellCaption(int category) const { return Cell(category)->Caption().toStdString(); }
void frmMain::SetCellCaption(int category, const std::string& text)
{
    Cell(category)->SetCaption(QString::fromStdString(text));
    voice_.NameCell(category);
}
int frmMain::CellBorderStyle(int category) const { return Cell(category)->BorderStyle(); }
void frmMain::SetCellBorderStyle(int category, int style)
{
    Cell(category)->SetBorderStyle(style);
    voice_.NameCell(category);
}
int frmMain::CellTop(int category) const { return PlaceOf(Cell(category)).top; }
void frmMain::SetCellTop(int category, int top) { AddToTop(Cell(category), top - CellTop(category)); }
void frmMain::SetCellBackStyle(int category, int style) { Cell(category)->SetBackStyle(style); }
void frmMain::SetCellBackColor(int category, std::uint32_t rgb) { Cell(category)->SetBackColor(Rgb(rgb)); }
void frmMain::SetCellForeColor(int category, std::uint32_t rgb)
{
    Cell(category)->SetForeColor(Rgb(rgb));
    if (rgb == QBColor(15))   // the cursor's white text
        voice_.CursorOnCell(category);
}

void frmMain::SetCellToolTip(int category, const std::string& text)
{
    Cell(category)->setToolTip(QString::fromStdString(text));
}

QAction* frmMain::OptionItem(Option option) const
{
    switch (option) {
    case Option::RememberPlayers: return mnuRememberPlayers;
    case Option::UseKeyboard: return mnuUseKeyboard;
    case Option::ShowScoringPreview: return mnuScoringPreview;
    case Option::AnimateRolling: return mnuAnimation;
    }
    return nullptr;
}

bool frmMain::Checked(Option option) const { return OptionItem(option)->isChecked(); }
void frmMain::SetChecked(Option option, bool checked) { OptionItem(option)->setChecked(checked); }

void frmMain::SetFocusOnForm()
{
    // Not on the screen yet (start-up), or behind a modal box that a roll has ended under:
    // the step fails there and is ignored, so the box keeps the keys. The game rests here,
    // waiting for the player: the screen reader hears what has just happened.
    if (isVisible() && !QApplication::activeModalWidget()) {
        activateWindow();
        client_->setFocus();
    }
    voice_.Settled();
}

// The dialogs belong to their own subsystems; without them (a window tested alone) nothing opens.
void frmMain::ShowPlayerResults()
{
    if (dialogs_)
        dialogs_->ShowPlayerResults();
}
void frmMain::CheckHighScore(int player)
{
    if (dialogs_)
        dialogs_->CheckHighScore(player);
}
void frmMain::ShowSummary()
{
    if (dialogs_)
        dialogs_->ShowSummary();
}
void frmMain::ShowNewGamePrompt()
{
    if (dialogs_)
        dialogs_->ShowNewGamePrompt();
}
void frmMain::ShowChangePlayers()
{
    if (dialogs_)
        dialogs_->ShowChangePlayers();
}
