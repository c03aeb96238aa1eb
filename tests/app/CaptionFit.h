#pragma once
// Whether a label's caption fits it: the ink of the caption, drawn as the label draws it on a
// canvas three times its size, falls inside the label's rectangle less its border.
#include <QImage>
#include <QPainter>

#include "Label.h"

inline bool InkFits(const Label* label)
{
    const qreal ratio = label->devicePixelRatioF();
    const QSize size = label->size() - QSize(2, 2) * label->BorderStyle();
    QImage canvas(size * 3 * ratio, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::transparent);
    const QRect inside(QPoint(size.width(), 0), size);
    {
        QPainter painter(&canvas);
        painter.setFont(label->font());
        const int across = label->Alignment() == Align::Centre ? Qt::AlignHCenter
                           : label->Alignment() == Align::Right ? Qt::AlignRight : Qt::AlignLeft;
        painter.drawText(QRect(inside.topLeft(), QSize(size.width(), size.height() * 3)),
                         across | Qt::AlignTop | Qt::TextWordWrap, label->Caption());
    }
    const QRect allowed = QRectF(QPointF(inside.topLeft()) * ratio, QSizeF(inside.size()) * ratio).toAlignedRect();
    QRect ink;
    for (int y = 0; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x)
            if (qAlpha(canvas.pixel(x, y)))
                ink |= QRect(x, y, 1, 1);
    return allowed.contains(ink);
}
