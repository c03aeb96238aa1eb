#include "Database.h"

Recordset Database::OpenRecordset(const std::string& statement, const Parameters& parameters) const
{
    return Recordset(connection_, statement, parameters);
}

bool Database::Execute(const std::string& statement, const Parameters& parameters) const
{
    return RunStatement(Handle(), statement, parameters);
}

bool Database::BeginTrans() const { return Execute("BEGIN IMMEDIATE"); }

bool Database::CommitTrans() const { return Execute("COMMIT"); }

void Database::Rollback() const
{
    if (IsOpen() && !sqlite3_get_autocommit(Handle()))
        Execute("ROLLBACK");
}

// Setting the header's user version to the value it holds is a real write of the first page:
// it fails on a file opened read-only, waits out another program's write lock, and needs the
// journal; rolled back, it changes nothing.
bool Database::TakesWrites() const
{
    std::string version;
    {
        Statement read(Handle(), "PRAGMA user_version", {});
        if (read.Step() != SQLITE_ROW)
            return false;
        version = read.Column(0).CStr();
    }
    const bool writes = BeginTrans() && Execute("PRAGMA user_version = " + version);
    Rollback();
    return writes;
}
