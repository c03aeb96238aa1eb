#pragma once
// What the game's logic needs of the game table window, in the words of its controls.
// frmMain implements it with widgets; the tests with a plain recording double.
#include <cstdint>
#include <string>

enum class Control {
    cmdRoll, picDisplayer, lblPleaseRoll, lblSelectCategory,
    fraScoreboard, lblLeftTotal, lblRightTotal, lblBonusTotal, lblTotal,
    mnuScoringSummary,   // a menu item: only Enabled applies
};

// The four options live only as the check marks of their menu items.
enum class Option { RememberPlayers, UseKeyboard, ShowScoringPreview, AnimateRolling };

// ilsDie holds the normal faces, ilsDieInv the faces under the keyboard cursor.
enum class ImageList { ilsDie, ilsDieInv };

// A die lies in one of two rows; its Top is the only record of whether it is held.
constexpr int KeepRow = 120;
constexpr int RollRow = 960;

class TableScreen {
public:
    virtual ~TableScreen() = default;

    virtual std::string Caption(Control c) const = 0;
    virtual void SetCaption(Control c, const std::string& text) = 0;
    virtual bool Visible(Control c) const = 0;
    virtual void SetVisible(Control c, bool visible) = 0;
    virtual bool Enabled(Control c) const = 0;
    virtual void SetEnabled(Control c, bool enabled) = 0;

    // lblKeep(i) and lblRoll(i), i = 0..4, always shown and hidden together.
    virtual bool DieLabelsVisible() const = 0;
    virtual void SetDieLabelsVisible(bool visible) = 0;

    // imgDie(i), i = 0..4; positions in twips within picDisplayer.
    virtual int DieLeft(int i) const = 0;
    virtual void SetDieLeft(int i, int left) = 0;
    virtual int DieTop(int i) const = 0;
    virtual void SetDieTop(int i, int top) = 0;
    virtual void SetDieVisible(int i, bool visible) = 0;
    virtual void SetDiePicture(int i, ImageList list, int face) = 0;
    virtual void RefreshDie(int i) = 0;

    // The cell label of a category (1..13): lblLeft(1..6), lblRight(1..7).
    virtual std::string CellCaption(int category) const = 0;
    virtual void SetCellCaption(int category, const std::string& text) = 0;
    virtual int CellBorderStyle(int category) const = 0;    // 0 none (flat), 1 single (boxed)
    virtual void SetCellBorderStyle(int category, int style) = 0;
    virtual int CellTop(int category) const = 0;
    virtual void SetCellTop(int category, int top) = 0;
    virtual void SetCellBackStyle(int category, int style) = 0;   // 0 transparent, 1 opaque
    virtual void SetCellBackColor(int category, std::uint32_t rgb) = 0;
    virtual void SetCellForeColor(int category, std::uint32_t rgb) = 0;
    virtual void SetCellToolTip(int category, const std::string& text) = 0;

    virtual bool Checked(Option option) const = 0;
    virtual void SetChecked(Option option, bool checked) = 0;

    // The window takes the input focus; a failure is ignored.
    virtual void SetFocusOnForm() = 0;

    // The dialogs at the end of a card and of a game, each modal with frmMain as owner.
    virtual void ShowPlayerResults() = 0;        // frmPlayerResults after its ShowValues
    virtual void CheckHighScore(int player) = 0;
    virtual void ShowSummary() = 0;              // frmSummary
    virtual void ShowNewGamePrompt() = 0;        // frmNewGame, answer in gNewGameChoice
    virtual void ShowChangePlayers() = 0;        // frmPlayers, as from the menu
    virtual void Unload() = 0;                   // saves the setup and ends the program
};
