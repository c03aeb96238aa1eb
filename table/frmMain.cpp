#include "frmMain.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QIcon>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "Accessible.h"
#include "ControlNames.h"
#include "DieFaces.h"
#include "Languages.h"
#include "Look.h"
#include "frmAbout.h"
#include "QtServices.h"
#include "Twips.h"
#include "modGlobalVars.h"

namespace {
constexpr int ClientWidth = 4575, ClientHeight = 4560;
// picDisplayer's sunken border is two pixels wide; its children are placed inside it.
constexpr int PanelBorderPixels = 2;

// Form_KeyDown's key numbers; 0 for keys it does not look at.
int KeyCodeOf(int qtKey)
{
    switch (qtKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return vbKeyReturn;
    case Qt::Key_Left: return vbKeyLeft;
    case Qt::Key_Up: return vbKeyUp;
    case Qt::Key_Right: return vbKeyRight;
    case Qt::Key_Down: return vbKeyDown;
    default: return 0;
    }
}
}

frmMain::frmMain()
{
    setWindowTitle("Zarvo");
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    DrawDieFaces();
    QApplication::setWindowIcon(QIcon(ilsDie[5]));   // the program's icon, on every window that shows one

    client_ = new QWidget(this);
    client_->setFixedSize(TwipsToPixels(ClientWidth), TwipsToPixels(ClientHeight));

    cmdRoll = new QPushButton(client_);   // created first: first in the tab order
    SetCaption(Control::cmdRoll, "Roll");
    Place(cmdRoll, {3120, 4080, 1335, 375});
    cmdRoll->setToolTip(tr("Roll or accept roll."));
    cmdRoll->setDefault(true);
    connect(cmdRoll, &QPushButton::clicked, this, [this] {
        logic_.cmdRoll_Click();
        WakeRollTimer();
    });

    picDisplayer = NewDiceField(client_);
    Place(picDisplayer, {150, 120, 4275, 1755});
    picDisplayer->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    picDisplayer->setLineWidth(PanelBorderPixels);
    auto* field = new QWidget(picDisplayer);
    field->setGeometry(picDisplayer->rect().adjusted(PanelBorderPixels, PanelBorderPixels,
                                                     -PanelBorderPixels, -PanelBorderPixels));
    CreateDiceField(field);

    fraScoreboard = new Frame(client_);
    Place(fraScoreboard, {120, 1920, 4335, 2055});
    CreateScoreboard();
    CreateMenu();
    SetNames({{cmdRoll, "cmdRoll"}, {picDisplayer, "picDisplayer"}, {fraScoreboard, "fraScoreboard"}});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(menuBar_);
    layout->addWidget(client_);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->activate();   // fixes the size now, not at the first show

    tmrRoll = new QTimer(this);
    tmrRoll->setTimerType(Qt::PreciseTimer);
    tmrRoll->setInterval(RollTickMilliseconds);
    // Between two ticks the event loop runs every pending click, key and menu command, so a
    // command given during a roll governs the next tick. The ticks keep coming behind a modal
    // dialog, as the roll expects. An idle tick does nothing, so the timer sleeps between
    // rolls instead of waking the machine 66 times a second.
    connect(tmrRoll, &QTimer::timeout, this, [this] {
        logic_.tmrRoll_Timer();
        if (logic_.mRollPhase == 0)
            tmrRoll->stop();
    });

    // The window sees the five game keys before any of its controls.
    qApp->installEventFilter(this);
}

frmMain::~frmMain() { qApp->removeEventFilter(this); }

// The image lists at the resolution of the screen the window is on. The cursor look is drawn
// when the keyboard cursor first needs it: most games are played by mouse.
void frmMain::DrawDieFaces()
{
    for (int face = 1; face <= 6; ++face) {
        ilsDie[face] = QPixmap::fromImage(DrawDieFace(face, ImageList::ilsDie, devicePixelRatioF()));
        ilsDieInv[face] = QPixmap();
    }
}

const QPixmap& frmMain::DiePicture(ImageList list, int face)
{
    if (list == ImageList::ilsDie)
        return ilsDie[face];
    if (ilsDieInv[face].isNull())
        ilsDieInv[face] = QPixmap::fromImage(DrawDieFace(face, list, devicePixelRatioF()));
    return ilsDieInv[face];
}

bool frmMain::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        voice_.Refocus();
    // Moved to a screen of another density: the faces are drawn anew for it.
    if (event->type() == QEvent::ScreenChangeInternal && ilsDie[1].devicePixelRatio() != devicePixelRatioF()) {
        DrawDieFaces();
        for (int i = 0; i < 5; ++i)
            imgDie[i]->SetPicture(DiePicture(dieCursor_[i] ? ImageList::ilsDieInv : ImageList::ilsDie, dieFace_[i]));
    }
    return QWidget::event(event);
}

void frmMain::CreateDiceField(QWidget* field)
{
    // Created from the bottom of the stacking order up: the words, the click zones, the two
    // prompts, then the dice above everything.
    (new Line(field, 120, 855, 4080, 855, Look::WindowBackground))->setObjectName("Line8");
    (new Line(field, 120, 840, 4080, 840, Look::InactiveTitleBar))->setObjectName("Line7");
    for (int i = 0; i < 5; ++i) {
        lblKeep[i] = NewLabel(field, {240 + 840 * i, 960, 375, 255}, tr("Keep"), Align::Centre);
        lblRoll[i] = NewLabel(field, {240 + 840 * i, 540, 375, 255}, tr("Roll", "the word over a die"), Align::Centre);
    }
    for (int i = 0; i < 5; ++i) {
        lblDie[i] = NewLabel(field, {840 * i, 0, 855, 1695});
        lblDie[i]->setAccessibleName(tr("Column of die %1").arg(i + 1));
        connect(lblDie[i], &Label::MouseUp, this, [this, i](int button) {
            logic_.lblDie_MouseUp(i, button);
            WakeRollTimer();
        });
    }
    lblPleaseRoll = NewLabel(field, {240, 360, 3735, 255}, {}, Align::Centre);
    lblSelectCategory = NewLabel(field, {240, 1320, 3735, 255}, tr("Please select a scoring category."), Align::Centre);
    for (Label* prompt : {lblPleaseRoll, lblSelectCategory}) {
        prompt->setFont(Look::CaptionFont());
        // Only words: a click on them belongs to the die column below.
        prompt->setAttribute(Qt::WA_TransparentForMouseEvents);
        prompt->hide();
    }
    for (int i = 0; i < 5; ++i) {
        imgDie[i] = NewLabel(field, {DieColumnLeft(i), KeepRow, 615, 615});
        imgDie[i]->SetPicture(ilsDie[i + 1]);
        dieFace_[i] = i + 1;
        connect(imgDie[i], &Label::MouseUp, this, [this, i](int button) {
            logic_.imgDie_MouseUp(i, button);
            WakeRollTimer();
        });
    }
    imgDie[2]->raise();   // on the pile, die 2 is the one seen
    SetDieLabelsVisible(false);
    for (auto [array, name] : {std::pair{&imgDie, "imgDie"}, {&lblDie, "lblDie"}, {&lblRoll, "lblRoll"},
                               {&lblKeep, "lblKeep"}})
        SetArrayName(*array, name);
    SetNames({{lblPleaseRoll, "lblPleaseRoll"}, {lblSelectCategory, "lblSelectCategory"}});
}

void frmMain::CreateScoreboard()
{
    QWidget* frame = fraScoreboard;
    struct Row { const char* name; int left, top, width; const char* caption; const char* tip; };
    static const Row names[CategoryCount] = {
        {"lblOnes", 120, 270, 615, QT_TR_NOOP("Ones...."), QT_TR_NOOP("Score total of ones showing.")},
        {"lblTwos", 120, 510, 615, QT_TR_NOOP("Twos...."), QT_TR_NOOP("Score total of twos showing.")},
        {"lblThrees", 105, 750, 615, QT_TR_NOOP("Threes.."), QT_TR_NOOP("Score total of threes showing.")},
        {"lblFours", 120, 990, 615, QT_TR_NOOP("Fours...."), QT_TR_NOOP("Score total of fours showing.")},
        {"lblFives", 120, 1230, 615, QT_TR_NOOP("Fives...."), QT_TR_NOOP("Score total of fives showing.")},
        {"lblSixes", 120, 1470, 615, QT_TR_NOOP("Sixes...."), QT_TR_NOOP("Score total of sixes showing.")},
        {"lbl3OfAKindLbl", 1305, 270, 1215, QT_TR_NOOP("Three of a Kind.."),
         QT_TR_NOOP("Three of one die type. (Score total of die showing.)")},
        {"lbl4ofAKindLbl", 1320, 510, 1215, QT_TR_NOOP("Four of a Kind...."),
         QT_TR_NOOP("Four of one die type. (Score total of die showing.)")},
        {"lblFullHouseLbl", 1320, 750, 1335, QT_TR_NOOP("Full House........."),
         QT_TR_NOOP("Two of a kind + three of a kind. (Score 25.)")},
        {"lblSmallStraightLbl", 1320, 990, 1215, QT_TR_NOOP("Small Straight...."),
         QT_TR_NOOP("1-2-3-4, 2-3-4-5, or 3-4-5-6. (Score 30.)")},
        {"lblLargeStraightLbl", 1320, 1230, 1215, QT_TR_NOOP("Large Straight..."),
         QT_TR_NOOP("1-2-3-4-5 or 2-3-4-5-6. (Score 35.)")},
        {"lblZarvoLbl", 1320, 1470, 1335, QT_TR_NOOP("Zarvo................"), QT_TR_NOOP("Five of one die type. (Score 50.)")},
        {"lblChanceLbl", 1320, 1710, 1335, QT_TR_NOOP("Chance............."), QT_TR_NOOP("Score total of die showing.")},
    };
    for (int c = 0; c < CategoryCount; ++c) {
        lblCategoryNames[c] = NewLabel(frame, {names[c].left, names[c].top, names[c].width, 255}, tr(names[c].caption));
        lblCategoryNames[c]->setToolTip(tr(names[c].tip));
        lblCategoryNames[c]->setObjectName(names[c].name);
    }
    lblLeftLbl = NewLabel(frame, {3120, 510, 615, 255}, tr("Left......"));
    lblRightLbl = NewLabel(frame, {3120, 750, 615, 255}, tr("Right...."));
    lblBonusLbl = NewLabel(frame, {3120, 990, 615, 255}, tr("Bonus.."));
    lblTotalLbl = NewLabel(frame, {3120, 1470, 615, 255}, tr("Total...."));

    for (int i = 1; i <= 6; ++i) {
        lblLeft[i] = NewLabel(frame, {720, 270 + 240 * (i - 1), 375, 255}, {}, Align::Right);
        connect(lblLeft[i], &Label::Click, this, [this, i] { logic_.lblLeft_Click(i); });
    }
    for (int i = 1; i <= 7; ++i) {
        lblRight[i] = NewLabel(frame, {2520, 270 + 240 * (i - 1), 375, 255}, {}, Align::Right);
        connect(lblRight[i], &Label::Click, this, [this, i] { logic_.lblRight_Click(i); });
    }
    lblLeftTotal = NewLabel(frame, {3720, 510, 375, 255}, {}, Align::Right);
    lblRightTotal = NewLabel(frame, {3720, 750, 375, 255}, {}, Align::Right);
    lblBonusTotal = NewLabel(frame, {3720, 990, 375, 255}, {}, Align::Right);
    lblTotal = NewLabel(frame, {3720, 1470, 375, 255}, {}, Align::Right);
    for (Label* total : {lblLeftTotal, lblRightTotal, lblBonusTotal, lblTotal})
        total->setFocusPolicy(Qt::TabFocus);   // Tab reaches them, for a screen reader to say
    SetArrayName(lblLeft, "lblLeft");
    SetArrayName(lblRight, "lblRight");
    SetNames({{lblLeftLbl, "lblLeftLbl"}, {lblRightLbl, "lblRightLbl"}, {lblBonusLbl, "lblBonusLbl"},
              {lblTotalLbl, "lblTotalLbl"}, {lblLeftTotal, "lblLeftTotal"}, {lblRightTotal, "lblRightTotal"},
              {lblBonusTotal, "lblBonusTotal"}, {lblTotal, "lblTotal"}});

    // Grooves: a dark line with a light one beside it.
    struct Groove { const char* name; int x1, y1, x2, y2; QColor colour; };
    const Groove grooves[] = {
        {"Line3", 1200, 240, 1200, 1920, Look::ApplicationWorkspace}, {"Line5", 1215, 240, 1215, 1920, Look::TitleBarText},
        {"Line2", 3000, 240, 3000, 1920, Look::ApplicationWorkspace}, {"Line4", 3015, 240, 3015, 1920, Look::WindowBackground},
        {"Line1", 3120, 1320, 4200, 1320, Look::InactiveTitleBar}, {"Line6", 3120, 1335, 4200, 1335, Look::WindowBackground},
    };
    for (const Groove& g : grooves)
        (new Line(frame, g.x1, g.y1, g.x2, g.y2, g.colour))->setObjectName(g.name);
}

void frmMain::CreateMenu()
{
    menuBar_ = new QMenuBar(this);
    mnuFile = menuBar_->addMenu(tr("&File"));
    mnuNewGame = mnuFile->addAction(tr("&New Game"));
    mnuNewGame->setShortcut(Qt::Key_F3);
    mnuNewPlayers = mnuFile->addAction(tr("Change &Players..."));
    mnuFile->addSeparator();
    mnuExit = mnuFile->addAction(tr("E&xit"));

    mnuOptions = menuBar_->addMenu(tr("&Options"));
    mnuRememberPlayers = mnuOptions->addAction(tr("&Remember Players"));
    mnuOptions->addSeparator();
    mnuUseKeyboard = mnuOptions->addAction(tr("Use &Keyboard"));
    mnuUseKeyboard->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_K));
    mnuScoringPreview = mnuOptions->addAction(tr("Show &Scoring Preview"));
    mnuScoringPreview->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_P));
    mnuAnimation = mnuOptions->addAction(tr("&Animate Rolling"));
    mnuAnimation->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_A));
    for (QAction* option : {mnuRememberPlayers, mnuUseKeyboard, mnuScoringPreview, mnuAnimation})
        option->setCheckable(true);
    mnuAnimation->setChecked(true);
    mnuOptions->addSeparator();
    mnuScoringSummary = mnuOptions->addAction(tr("Scoring Su&mmary..."));
    mnuHighScores = mnuOptions->addAction(tr("&High Scores..."));

    mnuHelp = menuBar_->addMenu(tr("&Help"));
    mnuInstructions = mnuHelp->addAction(tr("&Contents..."));
    mnuInstructions->setShortcut(Qt::Key_F1);
    mnuHelp->addSeparator();
    mnuAbout = mnuHelp->addAction(tr("&About..."));
    SetNames({{mnuFile, "mnuFile"}, {mnuNewGame, "mnuNewGame"}, {mnuNewPlayers, "mnuNewPlayers"}, {mnuExit, "mnuExit"},
              {mnuOptions, "mnuOptions"}, {mnuRememberPlayers, "mnuRememberPlayers"}, {mnuUseKeyboard, "mnuUseKeyboard"},
              {mnuScoringPreview, "mnuScoringPreview"}, {mnuAnimation, "mnuAnimation"},
              {mnuScoringSummary, "mnuScoringSummary"}, {mnuHighScores, "mnuHighScores"}, {mnuHelp, "mnuHelp"},
              {mnuInstructions, "mnuInstructions"}, {mnuAbout, "mnuAbout"}});

    connect(mnuNewGame, &QAction::triggered, this, [this] { logic_.StartNewGame(); });
    connect(mnuNewPlayers, &QAction::triggered, this, [this] { ShowChangePlayers(); });
    connect(mnuScoringSummary, &QAction::triggered, this, [this] { ShowSummary(); });
    connect(mnuHighScores, &QAction::triggered, this, [this] {
        if (dialogs_)
            dialogs_->ShowHighScores();
    });
    connect(mnuExit, &QAction::triggered, this, [this] { Unload(); });
    connect(mnuInstructions, &QAction::triggered, this, [this] { mnuInstructions_Click(); });
    connect(mnuAbout, &QAction::triggered, this, [this] { mnuAbout_Click(); });
    // Qt turns a checkable item's mark before it reports the click; these two click routines
    // turn the mark themselves (the keyboard offer calls one of them too), so give the turn back.
    connect(mnuUseKeyboard, &QAction::triggered, this, [this](bool checked) {
        mnuUseKeyboard->setChecked(!checked);
        logic_.mnuUseKeyboard_Click();
    });
    connect(mnuScoringPreview, &QAction::triggered, this, [this](bool checked) {
        mnuScoringPreview->setChecked(!checked);
        logic_.mnuScoringPreview_Click();
    });
}

void frmMain::Form_Load()
{
    dlgHelp.HelpFile = HelpFileName();   // Zarvo.hlp, or the help in the player's language
    dlgHelp.HelpCommand = cdlHelpContextPopup;
    if (const QScreen* screen = QApplication::primaryScreen()) {
        const QRect area = screen->geometry();
        move(area.x() + (area.width() - width()) / 2, area.y() + (area.height() - height()) / 2);
    }
    gKeyboardOffered = false;
    logic_.mKeyCursor = 2;
    SetupMarks marks = Marks();
    LoadSetup(marks);
    mnuRememberPlayers->setChecked(marks.RememberPlayers);
    mnuUseKeyboard->setChecked(marks.UseKeyboard);
    mnuScoringPreview->setChecked(marks.ShowScoringPreview);
    mnuAnimation->setChecked(marks.AnimateRolling);
    logic_.StartWithPlayers();
}

void frmMain::closeEvent(QCloseEvent* event)
{
    // Form_Unload: the setup is saved, and nothing of a game in progress; a running roll
    // ends with the program.
    tmrRoll->stop();
    SaveSetup(Marks());
    event->accept();
}

void frmMain::Unload() { close(); }

void frmMain::mnuInstructions_Click()
{
    dlgHelp.HelpCommand = cdlHelpFinder;
    dlgHelp.ShowHelp();
    dlgHelp.HelpCommand = cdlHelpContext;
}

void frmMain::mnuAbout_Click()
{
    frmAbout about(this);
    about.exec();
}

SetupMarks frmMain::Marks() const
{
    return {mnuRememberPlayers->isChecked(), mnuUseKeyboard->isChecked(), mnuScoringPreview->isChecked(),
            mnuAnimation->isChecked()};
}

bool frmMain::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    // Keys for the menu bar (Alt navigation) and for other windows are not the game's.
    if (!widget || widget->window() != this || qobject_cast<QMenuBar*>(widget))
        return false;
    const int code = KeyCodeOf(static_cast<QKeyEvent*>(event)->key());
    if (code == 0 || logic_.Form_KeyDown(code) != 0)
        return false;
    WakeRollTimer();
    return true;
}

// A roll starts only from cmdRoll, the dice field or Enter; each of them wakes the timer.
void frmMain::WakeRollTimer()
{
    if (logic_.mRollPhase != 0 && !tmrRoll->isActive())
        tmrRoll->start();
}
