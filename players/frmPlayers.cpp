#include "frmPlayers.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include "ControlNames.h"
#include "GameTable.h"
#include "Look.h"
#include "NameKeyRule.h"
#include "QtServices.h"
#include "TypedKeyFilter.h"
#include "modCommon.h"

namespace {
constexpr int PlayersWidth = 3615, TwoSeatHeight = 2685;   // with two seats

QString Q(const std::string& text) { return QString::fromStdString(text); }

// An entry as the player reads it: the rules keep the markers in English, "< None >" and
// "< Player 3 >", and the boxes show them in the player's language.
QString Shown(const std::string& item)
{
    if (item == NoneEntry)
        return frmPlayers::tr("< None >");
    for (int seat = 1; seat <= MaxPlayers; ++seat)
        if (item == PlaceholderName(seat))
            return frmPlayers::tr("< Player %1 >").arg(seat);
    return Q(item);
}

// Shows a list of the rules in its box. Only a changed list is rebuilt, and an editable box
// keeps what the user typed.
void ShowList(QComboBox* box, const ItemList& list)
{
    const QSignalBlocker quiet(box);
    bool same = box->count() == int(list.List.size());
    for (int k = 0; same && k < box->count(); ++k)
        same = box->itemText(k) == Shown(list.List[k]);
    if (!same) {
        const QString typed = box->currentText();
        box->clear();
        for (const std::string& item : list.List)
            box->addItem(Shown(item));
        if (box->isEditable())
            box->setEditText(typed);
    }
    if (!box->isEditable())
        box->setCurrentIndex(list.ListIndex);
}
}

frmPlayers::frmPlayers(QWidget* owner, GameTable& game)
    : DialogWindow(owner, tr(" Zarvo - Change Players"), PlayersWidth, TwoSeatHeight, TitleBar::CloseBox, true),
      game_(game)
{
    CreateSeats();
    CreateAddRemove();
    lblNote = NewLabel(this, {180, 1410, 3375, 735},
                       tr("Note: to be able to add or remove players, the file 'Zarvo.dat' must exist in the same "
                          "directory at the program file 'Zarvo.exe'. "));
    lblNote->hide();

    cmdCancel = new QPushButton(tr("&Close"), this);
    cmdCancel->setToolTip(tr("Play with the previously selected players."));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    cmdPlay = new QPushButton(tr("&Play"), this);
    cmdPlay->setToolTip(tr("Play with the currently selected players."));
    cmdPlay->setDefault(true);
    connect(cmdPlay, &QPushButton::clicked, this, [this] { cmdPlay_Click(); });

    QWidget* order[] = {cboPlayer[0], cboPlayer[1], cboPlayer[2], cboPlayer[3], cboPlayer[4], cboPlayer[5],
                        cboPlayer[6], cboPlayer[7], cboAddRemove, cmdAdd, cmdRemove, cmdPlay, cmdCancel};
    for (std::size_t k = 1; k < std::size(order); ++k)
        setTabOrder(order[k - 1], order[k]);
    SetArrayName(lblPlayer, "lblPlayer");
    SetArrayName(cboPlayer, "cboPlayer");
    SetNames({{fraCurrentPlayers, "fraCurrentPlayers"}, {fraAddRemove, "fraAddRemove"}, {cboAddRemove, "cboAddRemove"},
              {cmdAdd, "cmdAdd"}, {cmdRemove, "cmdRemove"}, {lblNote, "lblNote"}, {cmdCancel, "cmdCancel"},
              {cmdPlay, "cmdPlay"}});

    selection_.Form_Load();
    ShowSelection();
}

void frmPlayers::CreateSeats()
{
    fraCurrentPlayers = new Frame(this);
    fraCurrentPlayers->SetCaption(tr("Selected Players:"));
    for (int i = 0; i < MaxPlayers; ++i) {
        lblPlayer[i] = NewLabel(fraCurrentPlayers, {240, 300 + 360 * i, 975, 255}, tr("Player %1:").arg(i + 1));
        lblPlayer[i]->setFont(Look::CaptionFont());
        cboPlayer[i] = new QComboBox(fraCurrentPlayers);
        Place(cboPlayer[i], {1800, 240 + 360 * i, 1455, 315});
        cboPlayer[i]->setToolTip(tr("Select player #%1.").arg(i + 1));
        cboPlayer[i]->setAccessibleName(tr("Player %1").arg(i + 1));
        connect(cboPlayer[i], &QComboBox::currentIndexChanged, this, [this, i](int index) {
            selection_.SetListIndex(i, index);
            ShowSelection();
        });
    }
}

void frmPlayers::CreateAddRemove()
{
    fraAddRemove = new Frame(this);
    fraAddRemove->SetCaption(tr("Add/Remove Players"));
    cboAddRemove = new QComboBox(fraAddRemove);
    cboAddRemove->setEditable(true);
    cboAddRemove->setInsertPolicy(QComboBox::NoInsert);   // only Add puts a name in the list
    cboAddRemove->setCompleter(nullptr);                  // what is typed stays as typed
    Place(cboAddRemove, {120, 270, 1455, 315});
    cboAddRemove->setToolTip(tr("Select player to remove, or enter name to add."));
    cboAddRemove->setAccessibleName(tr("Player name"));
    // cboAddRemove_KeyPress: typed keys reach the box, which hands them to its text field.
    FilterTypedKeys(cboAddRemove->lineEdit(), NameKeyRefused, cboAddRemove);
    cmdAdd = new QPushButton(tr("Add"), fraAddRemove);
    Place(cmdAdd, {1680, 270, 615, 315});
    cmdAdd->setToolTip(tr("Add the player to the list."));
    connect(cmdAdd, &QPushButton::clicked, this, [this] { cmdAdd_Click(); });
    cmdRemove = new QPushButton(tr("Remove"), fraAddRemove);
    Place(cmdRemove, {2400, 270, 855, 315});
    cmdRemove->setToolTip(tr("Remove the selected player from the list."));
    connect(cmdRemove, &QPushButton::clicked, this, [this] { cmdRemove_Click(); });
}

// The lists, the open seats and the dialog's growth, as the rules left them.
void frmPlayers::ShowSelection()
{
    for (int i = 0; i < MaxPlayers; ++i) {
        ShowList(cboPlayer[i], selection_.cboPlayer[i]);
        cboPlayer[i]->setVisible(selection_.cboPlayer[i].Visible);
        lblPlayer[i]->setVisible(selection_.cboPlayer[i].Visible);
    }
    ShowList(cboAddRemove, selection_.cboAddRemove);
    const int grown = selection_.Growth;
    SetClientHeight(TwoSeatHeight + grown);
    Place(cmdPlay, {2160, 2190 + grown, 1335, 375});
    Place(cmdCancel, {720, 2190 + grown, 1335, 375});
    Place(fraAddRemove, {120, 1335 + grown, 3375, 735});
    Place(lblNote, {180, 1410 + grown, 3375, 735});
    Place(fraCurrentPlayers, {120, 120, 3375, 1095 + grown});
    fraAddRemove->setVisible(selection_.fraAddRemoveVisible);
    lblNote->setVisible(!selection_.fraAddRemoveVisible);
}

void frmPlayers::cmdAdd_Click()
{
    std::string text = cboAddRemove->currentText().toStdString();
    selection_.cmdAdd_Click(text);
    cboAddRemove->setEditText(Q(text));
    ShowSelection();
}

void frmPlayers::cmdRemove_Click()
{
    selection_.cmdRemove_Click(cboAddRemove->currentText().toStdString());
    ShowSelection();
}

void frmPlayers::cmdPlay_Click()
{
    selection_.ReadSeats();
    game_.StartWithPlayers();   // a game in progress is given up without a question
    accept();
}
