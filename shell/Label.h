#pragma once
// A label (or picture) with the properties the windows use: Caption, BorderStyle, BackStyle,
// BackColor, ForeColor, alignment, and a picture. It paints itself, so that a disabled parent
// neither greys its text nor its picture, and it reports mouse releases and clicks.
#include <QPixmap>
#include <QWidget>

#include "Twips.h"

// Where a caption stands across its label. An enum class of its own, so that it never passes
// for a number (or a number for it) in a call.
enum class Align { Left, Centre, Right };

class Label : public QWidget {
    Q_OBJECT
public:
    Label(QWidget* parent, Align alignment);

    Align Alignment() const { return alignment_; }

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    int BorderStyle() const { return borderStyle_; }   // 0 none, 1 single
    void SetBorderStyle(int style);
    int BackStyle() const { return backStyle_; }       // 0 transparent, 1 opaque
    void SetBackStyle(int style);
    QColor BackColor() const { return backColor_; }
    void SetBackColor(const QColor& color);
    QColor ForeColor() const { return foreColor_; }
    void SetForeColor(const QColor& color);
    void SetPicture(const QPixmap& picture);
    const QPixmap& Picture() const { return picture_; }

signals:
    void MouseUp(int button);   // 1 left, 2 right, 4 middle
    void Click();               // the left button pressed and released over the label

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString caption_;
    Align alignment_;
    int borderStyle_ = 0;
    int backStyle_ = 0;
    QColor backColor_;
    QColor foreColor_{Qt::black};
    QPixmap picture_;
    bool leftPressed_ = false;
};

// The one way to make a label: at its twip rectangle in `parent`, with its caption.
Label* NewLabel(QWidget* parent, TwipRect place, const QString& caption = {}, Align alignment = Align::Left);
// The widget's own font, made bold.
void SetBold(QWidget* widget);

// A straight line of one pixel, from (x1, y1) to (x2, y2) in twips of its parent.
class Line : public QWidget {
public:
    Line(QWidget* parent, int x1, int y1, int x2, int y2, const QColor& color);

    // Its ends, in twips.
    int X1() const { return x1_; }
    int Y1() const { return y1_; }
    int X2() const { return x2_; }
    int Y2() const { return y2_; }

private:
    int x1_, y1_, x2_, y2_;
};
