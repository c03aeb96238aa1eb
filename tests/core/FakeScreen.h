#pragma once
// A plain recording game table: every property the logic sets is kept as data for the tests
// to read, and every dialog call is logged in the order it came.
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "../../shell/QBColor.h"
#include "TableScreen.h"
#include "modGlobalVars.h"

constexpr std::uint32_t White = QBColor(15), LightGrey = QBColor(7), DarkGrey = QBColor(8), Black = QBColor(0);

struct FakeDie {
    int left = 0, top = KeepRow;
    bool visible = true;
    ImageList list = ImageList::ilsDie;
    int face = 0;
};

struct FakeCell {
    std::string caption, toolTip;
    int borderStyle = 0, top = 0, backStyle = 0;
    std::uint32_t backColor = White, foreColor = Black;
};

// The Top of a flat cell: lblLeft(i) and lblRight(i) stand at 270 + 240 (i - 1).
constexpr int FlatCellTop(int category) { return 270 + 240 * ((category <= CatSixes ? category : category - 6) - 1); }

class FakeScreen : public TableScreen {
public:
    FakeScreen()
    {
        for (int i = 0; i < 5; ++i)
            dice[i] = FakeDie{120 + 840 * i, KeepRow, true, ImageList::ilsDie, i + 1};
        for (int c = 1; c <= CategoryCount; ++c)
            cells[c].top = FlatCellTop(c);
    }

    std::map<Control, std::string> captions;
    std::map<Control, bool> visible{{Control::lblPleaseRoll, false}, {Control::lblSelectCategory, false}};
    std::map<Control, bool> enabled;
    bool dieLabelsVisible = false;
    std::array<FakeDie, 5> dice;
    std::array<FakeCell, CategoryCount + 1> cells;   // index 1..13
    std::map<Option, bool> checked{{Option::AnimateRolling, true}};

    int focusCount = 0, pictureCount = 0;
    std::array<int, 5> refreshCount{};
    std::vector<std::string> dialogs;     // "results", "highscore 2", "summary", "prompt", "players", "unload"
    int promptAnswer = 0;                 // what the New Game prompt writes to gNewGameChoice
    std::function<void()> onResults;      // runs while the results dialog is open

    std::string Caption(Control c) const override { return captions.count(c) ? captions.at(c) : ""; }
    void SetCaption(Control c, const std::string& text) override { captions[c] = text; }
    bool Visible(Control c) const override { return !visible.count(c) || visible.at(c); }
    void SetVisible(Control c, bool v) override { visible[c] = v; }
    bool Enabled(Control c) const override { return !enabled.count(c) || enabled.at(c); }
    void SetEnabled(Control c, bool e) override { enabled[c] = e; }
    bool DieLabelsVisible() const override { return dieLabelsVisible; }
    void SetDieLabelsVisible(bool v) override { dieLabelsVisible = v; }

    int DieLeft(int i) const override { return dice.at(i).left; }
    void SetDieLeft(int i, int left) override { dice.at(i).left = left; }
    int DieTop(int i) const override { return dice.at(i).top; }
    void SetDieTop(int i, int top) override { dice.at(i).top = top; }
    void SetDieVisible(int i, bool v) override { dice.at(i).visible = v; }
    void SetDiePicture(int i, ImageList list, int face) override
    {
        dice.at(i).list = list;
        dice.at(i).face = face;
        ++pictureCount;
    }
    void RefreshDie(int i) override { ++refreshCount.at(i); }

    std::string CellCaption(int c) const override { return cells.at(c).caption; }
    void SetCellCaption(int c, const std::string& text) override { cells.at(c).caption = text; }
    int CellBorderStyle(int c) const override { return cells.at(c).borderStyle; }
    void SetCellBorderStyle(int c, int style) override { cells.at(c).borderStyle = style; }
    int CellTop(int c) const override { return cells.at(c).top; }
    void SetCellTop(int c, int top) override { cells.at(c).top = top; }
    void SetCellBackStyle(int c, int style) override { cells.at(c).backStyle = style; }
    void SetCellBackColor(int c, std::uint32_t rgb) override { cells.at(c).backColor = rgb; }
    void SetCellForeColor(int c, std::uint32_t rgb) override { cells.at(c).foreColor = rgb; }
    void SetCellToolTip(int c, const std::string& text) override { cells.at(c).toolTip = text; }

    bool Checked(Option o) const override { return checked.count(o) && checked.at(o); }
    void SetChecked(Option o, bool on) override { checked[o] = on; }
    void SetFocusOnForm() override { ++focusCount; }

    void ShowPlayerResults() override
    {
        dialogs.push_back("results");
        if (onResults)
            onResults();
    }
    void CheckHighScore(int player) override { dialogs.push_back("highscore " + std::to_string(player)); }
    void ShowSummary() override { dialogs.push_back("summary"); }
    void ShowNewGamePrompt() override
    {
        dialogs.push_back("prompt");
        gNewGameChoice = promptAnswer;
    }
    void ShowChangePlayers() override { dialogs.push_back("players"); }
    void Unload() override { dialogs.push_back("unload"); }

    // The look of all 13 cells, one letter each: '-' flat, 'W' white box, 'g' light grey box,
    // 'C' box under the cell cursor, 'c' flat cell under it; '?' for a cell whose place,
    // background style or colours fit none of these.
    std::string Forms() const
    {
        std::string forms;
        for (int c = 1; c <= CategoryCount; ++c) {
            const FakeCell& k = cells[c];
            char f = '?';
            if (k.borderStyle == 0 && k.backStyle == 0 && k.top == FlatCellTop(c))
                f = k.foreColor == White ? 'c' : '-';
            else if (k.borderStyle == 1 && k.backStyle == 1 && k.top == FlatCellTop(c) - 30) {
                if (k.backColor == DarkGrey && k.foreColor == White)
                    f = 'C';
                else if (k.foreColor == Black)
                    f = k.backColor == White ? 'W' : k.backColor == LightGrey ? 'g' : '?';
            }
            forms += f;
        }
        return forms;
    }
    // The 13 cell captions joined by '|'.
    std::string Captions() const
    {
        std::string all;
        for (int c = 1; c <= CategoryCount; ++c)
            all += (c > 1 ? "|" : "") + cells[c].caption;
        return all;
    }
};
