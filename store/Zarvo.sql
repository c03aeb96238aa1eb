-- The fresh data file "Zarvo.dat": the four tables of the game, the PlaceholderRow and ten
-- high scores to beat. The game itself never creates a table; the build writes this file
-- beside the program when none is there.
--
-- Truth values are written as -1 (yes) and 0 (no); any non-zero value reads as yes.
-- Dates are text 'YYYY-MM-DD HH:MM:SS', so ordering by the text orders by time.

CREATE TABLE Setup (
    RememberPlayers    INTEGER,
    UseKeyboard        INTEGER,
    ShowScoringPreview INTEGER,
    AnimateRolling     INTEGER
);

CREATE TABLE PlayersInUse (
    PlayerNumber INTEGER,
    PlayerName   TEXT
);

-- A new player gets only PlayerName and LowScore; the other figures must come up as 0,
-- never empty, or the end-of-game arithmetic breaks. Names differing only in case are two
-- players; an exact duplicate is refused.
CREATE TABLE Player (
    PlayerName   TEXT NOT NULL UNIQUE,
    HighScore    INTEGER NOT NULL DEFAULT 0,
    LowScore     INTEGER,
    AverageScore REAL NOT NULL DEFAULT 0,
    GamesPlayed  INTEGER NOT NULL DEFAULT 0
);

-- Always exactly ten rows, only ever overwritten. The empty name is allowed.
CREATE TABLE HighScores (
    Player TEXT,
    Score  INTEGER,
    Date   TEXT
);

-- Written first so that it has the lowest rowid: the list of known players skips the
-- first row, which must be this one.
INSERT INTO Player (PlayerName, HighScore, LowScore, AverageScore, GamesPlayed)
VALUES ('< Player >', 0, 9999, 0, 0);

INSERT INTO HighScores (Player, Score, Date) VALUES
    ('Ottilie', 248, '2024-03-09 20:14:05'),
    ('Bramwell', 231, '2024-01-21 18:02:47'),
    ('Quince', 219, '2023-12-30 22:41:10'),
    ('Marisol', 207, '2023-11-12 16:35:29'),
    ('Fenwick', 196, '2023-10-04 19:58:03'),
    ('Ludmila', 188, '2023-08-17 21:07:52'),
    ('Tobiah', 175, '2023-07-02 14:26:18'),
    ('Wren', 163, '2023-05-26 17:49:36'),
    ('Castor', 150, '2023-04-15 12:11:44'),
    ('Isadora', 142, '2023-02-28 20:30:00');
