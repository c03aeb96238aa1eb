#include "Label.h"

#include <QMouseEvent>
#include <QPainter>

#include "Accessible.h"
#include "QtServices.h"

namespace {
Qt::Alignment Horizontal(Align alignment)
{
    switch (alignment) {
    case Align::Centre: return Qt::AlignHCenter;
    case Align::Right: return Qt::AlignRight;
    case Align::Left: break;
    }
    return Qt::AlignLeft;
}
}

Label::Label(QWidget* parent, Align alignment) : QWidget(parent), alignment_(alignment) {}

void Label::SetCaption(const QString& caption)
{
    if (caption_ == caption)
        return;
    caption_ = caption;
    update();
    if (accessibleName().isEmpty())
        AnnounceNameChange(this);
}

void Label::SetBorderStyle(int style) { borderStyle_ = style; update(); }
void Label::SetBackStyle(int style) { backStyle_ = style; update(); }
void Label::SetBackColor(const QColor& color) { backColor_ = color; update(); }
void Label::SetForeColor(const QColor& color) { foreColor_ = color; update(); }
void Label::SetPicture(const QPixmap& picture) { picture_ = picture; update(); }

void Label::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (backStyle_ == 1)
        painter.fillRect(rect(), backColor_);
    if (!picture_.isNull())
        painter.drawPixmap(0, 0, picture_);
    QRect textArea = rect();
    if (borderStyle_ == 1) {
        painter.setPen(Qt::black);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        textArea.adjust(1, 1, -1, -1);
    }
    if (!caption_.isEmpty()) {
        painter.setPen(foreColor_);
        painter.setFont(font());
        painter.drawText(textArea, int(Horizontal(alignment_) | Qt::AlignTop | Qt::TextWordWrap), caption_);
    }
}

void Label::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        leftPressed_ = true;
    event->accept();
}

void Label::mouseReleaseEvent(QMouseEvent* event)
{
    const int button = event->button() == Qt::LeftButton    ? 1
                       : event->button() == Qt::RightButton ? 2
                       : event->button() == Qt::MiddleButton ? 4
                                                             : 0;
    const bool click = event->button() == Qt::LeftButton && leftPressed_ && rect().contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton)
        leftPressed_ = false;
    event->accept();
    if (button != 0)
        emit MouseUp(button);
    if (click)
        emit Click();
}

Label* NewLabel(QWidget* parent, TwipRect place, const QString& caption, Align alignment)
{
    auto* label = new Label(parent, alignment);
    Place(label, place);
    label->SetCaption(caption);
    return label;
}

void SetBold(QWidget* widget)
{
    QFont font = widget->font();
    font.setBold(true);
    widget->setFont(font);
}

Line::Line(QWidget* parent, int x1, int y1, int x2, int y2, const QColor& color)
    : QWidget(parent), x1_(x1), y1_(y1), x2_(x2), y2_(y2)
{
    const int left = TwipsToPixels(std::min(x1, x2));
    const int top = TwipsToPixels(std::min(y1, y2));
    const int width = std::max(1, TwipsToPixels(std::abs(x2 - x1)));
    const int height = std::max(1, TwipsToPixels(std::abs(y2 - y1)));
    setGeometry(left, top, width, height);
    setAutoFillBackground(true);
    QPalette p = palette();
    p.setColor(QPalette::Window, color);
    setPalette(p);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}
