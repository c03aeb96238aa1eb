#pragma once
// A fresh game table window per test, with its timer stopped so that tests drive the roll tick
// by tick, a scripted message box, and the program's directory in a temporary folder without
// a data file.
#include <QFrame>
#include <QTemporaryDir>
#include <QTimer>
#include <QTest>
#include <deque>
#include <gtest/gtest.h>
#include <memory>

#include "AppPath.h"
#include "MsgBox.h"
#include "frmMain.h"
#include "modGlobalVars.h"

class WindowTest : public testing::Test {
protected:
    void SetUp() override
    {
        SetAppPath(dir.path().toStdString());
        previous = SetMsgBoxHandler([this](const std::string& text, int, const std::string&) {
            ++asked;
            EXPECT_FALSE(answers.empty()) << "unexpected message: " << text;
            const int answer = answers.empty() ? vbNo : answers.front();
            return answers.empty() ? answer : (answers.pop_front(), answer);
        });
        gNewGameChoice = 0;
        form = std::make_unique<frmMain>();
        form->Form_Load();
        // Tests drive the roll tick by tick: the real timer must never run.
        form->tmrRoll->setInterval(24 * 3600 * 1000);
    }
    void TearDown() override
    {
        form.reset();
        SetMsgBoxHandler(previous);
    }

    GameTable& logic() { return form->Logic(); }
    bool Shown() { return form->show(), QTest::qWaitForWindowActive(form.get()); }   // as a player meets it

    // Ticks until the roll rests; gives the number of ticks.
    int FinishRoll()
    {
        int ticks = 0;
        for (; logic().mRollPhase != 0 && ticks < 1000; ++ticks)
            logic().tmrRoll_Timer();
        return ticks;
    }

    QTemporaryDir dir;
    std::unique_ptr<frmMain> form;
    std::deque<int> answers;
    int asked = 0;   // the message boxes shown
    MsgBoxHandler previous;
};
