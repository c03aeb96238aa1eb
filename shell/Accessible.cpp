#include "Accessible.h"

#include <QAccessibleWidget>

#include "Frame.h"
#include "Label.h"

namespace {
class LabelAccessible : public QAccessibleWidget {
public:
    explicit LabelAccessible(Label* label) : QAccessibleWidget(label) {}
    QAccessible::Role role() const override
    {
        return Self()->Picture().isNull() ? QAccessible::StaticText : QAccessible::Graphic;
    }
    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name && Self()->accessibleName().isEmpty())
            return SpokenCaption(Self()->Caption());
        return QAccessibleWidget::text(t);
    }

private:
    const Label* Self() const { return static_cast<const Label*>(widget()); }
};

class FrameAccessible : public QAccessibleWidget {
public:
    explicit FrameAccessible(Frame* frame) : QAccessibleWidget(frame, QAccessible::Grouping) {}
    QString text(QAccessible::Text t) const override
    {
        const auto* frame = static_cast<const Frame*>(widget());
        if (t == QAccessible::Name && frame->accessibleName().isEmpty())
            return frame->Caption();
        return QAccessibleWidget::text(t);
    }
};

QAccessibleInterface* Factory(const QString&, QObject* object)
{
    if (auto* label = dynamic_cast<Label*>(object))
        return new LabelAccessible(label);
    if (auto* frame = dynamic_cast<Frame*>(object))
        return new FrameAccessible(frame);
    if (auto* line = dynamic_cast<Line*>(object))
        return new QAccessibleWidget(line, QAccessible::Separator);
    return nullptr;
}
}

QString SpokenCaption(QString caption)
{
    qsizetype end = caption.size();
    while (end > 0 && caption[end - 1] == '.')
        --end;
    return caption.size() - end >= 2 ? caption.left(end) : caption;
}

void InstallAccessibleFactory() { QAccessible::installFactory(Factory); }

void AnnounceNameChange(QWidget* widget)
{
    QAccessibleEvent event(widget, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}
