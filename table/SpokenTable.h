#pragma once
// What a screen reader hears of the game table. Every die, cell and total has a name that says
// what it shows. The die or cell under the keyboard cursor is the object the screen reader takes
// as focused, while the keys still go to the window. When the game comes to rest and waits for
// the player, the focused object first says what has just happened:
//  1. a roll has ended: the five faces in order and the rolls left, on the die under the cursor,
//     or, when the choosing opens, on the cell under the cursor (the prompt without the mode);
//  2. a category was taken: its points, on the prompt that asks the next player to roll.
// During a roll nothing is said; the dice are named again when they rest.
#include <QCoreApplication>
#include <QString>

#include "modGlobalVars.h"

class frmMain;
class GameTable;
class Label;
class QFrame;
class QWidget;

// picDisplayer: a sunken panel that a screen reader takes for an animation, and names only.
QFrame* NewDiceField(QWidget* parent);

class SpokenTable {
    Q_DECLARE_TR_FUNCTIONS(SpokenTable)
public:
    SpokenTable(frmMain& form, GameTable& logic);

    // The names, kept up to date with the looks. A die is not named while it rolls.
    void NameDie(int i);
    void NameCell(int category);
    void NameTotal(Label* total, const Label* row);   // "Left: 63"

    // The cursor's look came onto a die or a cell.
    void CursorOnDie(int i);
    void CursorOnCell(int category);
    // The game waits for the player.
    void Settled();
    // The window is active again: the screen reader comes back to the focused object.
    void Refocus();

private:
    QString RollNews() const;
    QString ScoreNews() const;
    void Focus(QWidget* target, const QString& news = {});
    void Say();
    void SetName(QWidget* w, const QString& name);

    frmMain& form_;
    GameTable& logic_;
    bool rolled_ = false;       // dice were drawn since the game last came to rest
    int chooser_ = 0;           // the player choosing, and the card as the choosing began
    ScoreCard card_{};
    QWidget* target_ = nullptr;
    QString news_;              // not said yet
    bool sayPending_ = false;   // one Say per turn of the event loop, when the steps are done
};
