#include "TypedKeyFilter.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>

namespace {
constexpr int KeyBackspace = 8;

int Characters(QStringView text) { return int(text.toUcs4().size()); }

class TypedKeyFilter : public QObject {
public:
    TypedKeyFilter(QLineEdit* box, KeyPressRule rule) : QObject(box), box_(box), rule_(std::move(rule)) {}

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::InputMethod) {
            auto* input = static_cast<QInputMethodEvent*>(event);
            const QString kept = Kept(input->commitString());
            if (kept != input->commitString())
                input->setCommitString(kept, input->replacementStart(), input->replacementLength());
            return false;
        }
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return false;
        const bool backspace = key->key() == Qt::Key_Backspace;
        const QString typed = backspace ? QString(QChar(KeyBackspace)) : key->text();
        if (!backspace && (typed.isEmpty() || !QChar::isPrint(typed.toUcs4().front())))
            return false;
        const QString kept = Kept(typed);
        if (kept == typed)
            return false;
        if (!kept.isEmpty())   // a key that types several characters, of which some are dropped
            box_->insert(kept);
        return true;
    }

private:
    // The characters of `typed` that the rule lets in, each judged as if typed in turn: the
    // first replaces the selection, the ones after it follow the caret.
    QString Kept(const QString& typed) const
    {
        const QString text = box_->text();
        const int caret = box_->hasSelectedText() ? box_->selectionStart() : box_->cursorPosition();
        int selStart = Characters(QStringView(text).left(caret));
        int selLength = Characters(box_->selectedText());
        int textLength = Characters(text);
        QString kept;
        for (char32_t character : typed.toUcs4()) {
            if (rule_(int(character), selStart, selLength, textLength))
                continue;
            kept += QString::fromUcs4(&character, 1);
            textLength += 1 - selLength;
            selStart += 1;
            selLength = 0;
        }
        return kept;
    }

    QLineEdit* box_;
    KeyPressRule rule_;
};

class CharacterLimit : public QValidator {
public:
    CharacterLimit(int characters, QObject* parent) : QValidator(parent), characters_(characters) {}

    State validate(QString& input, int& pos) const override
    {
        const QList<uint> all = input.toUcs4();
        if (all.size() > characters_) {
            input = QString::fromUcs4(reinterpret_cast<const char32_t*>(all.constData()), characters_);
            pos = std::min(pos, int(input.size()));
        }
        return Acceptable;
    }

private:
    int characters_;
};
}

void FilterTypedKeys(QLineEdit* box, KeyPressRule rule, QObject* outer)
{
    auto* filter = new TypedKeyFilter(box, std::move(rule));
    box->installEventFilter(filter);
    if (outer)
        outer->installEventFilter(filter);
}

void LimitCharacters(QLineEdit* box, int characters) { box->setValidator(new CharacterLimit(characters, box)); }
