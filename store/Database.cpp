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
