#include "HighScoreWindows.h"

#include "HighScoreCheck.h"
#include "frmHighScoreNotify.h"
#include "frmHighScores.h"

namespace {
// The check's two windows, modal with the main window as owner.
class OwnedDialogs : public HighScoreDialogs {
public:
    explicit OwnedDialogs(QWidget* owner) : owner_(owner) {}

    void ShowHighScoreNotify() override
    {
        frmHighScoreNotify form(owner_);
        form.CentreOnOwner();
        form.exec();
    }
    void ShowHighScores() override { ShowHighScoresDialog(owner_); }

private:
    QWidget* owner_;
};
}

void CheckHighScoreWithDialogs(int player, QWidget* owner)
{
    OwnedDialogs dialogs(owner);
    CheckHighScore(player, dialogs);
}

void ShowHighScoresDialog(QWidget* owner)
{
    frmHighScores form(owner);
    if (!form.Loaded())
        return;
    form.CentreOnOwner();
    form.exec();
}
