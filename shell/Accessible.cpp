#include "Accessible.h"

#include <QAccessibleWidget>
#include <QPointer>

#include "Frame.h"
#include "Label.h"

namespace {
QPointer<QWidget> g_focus;   // the label a screen reader takes as focused
QString g_news;              // said before its name
const char* const CheckedProperty = "zarvoChecked";   // set: the label reads as a check box

class LabelAccessible : public QAccessibleWidget {
public:
    explicit LabelAccessible(Label* label) : QAccessibleWidget(label) {}
    QAccessible::Role role() const override
    {
        if (Checked().isValid())
            return QAccessible::CheckBox;
        return Self()->Picture().isNull() ? QAccessible::StaticText : QAccessible::Graphic;
    }
    QAccessible::State state() const override
    {
        QAccessible::State s = QAccessibleWidget::state();
        s.focused = s.focused || g_focus == widget();
        s.focusable = s.focusable || s.focused;
        s.checkable = Checked().isValid();
        s.checked = Checked().toBool();
        return s;
    }
    QString text(QAccessible::Text t) const override
    {
        if (t != QAccessible::Name)
            return QAccessibleWidget::text(t);
        const QString name = Self()->accessibleName().isEmpty() ? SpokenCaption(Self()->Caption()) : Self()->accessibleName();
        return g_focus == widget() && !g_news.isEmpty() ? g_news + ' ' + name : name;
    }

private:
    const Label* Self() const { return static_cast<const Label*>(widget()); }
    QVariant Checked() const { return widget()->property(CheckedProperty); }
};

class FrameAccessible : public QAccessibleWidget {
public:
    // A section, not a panel: a screen reader entering a panel reads every label in it.
    explicit FrameAccessible(Frame* frame) : QAccessibleWidget(frame, QAccessible::Section) {}
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

void SetAccessibleFocus(QWidget* widget, const QString& news)
{
    g_focus = widget;
    g_news = news;
    QAccessibleEvent event(widget, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

QWidget* AccessibleFocus() { return g_focus; }

void DropAccessibleNews() { g_news.clear(); }

void SetAccessibleCheck(QWidget* label, std::optional<bool> checked)
{
    const QVariant before = label->property(CheckedProperty);
    label->setProperty(CheckedProperty, checked ? QVariant(*checked) : QVariant());
    if (!checked || !before.isValid() || before.toBool() == *checked)
        return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(label, changed);
    QAccessible::updateAccessibility(&event);
}

void NameRow(const QList<Label*>& cells, const QList<const Label*>& heads)
{
    QStringList parts;
    for (qsizetype i = 1; i < cells.size(); ++i)
        if (!cells[i]->Caption().trimmed().isEmpty())
            parts << (i <= heads.size() ? SpokenCaption(heads[i - 1]->Caption()) + ' ' : QString()) + cells[i]->Caption().trimmed();
    if (parts.isEmpty())
        return;
    const QString row = SpokenCaption(cells[0]->Caption()).trimmed() + ' ' + parts.join(", ");
    for (Label* cell : cells)
        cell->setAccessibleName(row);
}
