#pragma once
// One open connection to the data file, shared with every set opened on it.
#include <sqlite3.h>

#include <memory>
#include <string>

#include "Recordset.h"
#include "Statement.h"

class Database {
public:
    Database() = default;
    explicit Database(std::shared_ptr<sqlite3> connection) : connection_(std::move(connection)) {}

    bool IsOpen() const { return connection_ != nullptr; }

    // Values reach the statement only through its `?` parameters.
    Recordset OpenRecordset(const std::string& statement, const Parameters& parameters = {}) const;
    // Runs a statement that gives no rows; false when it failed.
    bool Execute(const std::string& statement, const Parameters& parameters = {}) const;

    // Writes that belong together. BeginTrans takes the write lock at once, so a file that
    // another running game holds fails here, before anything has changed.
    bool BeginTrans() const;
    bool CommitTrans() const;
    // Harmless when no transaction is open.
    void Rollback() const;

    // True when the file takes writes: it was not opened read-only, its write lock comes free
    // within the busy wait, and a journal can be made beside it. Learned by a write that is
    // rolled back, so the file keeps every byte and no journal stays behind.
    bool TakesWrites() const;

    // Sets opened on this connection keep it open until they are gone too.
    void Close() { connection_.reset(); }

private:
    sqlite3* Handle() const { return connection_.get(); }

    std::shared_ptr<sqlite3> connection_;
};
