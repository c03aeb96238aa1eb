#pragma once
// A frame: an etched rectangle with its caption standing on the top line, holding controls
// placed relative to its own top-left corner.
#include <QWidget>

class Frame : public QWidget {
public:
    explicit Frame(QWidget* parent) : QWidget(parent) {}

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QString caption_;
};
