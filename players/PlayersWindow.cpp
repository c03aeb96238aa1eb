#include "PlayersWindow.h"

// Placeholder until frmPlayers lands.
void ShowPlayersDialog(QWidget*, TableScreen&, GameTable&) {}
