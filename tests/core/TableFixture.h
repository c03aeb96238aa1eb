#pragma once
// The shared set-up of the core tests: a recording TableScreen over plain data, a scripted
// message box, a pinned clock, fresh globals, and helpers that drive a turn to a chosen point.
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
    struct Cell { std::string caption, tip; int border = 0, top = 0, back = 0; std::uint32_t backColor = White, fore = Black; };
    std::map<Control, std::string> captions;
    std::map<Control, bool> visible, enabled;
    std::map<Option, bool> checked{{Option::AnimateRolling, true}};
    bool labels = false;
    std::array<Die, 5> dice;
    std::array<Cell, CategoryCount + 1> cells;   // 1..13
    int focus = 0, pictures = 0, refreshed = -1, promptAnswer = 0;
    std::vector<std::string> dialogs;
    std::function<void()> onResults;   // runs while the results dialog is open

    FakeScreen()
    {
        for (int c = 1; c <= CategoryCount; ++c)
            cells[c].top = FlatTop(c);
    }
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
    void SetDiePicture(int i, ImageList list, int face) override { dice.at(i).list = list, dice.at(i).face = face, ++pictures; }
    void RefreshDie(int i) override { refreshed = i; }
    std::string CellCaption(int c) const override { return cells.at(c).caption; }
    void SetCellCaption(int c, const std::string& text) override { cells.at(c).caption = text; }
    int CellBorderStyle(int c) const override { return cells.at(c).border; }
    void SetCellBorderStyle(int c, int style) override { cells.at(c).border = style; }
    int CellTop(int c) const override { return cells.at(c).top; }
    void SetCellTop(int c, int top) override { cells.at(c).top = top; }
    void SetCellBackStyle(int c, int style) override { cells.at(c).back = style; }
    void SetCellBackColor(int c, std::uint32_t rgb) override { cells.at(c).backColor = rgb; }
    void SetCellForeColor(int c, std::uint32_t rgb) override { cells.at(c).fore = rgb; }
    void SetCellToolTip(int c, const std::string& text) override { cells.at(c).tip = text; }
    bool Checked(Option o) const override { return Get(checked, o); }
    void SetChecked(Option o, bool on) override { checked[o] = on; }
    void SetFocusOnForm() override { ++focus; }
    void ShowPlayerResults() override { dialogs.push_back("results"), onResults ? onResults() : void(); }
    void CheckHighScore(int player) override { dialogs.push_back("highscore " + std::to_string(player)); }
    void ShowSummary() override { dialogs.push_back("summary"); }
    void ShowNewGamePrompt() override { dialogs.push_back("prompt"), gNewGameChoice = promptAnswer; }
    void ShowChangePlayers() override { dialogs.push_back("players"); }
    void Unload() override { dialogs.push_back("unload"); }

    // Each cell as a letter: '-' flat, 'W' white box, 'g' light grey box, 'C' box under the cell
    // cursor, 'c' flat cell under it, '?' a place, style or colour that fits none of these.
    std::string Forms() const
    {
        std::string forms;
        for (int c = 1; c <= CategoryCount; ++c) {
            const Cell& k = cells[c];
            const bool boxed = k.border == 1 && k.back == 1 && k.top == FlatTop(c) - 30;
            if (k.border == 0 && k.back == 0 && k.top == FlatTop(c))
                forms += k.fore == White ? 'c' : '-';
            else if (boxed && k.fore == (k.backColor == DarkGrey ? White : Black))
                forms += k.backColor == DarkGrey ? 'C' : k.backColor == White ? 'W' : k.backColor == LightGrey ? 'g' : '?';
            else
                forms += '?';
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
    void TearDown() override
    {
        SetMsgBoxHandler(std::move(previous));
        SetClock({});
    }
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
    // The turn as the player sees it: cmdRoll's caption, then '+' or '-' for cmdRoll enabled,
    // picDisplayer enabled, lblPleaseRoll, the die labels and lblSelectCategory shown, then the
    // count of rolls done.
    std::string Turn() const
    {
        std::string look = screen.Caption(Control::cmdRoll) + " ";
        for (bool on : {screen.Enabled(Control::cmdRoll), screen.Enabled(Control::picDisplayer),
                        screen.Visible(Control::lblPleaseRoll), screen.labels, screen.Visible(Control::lblSelectCategory)})
            look += on ? '+' : '-';
        return look + " " + std::to_string(table.mRollsDone);
    }
    static constexpr const char* TurnBegun = "Roll +++-- 0";

    // Ticks until the roll reaches `phase` (0: is over), at most 200 ticks; gives the count.
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
    void MarkDice(std::initializer_list<int> dice)
    {
        for (int i : dice)
            table.imgDie_MouseUp(i, vbLeftButton);
    }
    bool AllDiceAt(int left, int top) const
    {
        for (const auto& d : screen.dice)
            if (d.left != left || d.top != top)
                return false;
        return true;
    }
    bool InColumns(int top) const
    {
        for (int i = 0; i < 5; ++i)
            if (screen.dice[i].left != DieColumnLeft(i) || screen.dice[i].top != top)
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
        ASSERT_TRUE(screen.Visible(Control::lblSelectCategory));
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
