#pragma once
// Puts the window toolkit behind the plain services: the message box, the program's
// directory, the style, palette and default font of every window.
#include <string>

#include "Twips.h"

class QApplication;
class QWidget;
void InstallQtServices(QApplication& app);

// Puts a control at its rectangle in twips of its parent. The twips are kept with the control,
// since the pixels (15 twips each) could only give them back rounded.
void Place(QWidget* control, TwipRect place);
// The rectangle the control was placed at, in twips.
TwipRect PlaceOf(const QWidget* control);
// A change of Top or of Height by `twips` (upwards or shorter when negative).
void AddToTop(QWidget* control, int twips);
void AddToHeight(QWidget* control, int twips);

// The message box itself, for a caller that has its own handler in place (tests).
int QtMsgBox(const std::string& text, int style, const std::string& title);
