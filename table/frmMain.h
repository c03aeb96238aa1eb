#pragma once
// The game table window: the dice field, the current player's card, cmdRoll and the menu.
// The game's rules are in GameTable (core); this window gives them its controls through
// TableScreen and routes the clicks, keys, menu commands and timer ticks to them.
#include <QWidget>
#include <array>

#include "Dialogs.h"
#include "Frame.h"
#include "GameTable.h"
#include "HelpDialog.h"
#include "Label.h"
#include "SavedSetup.h"
#include "SpokenTable.h"

class QAction;
class QFrame;
class QMenu;
class QMenuBar;
class QPushButton;
class QTimer;

// The real period of a tick of tmrRoll. The roll asks for 1 ms, but ticks faster than the
// screen refreshes are never seen: at 15 ms, about one frame of a 60 Hz display, a first roll
// of 45 ticks takes about 0.68 s, long enough to watch the dice tumble and short enough not
// to keep a player waiting.
constexpr int RollTickMilliseconds = 15;

// A plain window with its menu bar laid out above the client area: a QMainWindow would bring
// its dock and tool bar machinery, about half a megabyte more at start, for nothing used here.
class frmMain : public QWidget, public TableScreen {
    Q_OBJECT
public:
    frmMain();
    ~frmMain() override;

    // The dialogs that the menu and the end of a card open; main hands them over.
    void SetDialogs(Dialogs* dialogs) { dialogs_ = dialogs; }
    void Form_Load();
    GameTable& Logic() { return logic_; }
    QWidget* Client() const { return client_; }   // the area below the menu bar
    QMenuBar* MenuBar() const { return menuBar_; }

    // The controls, by their documented names; index bases as documented.
    QFrame* picDisplayer = nullptr;
    Frame* fraScoreboard = nullptr;
    QPushButton* cmdRoll = nullptr;
    std::array<Label*, 5> imgDie{}, lblDie{}, lblRoll{}, lblKeep{};
    Label* lblSelectCategory = nullptr;
    Label* lblPleaseRoll = nullptr;
    std::array<Label*, 7> lblLeft{};    // 1..6
    std::array<Label*, 8> lblRight{};   // 1..7
    std::array<Label*, 13> lblCategoryNames{};   // lblOnes .. lblChanceLbl, in category order
    Label *lblLeftLbl = nullptr, *lblRightLbl = nullptr, *lblBonusLbl = nullptr, *lblTotalLbl = nullptr;
    Label *lblLeftTotal = nullptr, *lblRightTotal = nullptr, *lblBonusTotal = nullptr, *lblTotal = nullptr;
    QTimer* tmrRoll = nullptr;
    HelpDialog dlgHelp;
    std::array<QPixmap, 7> ilsDie, ilsDieInv;   // 1..6

    QMenu *mnuFile = nullptr, *mnuOptions = nullptr, *mnuHelp = nullptr;
    QAction *mnuNewGame = nullptr, *mnuNewPlayers = nullptr, *mnuExit = nullptr;
    QAction *mnuRememberPlayers = nullptr, *mnuUseKeyboard = nullptr, *mnuScoringPreview = nullptr,
            *mnuAnimation = nullptr;
    QAction *mnuScoringSummary = nullptr, *mnuHighScores = nullptr;
    QAction *mnuInstructions = nullptr, *mnuAbout = nullptr;

    // TableScreen.
    std::string Caption(Control c) const override;
    void SetCaption(Control c, const std::string& text) override;
    bool Visible(Control c) const override;
    void SetVisible(Control c, bool visible) override;
    bool Enabled(Control c) const override;
    void SetEnabled(Control c, bool enabled) override;
    bool DieLabelsVisible() const override;
    void SetDieLabelsVisible(bool visible) override;
    int DieLeft(int i) const override;
    void SetDieLeft(int i, int left) override;
    int DieTop(int i) const override;
    void SetDieTop(int i, int top) override;
    void SetDieVisible(int i, bool visible) override;
    void SetDiePicture(int i, ImageList list, int face) override;
    void RefreshDie(int i) override;
    std::string CellCaption(int category) const override;
    void SetCellCaption(int category, const std::string& text) override;
    int CellBorderStyle(int category) const override;
    void SetCellBorderStyle(int category, int style) override;
    int CellTop(int category) const override;
    void SetCellTop(int category, int top) override;
    void SetCellBackStyle(int category, int style) override;
    void SetCellBackColor(int category, std::uint32_t rgb) override;
    void SetCellForeColor(int category, std::uint32_t rgb) override;
    void SetCellToolTip(int category, const std::string& text) override;
    bool Checked(Option option) const override;
    void SetChecked(Option option, bool checked) override;
    void SetFocusOnForm() override;
    void ShowPlayerResults() override;
    void CheckHighScore(int player) override;
    void ShowSummary() override;
    void ShowNewGamePrompt() override;
    void ShowChangePlayers() override;
    void Unload() override;

    Label* Cell(int category) const;
    int DieFace(int i) const { return dieFace_[i]; }   // the face its picture shows

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void DrawDieFaces();
    const QPixmap& DiePicture(ImageList list, int face);
    void CreateDiceField(QWidget* field);
    void CreateScoreboard();
    void CreateMenu();
    QWidget* ControlWidget(Control c) const;
    QAction* OptionItem(Option option) const;
    SetupMarks Marks() const;
    void WakeRollTimer();
    void PlaceDie(int i, int left, int top);
    void mnuInstructions_Click();
    void mnuAbout_Click();

    QWidget* client_ = nullptr;
    QMenuBar* menuBar_ = nullptr;
    GameTable logic_{*this};
    SpokenTable voice_{*this, logic_};
    Dialogs* dialogs_ = nullptr;
    std::array<int, 5> dieFace_{1, 2, 3, 4, 5};   // the face each die's picture shows
    std::array<bool, 5> dieCursor_{};             // the picture is the cursor look
    std::string rollCaption_;                     // cmdRoll's caption as the logic knows it
    // picDisplayer's Enabled. Disabling the widget itself would send a screen reader a change of
    // state for each of its thirty controls at every roll; the dice's click routine already
    // ignores clicks while cmdRoll is disabled, which it is whenever picDisplayer is.
    bool diceFieldEnabled_ = true;
};
