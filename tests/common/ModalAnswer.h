#pragma once
// Answers the next modal dialog from the event loop that its exec() runs: the test queues what
// to do with the window, then triggers the code that opens it.
#include <QApplication>
#include <QTimer>
#include <gtest/gtest.h>

// Runs `answer` on the dialog once a modal window is up and active, as a user would meet it;
// fails the test if none comes while the event loop turns `patience` times.
inline void AnswerNextModal(std::function<void(QWidget*)> answer, int patience = 200)
{
    QTimer::singleShot(0, [answer = std::move(answer), patience] {
        if (QWidget* modal = QApplication::activeModalWidget(); modal && modal->isActiveWindow())
            answer(modal);
        else if (patience > 0)
            AnswerNextModal(answer, patience - 1);
        else
            ADD_FAILURE() << "no modal dialog came up";
    });
}
