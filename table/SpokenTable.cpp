#include "SpokenTable.h"

#include <QTimer>

#include <QAccessibleWidget>
#include <QFrame>

#include "Accessible.h"
#include "frmMain.h"

namespace {
bool Shown(const QWidget* w) { return !w->isHidden(); }

class DiceField : public QFrame {
public:
    using QFrame::QFrame;
};

// The game table is a frame with a title, as a main window is; the dice field an animation.
QAccessibleInterface* TableAccessible(const QString&, QObject* object)
{
    if (auto* form = qobject_cast<frmMain*>(object))
        return new QAccessibleWidget(form, QAccessible::Window);
    auto* field = dynamic_cast<DiceField*>(object);
    return field ? new QAccessibleWidget(field, QAccessible::Animation) : nullptr;
}
}

QFrame* NewDiceField(QWidget* parent) { return new DiceField(parent); }

SpokenTable::SpokenTable(frmMain& form, GameTable& logic) : form_(form), logic_(logic)
{
    // Before the window's first title: Qt keeps the first answer it gets for each widget.
    QAccessible::installFactory(TableAccessible);   // once: Qt keeps each factory once
}

// While the player decides, a die in its column reads as a check box, checked when kept:
// "Keep die 3: five". On the pile, or while the choosing lasts, it only says its face.
void SpokenTable::NameDie(int i)
{
    if (logic_.mRollPhase != 0) {
        if (!rolled_) {   // said once, not at each step of the dice
            SetName(form_.picDisplayer, tr("Rolling"));
            Focus(form_.picDisplayer);
        }
        rolled_ = true;
        return;
    }
    static const char* const faces[] = {"", QT_TR_NOOP("one"), QT_TR_NOOP("two"), QT_TR_NOOP("three"),
                                        QT_TR_NOOP("four"), QT_TR_NOOP("five"), QT_TR_NOOP("six")};
    Label* die = form_.imgDie[i];
    const QString face = tr(faces[form_.DieFace(i)]);
    const bool inColumn = form_.DieLeft(i) == DieColumnLeft(i) && !Shown(form_.lblPleaseRoll);
    const bool deciding = inColumn && form_.DieLabelsVisible();
    SetAccessibleCheck(die, deciding ? std::optional(form_.DieTop(i) == KeepRow) : std::nullopt);
    SetName(die, !inColumn ? tr("Die %1: on the pile").arg(i + 1)
                 : deciding ? tr("Keep die %1: %2").arg(i + 1).arg(face) : tr("Die %1: %2").arg(i + 1).arg(face));
}

// "Threes: 6" for a filled cell; while choosing, what an open one would score now, its bonus
// said apart, whatever the preview shows.
void SpokenTable::NameCell(int category)
{
    if (gCurrentPlayer > gScores.UBound())
        return;   // no game yet
    const int value = gScores[gCurrentPlayer][category];
    QString state = value >= 0 ? QString::number(value) : tr("open");
    if (value < 0 && form_.CellBorderStyle(category) == 1) {
        const Evaluation e = logic_.Evaluate(category);
        state = e.Sum() == 0 ? tr("open, would score nothing")
                : e.bonus   ? tr("open, would score %1 and a bonus of %2").arg(e.score).arg(e.bonus)
                            : tr("open, would score %1").arg(e.score);
    }
    SetName(form_.Cell(category), SpokenCaption(form_.lblCategoryNames[category - 1]->Caption()) + ": " + state);
}

void SpokenTable::NameTotal(Label* total, const Label* row)
{
    SetName(total, SpokenCaption(row->Caption()) + ": " + total->Caption());
}

void SpokenTable::SetName(QWidget* w, const QString& name)
{
    if (w->accessibleName() == name)
        return;   // each change is announced: only real ones
    if (AccessibleFocus() == w)
        DropAccessibleNews();   // the new name is the news now
    w->setAccessibleName(name);
}

void SpokenTable::CursorOnDie(int i) { Focus(form_.imgDie[i]); }
void SpokenTable::CursorOnCell(int category) { Focus(form_.Cell(category)); }

void SpokenTable::Settled()
{
    SetName(form_.picDisplayer, tr("Dice"));
    for (int i = 0; i < 5; ++i)
        NameDie(i);
    if (Shown(form_.lblPleaseRoll)) {
        Focus(form_.lblPleaseRoll, ScoreNews());
        rolled_ = false;   // a roll cut short by a new game has nothing to tell
        chooser_ = 0;
        return;
    }
    const bool keyboard = form_.mnuUseKeyboard->isChecked();
    const QString rolled = rolled_ ? RollNews() : QString();
    rolled_ = false;
    if (Shown(form_.lblSelectCategory)) {
        chooser_ = gCurrentPlayer;
        card_ = gScores[gCurrentPlayer];
        const QString choose = form_.lblSelectCategory->Caption();
        keyboard ? Focus(form_.Cell(logic_.mKeyCursor), (rolled + ' ' + choose).trimmed())
                 : Focus(form_.lblSelectCategory, rolled);
    } else {
        Focus(form_.imgDie[logic_.mKeyCursor], rolled);
    }
}

// "Rolled 2, 5, 5, 1, 6. One roll left."
QString SpokenTable::RollNews() const
{
    QStringList faces;
    for (int face : logic_.mDice)
        faces << QString::number(face);
    const char* const left[] = {QT_TR_NOOP("No rolls left."), QT_TR_NOOP("One roll left."), QT_TR_NOOP("Two rolls left.")};
    return tr("Rolled %1.").arg(faces.join(", ")) + ' ' + tr(left[qBound(0, 3 - logic_.mRollsDone, 2)]);
}

// "Threes: 9 written." for the category the last choosing filled, its bonus said apart.
QString SpokenTable::ScoreNews() const
{
    if (chooser_ < 1 || chooser_ > gScores.UBound())
        return {};
    const ScoreCard& now = gScores[chooser_];
    for (int c = 1; c <= CategoryCount; ++c) {
        if (card_[c] != EmptyCell || now[c] == EmptyCell)
            continue;
        const QString name = SpokenCaption(form_.lblCategoryNames[c - 1]->Caption());
        const int bonus = now[BonusCell] - card_[BonusCell];
        return bonus ? tr("%1: %2 and a bonus of %3 written.").arg(name).arg(now[c]).arg(bonus)
                     : tr("%1: %2 written.").arg(name).arg(now[c]);
    }
    return {};   // a new game cleared the card
}

// The steps of a key or a tick may move the focus several times; the screen reader hears where
// it ends, once the event is done, and only from the active window, so that a question in front
// keeps the keys and the voice until it closes.
void SpokenTable::Focus(QWidget* target, const QString& news)
{
    target_ = target;
    news_ = news;
    if (!sayPending_) {
        sayPending_ = true;
        QTimer::singleShot(0, &form_, [this] { Say(); });
    }
}

void SpokenTable::Say()
{
    sayPending_ = false;
    if (!target_ || !form_.isActiveWindow())
        return;   // Refocus says it when the window is active again
    SetAccessibleFocus(target_, news_);
    news_.clear();
}

void SpokenTable::Refocus()
{
    if (target_)
        Focus(target_, news_);
}
