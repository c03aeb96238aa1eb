#pragma once
// The entry into the player dialog, for the game table's menu and the end of a game.
class GameTable;
class QWidget;

// mnuNewPlayers_Click: frmPlayers centred across `owner` with their top edges level, shown
// modally. Its Play sets gPlayerNames and starts `game` with them; its Close changes nothing.
void ShowPlayersDialog(QWidget* owner, GameTable& game);
