#include "TypedKeyFilter.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {
class TypedKeyFilter : public QObject {
public:
    TypedKeyFilter(QLineEdit* box, KeyPressRule rule) : QObject(box), box_(box), rule_(std::move(rule)) {}

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return false;
        int keyAscii = 0;
        if (key->key() == Qt::Key_Backspace)
            keyAscii = 8;
        else if (key->text().size() == 1 && key->text()[0].isPrint())
            keyAscii = key->text()[0].unicode();
        else
            return false;
        const int selStart = box_->hasSelectedText() ? box_->selectionStart() : box_->cursorPosition();
        return rule_(keyAscii, selStart, int(box_->selectedText().size()), int(box_->text().size()));
    }

private:
    QLineEdit* box_;
    KeyPressRule rule_;
};
}

void FilterTypedKeys(QLineEdit* box, KeyPressRule rule, QObject* outer)
{
    auto* filter = new TypedKeyFilter(box, std::move(rule));
    box->installEventFilter(filter);
    if (outer)
        outer->installEventFilter(filter);
}
