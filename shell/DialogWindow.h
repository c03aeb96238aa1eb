#pragma once
// A dialog of the game: a fixed client area in twips with its controls at their own twip
// rectangles (no layouts), a single fixed border, no minimise or maximise box, and modal with
// its owner when shown by exec(). Created for one showing and discarded after it.
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
    int ClientHeight() const;
    void SetClientHeight(int twips);

    // Where the dialog opens, as the outer edges of the windows: centred on its owner, or at
    // a Left and Top of the screen in twips.
    void CentreOnOwner();
    void MoveTo(int left, int top);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    TitleBar titleBar_;
};
