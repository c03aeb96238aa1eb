// The real message box: the title, text, icon, buttons and default button that a style asks
// for, and the answer of the pressed button.
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

#include "MsgBox.h"
#include "QtServices.h"

namespace {
// Runs `inspect` on the message box once it is open, then presses `press`.
int AskAndAnswer(const std::string& text, int style, const std::string& title,
                 std::function<void(QMessageBox*)> inspect, QMessageBox::StandardButton press)
{
    QTimer::singleShot(0, [=] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        inspect(box);
        box->button(press)->click();
    });
    return QtMsgBox(text, style, title);
}
}

TEST(MsgBox, QuestionWithNoAsDefault)
{
    const int answer = AskAndAnswer("No dice selected.\r\nAre you satisfied with the roll?",
                                    vbYesNo | vbQuestion | vbDefaultButton2, "Zarvo - Confirm",
                                    [](QMessageBox* box) {
                                        EXPECT_EQ(box->windowTitle(), "Zarvo - Confirm");
                                        EXPECT_EQ(box->text(), "No dice selected.\nAre you satisfied with the roll?");
                                        EXPECT_EQ(box->icon(), QMessageBox::Question);
                                        EXPECT_EQ(box->buttons().size(), 2);
                                        EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
                                    },
                                    QMessageBox::Yes);
    EXPECT_EQ(answer, vbYes);
}

TEST(MsgBox, QuestionWithYesAsDefaultAnsweredNo)
{
    const int answer = AskAndAnswer("Take a zero?", vbYesNo | vbQuestion, "Zarvo - Confirm",
                                    [](QMessageBox* box) {
                                        EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::Yes));
                                    },
                                    QMessageBox::No);
    EXPECT_EQ(answer, vbNo);
}

TEST(MsgBox, CriticalWithOk)
{
    const int answer = AskAndAnswer("a\r\nb\r\nc", vbOKOnly | vbCritical, "Zarvo - Data File Error",
                                    [](QMessageBox* box) {
                                        EXPECT_EQ(box->icon(), QMessageBox::Critical);
                                        EXPECT_EQ(box->text(), "a\nb\nc");
                                        EXPECT_EQ(box->buttons().size(), 1);
                                    },
                                    QMessageBox::Ok);
    EXPECT_EQ(answer, vbOK);
}

// Without a screen behind it, the message box answers with the default button.
TEST(MsgBox, DefaultAnswerWithoutAHandler)
{
    const MsgBoxHandler previous = SetMsgBoxHandler({});
    EXPECT_EQ(MsgBox("?", vbYesNo | vbQuestion | vbDefaultButton2, "t"), vbNo);
    EXPECT_EQ(MsgBox("?", vbYesNo | vbQuestion, "t"), vbYes);
    EXPECT_EQ(MsgBox("!", vbOKOnly | vbExclamation, "t"), vbOK);
    SetMsgBoxHandler(previous);
}
