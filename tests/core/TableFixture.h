#pragma once
// The core tests' set-up: a recording TableScreen, a scripted message box, a pinned clock, fresh
// globals, and helpers that drive a turn to a chosen point.
#include <cctype>
#include <map>

#include <gtest/gtest.h>

#include "../../shell/DateTime.h"
#include "../../shell/MsgBox.h"
#include "../../shell/QBColor.h"
#include "GameTable.h"
#include "modCommon.h"

// Keeps every property the logic sets as data; a cell's Top counts from its flat place.
struct FakeScreen : TableScreen {
    struct Die { int left = 0, top = KeepRow; bool cursor = false; };
    struct Cell { std::string caption, tip; int border = 0, top = 0, back = 0; std::uint32_t bg = 0, fg = 0; };
    mutable std::map<Control, std::string> captions;
    mutable std::map<Control, bool> visible, enabled;
    mutable std::map<Option, bool> checked;
    bool labels = false;
    std::array<Die, 5> dice;
    std::array<Cell, CategoryCount + 1> cells;   // 1..13
    int pictures = 0, promptAnswer = 0;
    std::string dialogs;   // each dialog's name after a space

    std::string Caption(Control c) const override { return captions[c]; }
    void SetCaption(Control c, const std::string& text) override { captions[c] = text; }
    bool Visible(Control c) const override { return visible[c]; }
    void SetVisible(Control c, bool v) override { visible[c] = v; }
    bool Enabled(Control c) const override { return enabled[c]; }
    void SetEnabled(Control c, bool e) override { enabled[c] = e; }
    bool DieLabelsVisible() const override { return labels; }
    void SetDieLabelsVisible(bool v) override { labels = v; }
    int DieLeft(int i) const override { return dice.at(i).left; }
    void SetDieLeft(int i, int left) override { dice.at(i).left = left; }
    int DieTop(int i) const override { return dice.at(i).top; }
    void SetDieTop(int i, int top) override { dice.at(i).top = top; }
    void SetDieVisible(int, bool) override {}
    void SetDiePicture(int i, ImageList l, int) override { dice.at(i).cursor = l == ImageList::ilsDieInv, ++pictures; }
    void RefreshDie(int) override {}
    std::string CellCaption(int c) const override { return cells.at(c).caption; }
    void SetCellCaption(int c, const std::string& text) override { cells.at(c).caption = text; }
    int CellBorderStyle(int c) const override { return cells.at(c).border; }
    void SetCellBorderStyle(int c, int style) override { cells.at(c).border = style; }
    int CellTop(int c) const override { return cells.at(c).top; }
    void SetCellTop(int c, int top) override { cells.at(c).top = top; }
    void SetCellBackStyle(int c, int style) override { cells.at(c).back = style; }
    void SetCellBackColor(int c, std::uint32_t rgb) override { cells.at(c).bg = rgb; }
    void SetCellForeColor(int c, std::uint32_t rgb) override { cells.at(c).fg = rgb; }
    void SetCellToolTip(int c, const std::string& text) override { cells.at(c).tip = text; }
    bool Checked(Option o) const override { return checked[o]; }
    void SetChecked(Option o, bool on) override { checked[o] = on; }
    void SetFocusOnForm() override {}
    void ShowPlayerResults() override { dialogs += " results"; }
    void CheckHighScore(int player) override { dialogs += " highscore" + std::to_string(player); }
    void ShowSummary() override { dialogs += " summary"; }
    void ShowNewGamePrompt() override { dialogs += " prompt", gNewGameChoice = promptAnswer; }
    void ShowChangePlayers() override { dialogs += " players"; }
    void Unload() override { dialogs += " unload"; }

    // Per cell: '-' flat, 'W' white or 'g' light grey box, 'C' box under the key cursor, '?' any other look.
    std::string Forms() const
    {
        std::string forms;
        for (int c = 1; c <= CategoryCount; ++c) {
            const Cell& k = cells[c];
            const bool boxed = k.border == 1 && k.back == 1 && k.top == -30;
            const char box = k.fg ? (k.fg == QBColor(15) && k.bg == QBColor(8) ? 'C' : '?')
                                  : k.bg == QBColor(15) ? 'W' : k.bg == QBColor(7) ? 'g' : '?';
            forms += !k.border && !k.back && !k.top && !k.fg ? '-' : boxed ? box : '?';
        }
        return forms;
    }
    std::string Captions() const   // the 13 cell captions joined by '|'
    {
        std::string all;
        for (int c = 1; c <= CategoryCount; ++c)
            all += (c > 1 ? "|" : "") + cells[c].caption;
        return all;
    }
};

class TableTest : public ::testing::Test {
protected:
    FakeScreen screen;
    GameTable table{screen};
    std::vector<int> answers;         // the buttons the message boxes of the test get, in order
    std::vector<std::string> calls;   // each message box shown, as Box() writes it

    void SetUp() override
    {
        SetMsgBoxHandler([this](const std::string& text, int style, const std::string& title) {
            calls.push_back(Box(text, style, title));
            EXPECT_LE(calls.size(), answers.size()) << "unexpected message box: " << text;
            return calls.size() <= answers.size() ? answers[calls.size() - 1] : int(vbNo);
        });
        SetClock([] { return DateTime{2024, 5, 17, 13, 7, 42, 250}; });
    }
    void TearDown() override { SetMsgBoxHandler({}), SetClock({}); }
    static std::string Box(const std::string& text, int style, const std::string& title = "Zarvo - Confirm")
    { return text + " | " + std::to_string(style) + " | " + title; }

    void NewGame(int players = 1)   // placeholder players, animation on, keyboard not yet offered
    {
        gPlayerNames.ReDim(players);
        for (int p = 1; p <= players; ++p)
            gPlayerNames[p] = PlaceholderName(p);
        gKeyboardOffered = false;
        screen.checked[Option::AnimateRolling] = true;
        table.StartNewGame();
    }
    // cmdRoll's caption; '+' or '-' for cmdRoll and picDisplayer enabled, then lblPleaseRoll, the die labels and
    // lblSelectCategory shown; the rolls done.
    std::string Turn() const
    {
        std::string look = screen.Caption(Control::cmdRoll) + " ";
        for (bool on : {screen.Enabled(Control::cmdRoll), screen.Enabled(Control::picDisplayer),
                        screen.Visible(Control::lblPleaseRoll), screen.labels,
                        screen.Visible(Control::lblSelectCategory)})
            look += on ? '+' : '-';
        return look + " " + std::to_string(table.mRollsDone);
    }
    inline static const std::string TurnBegun = "Roll +++-- 0";

    void RunTicks()   // until the roll is over, at most 200 ticks
    {
        for (int tick = 0; table.mRollPhase && tick < 200; ++tick)
            table.tmrRoll_Timer();
    }
    void Roll() { table.RollOrAccept(), RunTicks(); }
    // Per die: 'p' on the pile, else in its column 'k' in KeepRow or 'r' in RollRow; a capital: the cursor picture.
    std::string Dice() const
    {
        std::string dice;
        for (int i = 0; i < 5; ++i) {
            const auto [left, top, cursor] = screen.dice[i];
            const char at = left == PileLeft && top == RollRow ? 'p' : left != DieColumnLeft(i) ? '?'
                            : top == KeepRow ? 'k' : 'r';
            dice += cursor ? char(std::toupper(at)) : at;
        }
        return dice;
    }
    // One roll, then these dice are set and accepted: the choice opens on exactly them.
    void ReachChoice(DiceValues d)
    {
        Roll();
        table.mDice = d;
        answers.push_back(vbYes);
        table.RollOrAccept();
    }
    void ClickCell(int c) { c <= CatSixes ? table.lblLeft_Click(c) : table.lblRight_Click(c - 6); }
    void TakeTurn(DiceValues d, int c) { ReachChoice(d), ClickCell(c); }
    void Keys(std::initializer_list<int> keys)
    {
        for (int key : keys)
            EXPECT_EQ(table.Form_KeyDown(key), 0) << key;
    }
};
