#include "Statement.h"

#include <type_traits>

namespace {
int Bind(sqlite3_stmt* statement, int position, const Variant& value)
{
    return value.Visit([&](const auto& held) {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, long long>)
            return sqlite3_bind_int64(statement, position, held);
        else if constexpr (std::is_same_v<Held, double>)
            return sqlite3_bind_double(statement, position, held);
        else if constexpr (std::is_same_v<Held, std::string>)
            return sqlite3_bind_text(statement, position, held.data(), int(held.size()),
                                     SQLITE_TRANSIENT);
        else
            return sqlite3_bind_null(statement, position);
    });
}
}

Statement::Statement(sqlite3* connection, const std::string& text, const Parameters& parameters)
{
    if (!connection
        || sqlite3_prepare_v2(connection, text.c_str(), int(text.size()), &handle_, nullptr)
               != SQLITE_OK)
        return;
    for (int i = 0; i < int(parameters.size()); ++i) {
        if (Bind(handle_, i + 1, parameters[i]) != SQLITE_OK) {
            sqlite3_finalize(handle_);
            handle_ = nullptr;
            return;
        }
    }
}

Statement::~Statement() { sqlite3_finalize(handle_); }

int Statement::Step() { return handle_ ? sqlite3_step(handle_) : SQLITE_MISUSE; }

int Statement::ColumnCount() const { return sqlite3_column_count(handle_); }

Variant Statement::Column(int index) const
{
    switch (sqlite3_column_type(handle_, index)) {
    case SQLITE_INTEGER:
        return Variant(sqlite3_column_int64(handle_, index));
    case SQLITE_FLOAT:
        return Variant(sqlite3_column_double(handle_, index));
    case SQLITE_NULL:
        return Variant();
    default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle_, index));
        return Variant(std::string(text ? text : "", sqlite3_column_bytes(handle_, index)));
    }
    }
}

bool RunStatement(sqlite3* connection, const std::string& text, const Parameters& parameters)
{
    Statement statement(connection, text, parameters);
    if (!statement.Prepared())
        return false;
    int result;
    while ((result = statement.Step()) == SQLITE_ROW) {
    }
    return result == SQLITE_DONE;
}
