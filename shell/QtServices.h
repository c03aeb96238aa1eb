#pragma once
// Puts the window toolkit behind the plain services: the message box, the program's
// directory, the style, palette and default font of every window.
#include <QRect>
#include <string>

class QApplication;
void InstallQtServices(QApplication& app);

// A rectangle given in twips, in pixels.
QRect TwipsRect(int left, int top, int width, int height);

// The message box itself, for a caller that has its own handler in place (tests).
int QtMsgBox(const std::string& text, int style, const std::string& title);
