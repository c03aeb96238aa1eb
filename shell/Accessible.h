#pragma once
// Our painted widgets tell screen readers what they show: a label its caption (or the name its
// window gives it), a picture its name, a frame its caption, a line that it is a separator.
// Tooltips become descriptions.
#include <QList>
#include <QString>
#include <optional>

class Label;
class QWidget;

// Called once by the toolkit set-up; Qt asks the factory for every widget.
void InstallAccessibleFactory();

// A caption as a screen reader should say it: without the run of leader dots that leads the
// eye from a row caption to its cell ("Ones...." is "Ones"); a single full stop stays.
QString SpokenCaption(QString caption);

// Tells a screen reader that the name of `widget` has changed, so that it is announced.
void AnnounceNameChange(QWidget* widget);

// Makes a widget the object a screen reader takes as focused, while the keys still go where
// the window sends them (the game table's keyboard cursor). `news`, said before a label's name,
// tells what has just happened; it lasts until the focus moves on or DropAccessibleNews.
void SetAccessibleFocus(QWidget* widget, const QString& news = {});
QWidget* AccessibleFocus();
void DropAccessibleNews();

// The labels of one row of a window's table named alike, by the whole row: the first cell, then
// each other cell after its column's head ("Session: High 57, Low 57, Average 57"). A screen
// reader that reads a window's text then says the row once, in its place, where it would leave
// out each short cell alone. A row whose other cells are all empty keeps its names.
void NameRow(const QList<Label*>& cells, const QList<const Label*>& heads = {});

// A label that reads as a check box, checked or not (a die that can be kept); std::nullopt
// makes it a plain label again. A change of the mark is announced.
void SetAccessibleCheck(QWidget* label, std::optional<bool> checked);
