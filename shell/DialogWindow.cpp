#include "DialogWindow.h"

#include <QApplication>
#include <QKeyEvent>

#include "Twips.h"

DialogWindow::DialogWindow(QWidget* owner, const QString& caption, int clientWidth, int clientHeight,
                           TitleBar titleBar, bool programIcon)
    : QDialog(owner), titleBar_(titleBar), clientWidth_(clientWidth), clientHeight_(clientHeight)
{
    Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (titleBar == TitleBar::CloseBox)
        flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    setWindowFlags(flags);
    setWindowTitle(caption);
    if (programIcon) {
        setWindowIcon(QApplication::windowIcon());
    } else {
        QPixmap none(16, 16);   // an empty icon would fall back to the program's
        none.fill(Qt::transparent);
        setWindowIcon(QIcon(none));
    }
    setFixedSize(TwipsToPixels(clientWidth), TwipsToPixels(clientHeight));
}

void DialogWindow::SetClientHeight(int twips)
{
    clientHeight_ = twips;
    setFixedHeight(TwipsToPixels(twips));
}

void DialogWindow::CentreOnOwner()
{
    const QWidget* owner = parentWidget() ? parentWidget()->window() : nullptr;
    if (!owner)
        return;
    const QRect outer = owner->frameGeometry();
    const QSize frame = Decoration();
    move(outer.x() + (outer.width() - width() - frame.width()) / 2,
         outer.y() + (outer.height() - height() - frame.height()) / 2);
}

QSize DialogWindow::Decoration() const
{
    const QWidget* owner = parentWidget() ? parentWidget()->window() : nullptr;
    if (isVisible())
        return frameGeometry().size() - size();
    if (windowFlags().testFlag(Qt::FramelessWindowHint) || !owner)
        return {};
    return owner->frameGeometry().size() - owner->size();
}

void DialogWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && titleBar_ == TitleBar::NoCloseBox) {
        event->accept();   // no cancelling button: the question waits for its answer
        return;
    }
    QDialog::keyPressEvent(event);
}
