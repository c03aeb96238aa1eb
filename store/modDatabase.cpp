#include "modDatabase.h"

#include "AppPath.h"
#include "MsgBox.h"
#include "Translate.h"

Workspace gDataWorkspace;
Database gDataDatabase;

namespace {
// Long enough for another running game to finish its short piece of work, short enough
// that the game does not seem to hang when the file stays locked.
constexpr int BusyTimeoutMilliseconds = 2000;

// The quick integrity check is cheap on a file this small, and it keeps the game from ever
// writing into a damaged file. A file of zero length passes it (SQLite takes it for an
// empty database) but has none of the tables, so it is refused without a byte written.
bool IsUsableDataFile(sqlite3* connection)
{
    Statement check(connection, "PRAGMA quick_check", {});
    if (check.Step() != SQLITE_ROW || check.Column(0).CStr() != "ok")
        return false;
    Statement tables(connection,
                     "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name IN "
                     "('Setup', 'PlayersInUse', 'Player', 'HighScores')",
                     {});
    return tables.Step() == SQLITE_ROW && tables.Column(0).CLng() == 4;
}

void ShowOpenError()
{
    MsgBox(Translate("modDatabase", "There was an error opening the\r\ndata file. Please make sure the file\r\n"
                                    "'Zarvo.dat' exists in this directory."),
           vbOKOnly | vbCritical, Translate("modDatabase", "Zarvo - Data File Error"));
}

// A game reads and writes a few rows of a small file. SQLite's reserves for each connection
// (lookaside slots and a block of page cache) suit large databases and would be most of its
// heap here. Only possible before SQLite starts; a later call is refused and changes nothing.
void UseLittleMemory()
{
    sqlite3_config(SQLITE_CONFIG_LOOKASIDE, 0, 0);
    sqlite3_config(SQLITE_CONFIG_PAGECACHE, nullptr, 0, 0);
}
}

bool OpenDataFile(bool ShowError)
{
    [[maybe_unused]] static const bool configured = (UseLittleMemory(), true);
    sqlite3* raw = nullptr;
    const int opened =
        sqlite3_open_v2(AppFile("Zarvo.dat").c_str(), &raw, SQLITE_OPEN_READWRITE, nullptr);
    // A failed open still hands back a handle that must be closed.
    std::shared_ptr<sqlite3> connection(raw, sqlite3_close_v2);
    if (opened == SQLITE_OK) {
        sqlite3_busy_timeout(raw, BusyTimeoutMilliseconds);
        if (IsUsableDataFile(raw)) {
            gDataDatabase = Database(std::move(connection));
            return true;
        }
    }
    if (ShowError)
        ShowOpenError();
    CloseDataFile();
    return false;
}

bool OpenDataFileForWriting()
{
    if (!OpenDataFile(false))
        return false;
    if (gDataDatabase.TakesWrites())
        return true;
    CloseDataFile();
    return false;
}

void CloseDataFile() { gDataDatabase.Close(); }
