#pragma once
// A dialog of the game: a fixed client area in twips with its controls at their own twip
// rectangles (no layouts), a single fixed border, no minimise or maximise box, and modal with
// its owner when shown by exec(). Created for one showing and discarded after it.
#include <QCoreApplication>   // Q_DECLARE_TR_FUNCTIONS, for each dialog's texts
#include <QDialog>

enum class TitleBar {
    CloseBox,     // the title-bar close box does what the dialog's cancelling button does
    NoCloseBox,   // no close box, and Escape does nothing: only the buttons answer
};

class DialogWindow : public QDialog {
public:
    DialogWindow(QWidget* owner, const QString& caption, int clientWidth, int clientHeight,
                 TitleBar titleBar, bool programIcon);

    // The client area, in twips; growing or shrinking it keeps it fixed for the user.
    int ClientWidth() const { return clientWidth_; }
    int ClientHeight() const { return clientHeight_; }
    void SetClientHeight(int twips);

    // Centred on its owner, by the outer edges of both windows.
    void CentreOnOwner();
    // What the window manager draws around the client area: the dialog's own once shown;
    // before that, its owner's, which carries the same kind of title bar (none when frameless).
    QSize Decoration() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    TitleBar titleBar_;
    int clientWidth_, clientHeight_;
};
