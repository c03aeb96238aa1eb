#include "PlayersWindow.h"

#include "frmPlayers.h"

void ShowPlayersDialog(QWidget* owner, GameTable& game)
{
    frmPlayers dialog(owner, game);
    // Top edges level, centred across the owner, by the outer edges of both windows.
    const QRect outer = owner->frameGeometry();
    const int dialogWidth = dialog.width() + dialog.Decoration().width();
    dialog.move(outer.x() + (outer.width() - dialogWidth) / 2, outer.y());
    dialog.exec();
}
