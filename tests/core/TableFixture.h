#pragma once
// The core tests' set-up: a recording TableScreen, a scripted message box, a pinned clock, fresh
// globals, and helpers that drive a turn to a chosen point.
#include <array>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "../../shell/DateTime.h"
#include "../../shell/MsgBox.h"
#include "../../shell/QBColor.h"
#include "GameTable.h"
#include "modCommon.h"

constexpr std::uint32_t White = QBColor(15), LightGrey = QBColor(7), DarkGrey = QBColor(8), Black = QBColor(0);
// The Top of a flat cell: lblLeft(i) and lblRight(i) stand at 270 + 240 (i - 1).
constexpr int FlatTop(int c) { return 270 + 240 * ((c <= CatSixes ? c : c - 6) - 1); }

// Keeps every property the logic sets as data and logs the dialogs in the order they came.
struct FakeScreen : TableScreen {
    struct Die { int left = 0, top = KeepRow; ImageList list = ImageList::ilsDie; int face = 0; };
    struct Cell { std::string caption, tip; int border = 0, lift = 0, back = 0; std::uint32_t bg = White, fg = Black; };
    std::map<Control, std::string> captions;
    std::map<Control, bool> visible, enabled;
    std::map<Option, bool> checked{{Option::AnimateRolling, true}};
    bool labels = false;
    std::array<Die, 5> dice;
    std::array<Cell, CategoryCount + 1> cells;   // 1..13
    int focus = 0, pictures = 0, refreshed = -1, promptAnswer = 0;
    std::string dialogs;   // each dialog's name after a space
    std::function<void()> onResults;   // runs while the results dialog is open

    template <class K> static bool Get(const std::map<K, bool>& m, K k) { return m.count(k) && m.at(k); }
    std::string Caption(Control c) const override { return captions.count(c) ? captions.at(c) : ""; }
    void SetCaption(Control c, const std::string& text) override { captions[c] = text; }
    bool Visible(Control c) const override { return Get(visible, c); }
    void SetVisible(Control c, bool v) override { visible[c] = v; }
    bool Enabled(Control c) const override { return Get(enabled, c); }
    void SetEnabled(Control c, bool e) override { enabled[c] = e; }
    bool DieLabelsVisible() const override { return labels; }
    void SetDieLabelsVisible(bool v) override { labels = v; }
    int DieLeft(int i) const override { return dice.at(i).left; }
    void SetDieLeft(int i, int left) override { dice.at(i).left = left; }
    int DieTop(int i) const override { return dice.at(i).top; }
    void SetDieTop(int i, int top) override { dice.at(i).top = top; }
    void SetDieVisible(int, bool) override {}
    void SetDiePicture(int i, ImageList l, int f) override { dice.at(i).list = l, dice.at(i).face = f, ++pictures; }
    void RefreshDie(int i) override { refreshed = i; }
    std::string CellCaption(int c) const override { return cells.at(c).caption; }
    void SetCellCaption(int c, const std::string& text) override { cells.at(c).caption = text; }
    int CellBorderStyle(int c) const override { return cells.at(c).border; }
    void SetCellBorderStyle(int c, int style) override { cells.at(c).border = style; }
    int CellTop(int c) const override { return FlatTop(c) + cells.at(c).lift; }
    void SetCellTop(int c, int top) override { cells.at(c).lift = top - FlatTop(c); }
    void SetCellBackStyle(int c, int style) override { cells.at(c).back = style; }
    void SetCellBackColor(int c, std::uint32_t rgb) override { cells.at(c).bg = rgb; }
    void SetCellForeColor(int c, std::uint32_t rgb) override { cells.at(c).fg = rgb; }
    void SetCellToolTip(int c, const std::string& text) override { cells.at(c).tip = text; }
    bool Checked(Option o) const override { return Get(checked, o); }
    void SetChecked(Option o, bool on) override { checked[o] = on; }
    void SetFocusOnForm() override { ++focus; }
    void ShowPlayerResults() override { dialogs += " results", onResults ? onResults() : void(); }
    void CheckHighScore(int player) override { dialogs += " highscore" + std::to_string(player); }
    void ShowSummary() override { dialogs += " summary"; }
    void ShowNewGamePrompt() override { dialogs += " prompt", gNewGameChoice = promptAnswer; }
    void ShowChangePlayers() override { dialogs += " players"; }
    void Unload() override { dialogs += " unload"; }

    // Per cell: '-' flat, 'W' white or 'g' light grey box, 'C' box or 'c' flat cell under the cursor, '?' else
    std::string Forms() const
    {
        std::string forms;
        for (int c = 1; c <= CategoryCount; ++c) {
            const Cell& k = cells[c];
            const bool flat = !k.border && !k.back && !k.lift, boxed = k.border == 1 && k.back == 1 && k.lift == -30;
            const char box = k.bg == DarkGrey ? 'C' : k.bg == White ? 'W' : k.bg == LightGrey ? 'g' : '?';
            forms += flat ? (k.fg == White ? 'c' : '-') : boxed && k.fg == (box == 'C' ? White : Black) ? box : '?';
        }
        return forms;
    }
    std::string Captions() const   // the 13 cell captions joined by '|'
    {
        std::string all = cells[1].caption;
        for (int c = 2; c <= CategoryCount; ++c)
            all += "|" + cells[c].caption;
        return all;
    }
};

class TableTest : public ::testing::Test {
protected:
    FakeScreen screen;
    GameTable table{screen};
    std::deque<int> answers;          // the buttons the coming message boxes get
    std::vector<std::string> calls;   // each message box shown, as Box() writes it
    MsgBoxHandler previous;

    void SetUp() override
    {
        previous = SetMsgBoxHandler([this](const std::string& text, int style, const std::string& title) {
            calls.push_back(Box(text, style, title));
            EXPECT_FALSE(answers.empty()) << "unexpected message box: " << text;
            const int answer = answers.empty() ? int(vbNo) : answers.front();
            if (!answers.empty())
                answers.pop_front();
            return answer;
        });
        SetClock([] { return DateTime{2024, 5, 17, 13, 7, 42, 250}; });
    }
    void TearDown() override { SetMsgBoxHandler(std::move(previous)), SetClock({}); }
    static std::string Box(const std::string& text, int style, const std::string& title = "Zarvo - Confirm")
    {
        return text + " | " + std::to_string(style) + " | " + title;
    }

    void NewGame(int players = 1, bool animate = true)
    {
        gPlayerNames.ReDim(players);
        for (int p = 1; p <= players; ++p)
            gPlayerNames[p] = PlaceholderName(p);
        gKeyboardOffered = false;
        gNewGameChoice = 0;
        ClearSessionStats();
        screen.checked[Option::AnimateRolling] = animate;
        table.StartNewGame();
    }
    // cmdRoll's caption, '+' or '-' for cmdRoll and picDisplayer enabled, lblPleaseRoll, die labels
    // and lblSelectCategory shown, and the rolls done.
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

    // Ticks, at most 200, until the roll reaches `phase` (0: is over); gives the count.
    int TickUntilPhase(int phase)
    {
        int ticks = 0;
        for (; table.mRollPhase != phase && ticks < 200; ++ticks)
            table.tmrRoll_Timer();
        EXPECT_EQ(table.mRollPhase, phase) << "the roll never got there";
        return ticks;
    }
    int RunTicks() { return TickUntilPhase(0); }
    int Roll() { return table.RollOrAccept(), RunTicks(); }
    void MarkDice(const std::vector<int>& dice)
    {
        for (int i : dice)
            table.imgDie_MouseUp(i, vbLeftButton);
    }
    // Whether every die lies at `top`, on the pile or each in its own column.
    bool DiceAt(bool pile, int top) const
    {
        for (int i = 0; i < 5; ++i)
            if (screen.dice[i].left != (pile ? PileLeft : DieColumnLeft(i)) || screen.dice[i].top != top)
                return false;
        return true;
    }
    // One roll, then these dice are set and accepted: the choice opens on exactly them.
    void ReachChoice(DiceValues d)
    {
        Roll();
        table.mDice = d;
        answers.push_back(vbYes);
        table.RollOrAccept();
    }
    void Keys(std::initializer_list<int> keys)
    {
        for (int key : keys)
            EXPECT_EQ(table.Form_KeyDown(key), 0) << key;
    }
    std::string DieLooks() const   // 'I' for a die under the cursor picture, '.' for the others
    {
        std::string looks;
        for (const auto& d : screen.dice)
            looks += d.list == ImageList::ilsDieInv ? 'I' : '.';
        return looks;
    }
    void ClickCell(int c) { c <= CatSixes ? table.lblLeft_Click(c) : table.lblRight_Click(c - 6); }
    void TakeTurn(DiceValues d, int c) { ReachChoice(d), ClickCell(c); }
    // Puts values on the current player's card and shows it, as after earlier turns.
    void SetCard(std::initializer_list<std::pair<int, int>> rows)
    {
        for (auto [row, value] : rows)
            gScores[gCurrentPlayer][row] = std::int16_t(value);
        table.RefreshScoreboard();
    }
};
