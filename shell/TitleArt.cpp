#include "TitleArt.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include "Look.h"

namespace {
const QColor Gold{0xE8, 0xB8, 0x4A};
const QColor DeepGreen{0x04, 0x2E, 0x14};

struct Die { double x, y, angle; };   // centre and turn in degrees
constexpr double DieSize = 44;
// Scattered as if thrown from the left, a little turned each.
constexpr Die Dice[] = {{48, 163, -16}, {97, 150, 11}, {146, 171, -5}, {195, 151, 19}, {244, 166, -9}};

void DrawDie(QPainter& painter, const Die& die)
{
    painter.save();
    painter.translate(die.x, die.y);
    painter.rotate(die.angle);
    const QRectF body(-DieSize / 2, -DieSize / 2, DieSize, DieSize);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 90));
    painter.drawRoundedRect(body.translated(4, 5), 8, 8);   // shadow on the cloth
    QLinearGradient shine(body.topLeft(), body.bottomRight());
    shine.setColorAt(0, Qt::white);
    shine.setColorAt(1, QColor(0xD8, 0xD8, 0xD8));
    painter.setBrush(shine);
    painter.setPen(QPen(QColor(0x90, 0x90, 0x90), 1.5));
    painter.drawRoundedRect(body, 8, 8);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    const double off = DieSize * 0.27;
    for (QPointF pip : {QPointF(-off, -off), QPointF(off, -off), QPointF(0, 0), QPointF(-off, off), QPointF(off, off)})
        painter.drawEllipse(pip, 4.5, 4.5);
    painter.restore();
}
}

QImage DrawTitleArt()
{
    QImage art(TitleArtWidth, TitleArtHeight, QImage::Format_RGB32);
    QPainter painter(&art);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);

    QRadialGradient baize(TitleArtWidth / 2.0, TitleArtHeight / 2.5, TitleArtWidth * 0.7);
    baize.setColorAt(0, QColor(0x12, 0x7A, 0x3A));
    baize.setColorAt(1, DeepGreen);
    painter.fillRect(art.rect(), baize);
    painter.setPen(QPen(Gold, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(6, 6, TitleArtWidth - 12, TitleArtHeight - 12), 10, 10);

    QFont name(Look::SerifFamily);
    name.setPixelSize(62);
    name.setBold(true);
    name.setItalic(true);
    painter.setFont(name);
    const QRect nameArea(0, 16, TitleArtWidth, 86);
    painter.setPen(DeepGreen);
    painter.drawText(nameArea.translated(3, 3), Qt::AlignCenter, "Zarvo");
    painter.setPen(Gold);
    painter.drawText(nameArea, Qt::AlignCenter, "Zarvo");

    for (const Die& die : Dice)
        DrawDie(painter, die);

    QFont motto(Look::SerifFamily);
    motto.setPixelSize(14);
    motto.setItalic(true);
    painter.setFont(motto);
    painter.setPen(QColor(0xF4, 0xEC, 0xD0));
    painter.drawText(QRect(0, 196, TitleArtWidth, 24), Qt::AlignCenter, "five dice, thirteen chances");
    return art;
}
