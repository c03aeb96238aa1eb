#pragma once
// One prepared SQLite statement with its parameters bound, finalised when it goes out of
// scope. Every value reaches SQL through a `?` parameter, never through the statement text,
// so a name with quotes or SQL in it is plain data.
#include <sqlite3.h>

#include <string>
#include <vector>

#include "Variant.h"

using Parameters = std::vector<Variant>;

class Statement {
public:
    Statement(sqlite3* connection, const std::string& text, const Parameters& parameters);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    // False when the text did not compile against the file (a table or column is missing)
    // or a parameter could not be bound.
    bool Prepared() const { return handle_ != nullptr; }
    // SQLITE_ROW, SQLITE_DONE or an error code.
    int Step();
    int ColumnCount() const;
    Variant Column(int index) const;
    sqlite3_stmt* Handle() const { return handle_; }

private:
    sqlite3_stmt* handle_ = nullptr;
};

// Runs a statement that gives no rows; true when it ran to the end.
bool RunStatement(sqlite3* connection, const std::string& text, const Parameters& parameters = {});
