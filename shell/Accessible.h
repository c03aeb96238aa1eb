#pragma once
// Our painted widgets tell screen readers what they show: a label its caption (or the name its
// window gives it), a picture its name, a frame its caption, a line that it is a separator.
// Tooltips become descriptions.

// Called once by the toolkit set-up; Qt asks the factory for every widget.
void InstallAccessibleFactory();

class QString;
class QWidget;

// A caption as a screen reader should say it: without the run of leader dots that leads the
// eye from a row caption to its cell ("Ones...." is "Ones"); a single full stop stays.
QString SpokenCaption(QString caption);

// Tells a screen reader that the name of `widget` has changed, so that it is announced.
void AnnounceNameChange(QWidget* widget);
