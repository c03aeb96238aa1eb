#pragma once
// The message box as the game's logic sees it: plain text in, the pressed button out.
// The window layer installs the real dialog; tests install a scripted one.
#include <functional>
#include <string>

enum MsgBoxStyle {
    vbOKOnly = 0,
    vbYesNo = 4,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
};

enum MsgBoxResult { vbOK = 1, vbYes = 6, vbNo = 7 };

// "\r\n" in a text is one line break on screen.
inline const char* const vbCrLf = "\r\n";

using MsgBoxHandler = std::function<int(const std::string& text, int style, const std::string& title)>;

// Blocks until the user answers; gives vbOK, vbYes or vbNo.
int MsgBox(const std::string& text, int style, const std::string& title);

// Replaces the handler; gives back the one it replaced.
MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler);
