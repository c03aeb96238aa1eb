#include "Frame.h"

#include <QPainter>

#include "Accessible.h"
#include "Look.h"

void Frame::SetCaption(const QString& caption)
{
    caption_ = caption;
    update();
    if (accessibleName().isEmpty())
        AnnounceNameChange(this);
}

void Frame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QFontMetrics metrics(font());
    const int lineY = metrics.height() / 2;
    const QRect box(0, lineY, width() - 2, height() - lineY - 2);
    painter.setPen(Look::ApplicationWorkspace);
    painter.drawRect(box);
    painter.setPen(Look::WindowBackground);
    painter.drawRect(box.translated(1, 1));
    if (caption_.isEmpty())
        return;
    const QRect text(8, 0, metrics.horizontalAdvance(caption_) + 4, metrics.height());
    painter.fillRect(text, palette().window());
    painter.setPen(Qt::black);
    painter.drawText(text, Qt::AlignCenter, caption_);
}
