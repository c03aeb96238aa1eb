#pragma once
// The shared set-up of the table tests: fresh globals, a GameTable over a FakeScreen, a pinned
// clock, a scripted message box, and helpers that drive a turn to a chosen point.
#include <deque>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "../../shell/DateTime.h"
#include "../../shell/MsgBox.h"
#include "FakeScreen.h"
#include "GameTable.h"
#include "modCommon.h"
#include "modGlobalVars.h"

// Answers message boxes from a queue and records each call. A message that no test expected
// fails the test, so every test also checks that nothing asked out of turn.
struct ScriptedMsgBox {
    struct Call {
        std::string text;
        int style;
        std::string title;
    };
    std::deque<int> answers;
    std::vector<Call> calls;
    MsgBoxHandler previous;

    void Install()
    {
        previous = SetMsgBoxHandler([this](const std::string& text, int style, const std::string& title) {
            calls.push_back({text, style, title});
            if (answers.empty()) {
                ADD_FAILURE() << "unexpected message box: " << text;
                return int(vbNo);
            }
            const int answer = answers.front();
            answers.pop_front();
            return answer;
        });
    }
    void Restore() { SetMsgBoxHandler(std::move(previous)); }
};

class TableTest : public ::testing::Test {
protected:
    FakeScreen screen;
    GameTable table{screen};
    ScriptedMsgBox msg;

    void SetUp() override
    {
        msg.Install();
        SetClock([] { return DateTime{2024, 5, 17, 13, 7, 42, 250}; });
        ResetGlobals(1);
    }
    void TearDown() override
    {
        msg.Restore();
        SetClock({});
    }

    static void ResetGlobals(int players)
    {
        gPlayerNames.ReDim(players);
        for (int p = 1; p <= players; ++p)
            gPlayerNames[p] = PlaceholderName(p);
        gKeyboardOffered = false;
        gNewGameChoice = 0;
        gCurrentPlayer = 1;
        ClearSessionStats();
    }
    void NewGame(int players = 1, bool animate = true)
    {
        ResetGlobals(players);
        screen.checked[Option::AnimateRolling] = animate;
        table.StartNewGame();
    }

    // What the player sees of the turn's progress: the caption of cmdRoll, then '+' or '-' for
    // cmdRoll enabled, picDisplayer enabled, lblPleaseRoll, the die labels and lblSelectCategory
    // shown, then the count of rolls done.
    std::string Now() const
    {
        std::string look = screen.Caption(Control::cmdRoll) + " ";
        for (bool on : {screen.Enabled(Control::cmdRoll), screen.Enabled(Control::picDisplayer),
                        screen.Visible(Control::lblPleaseRoll), screen.DieLabelsVisible(),
                        screen.Visible(Control::lblSelectCategory)})
            look += on ? '+' : '-';
        return look + " " + std::to_string(table.mRollsDone);
    }
    static constexpr const char* TurnBegun = "Roll +++-- 0";

    // Ticks until the roll is over; gives the number of ticks it took.
    int RunTicks()
    {
        int ticks = 0;
        for (; table.mRollPhase != 0 && ticks < 1000; ++ticks)
            table.tmrRoll_Timer();
        EXPECT_EQ(table.mRollPhase, 0) << "the roll never ended";
        return ticks;
    }
    int TickUntilPhase(int phase)
    {
        int ticks = 0;
        for (; table.mRollPhase != phase && ticks < 100; ++ticks)
            table.tmrRoll_Timer();
        EXPECT_EQ(table.mRollPhase, phase);
        return ticks;
    }
    int Roll()
    {
        table.RollOrAccept();
        return RunTicks();
    }
    void SetDice(DiceValues d) { table.mDice = d; }
    void MarkDice(std::initializer_list<int> dice)
    {
        for (int i : dice)
            table.imgDie_MouseUp(i, vbLeftButton);
    }
    bool AllDiceAt(int left, int top) const
    {
        for (const FakeDie& d : screen.dice)
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

    // One roll, then the dice are set and accepted: the choice opens on exactly these dice.
    void ReachChoice(DiceValues d)
    {
        Roll();
        SetDice(d);
        msg.answers.push_back(vbYes);
        table.RollOrAccept();
        ASSERT_TRUE(screen.Visible(Control::lblSelectCategory));
    }
    void ClickCell(int category)
    {
        if (category <= CatSixes)
            table.lblLeft_Click(category);
        else
            table.lblRight_Click(category - 6);
    }
    void TakeTurn(DiceValues d, int category)
    {
        ReachChoice(d);
        ClickCell(category);
    }
    // Puts values on the current player's card and shows it, as after earlier turns.
    void SetCard(std::initializer_list<std::pair<int, int>> rows)
    {
        for (auto [row, value] : rows)
            gScores[gCurrentPlayer][row] = std::int16_t(value);
        table.RefreshScoreboard();
    }
};

// Dice that score above 0 in a category of a fresh card, to fill cards without zeros.
inline DiceValues ScoringDice(int category)
{
    switch (category) {
    case CatFullHouse: return {2, 2, 3, 3, 3};
    case CatSmallStraight: case CatLargeStraight: case CatChance: return {1, 2, 3, 4, 5};
    case CatThreeOfAKind: case CatFourOfAKind: case CatZarvo: return {6, 6, 6, 6, 6};
    default: return {category, category, category, 1, 2};
    }
}
