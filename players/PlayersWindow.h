#pragma once
// The entry into the player dialog, for the game table's menu and the end of a game.
class GameTable;
class QWidget;
class TableScreen;

// mnuNewPlayers_Click: frmPlayers centred across `owner` with their top edges level, shown
// modally. Its Play sets gPlayerNames, mnuScoringSummary and the session statistics through
// `table` and starts a new game of `game`; its Close changes nothing.
void ShowPlayersDialog(QWidget* owner, TableScreen& table, GameTable& game);
