#include "Recordset.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace {
// Puts the rowid in front of the caller's columns, so each row can be found again by Update.
// Unqualified, it names the rowid of the one table the statement reads.
std::string WithRowid(const std::string& statement)
{
    const std::string select = "SELECT ";
    const bool startsWithSelect =
        statement.size() > select.size()
        && std::equal(select.begin(), select.end(), statement.begin(),
                      [](char upper, char c) { return upper == std::toupper((unsigned char)c); });
    return startsWithSelect ? select + "_ROWID_, " + statement.substr(select.size()) : "";
}

std::string QuotedName(const std::string& name)
{
    std::string quoted = "\"";
    for (char c : name)
        quoted += (c == '"') ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}
}

Recordset::Recordset(std::shared_ptr<sqlite3> connection, const std::string& statement,
                     const Parameters& parameters)
    : connection_(std::move(connection))
{
    Statement read(connection_.get(), WithRowid(statement), parameters);
    if (!read.Prepared())
        return;
    ReadShape(read.Handle());
    int result;
    while ((result = read.Step()) == SQLITE_ROW) {
        Row row{sqlite3_column_int64(read.Handle(), 0), {}};
        for (int i = 1; i < read.ColumnCount(); ++i)
            row.fields.push_back({read.Column(i)});
        rows_.push_back(std::move(row));
    }
    if (result != SQLITE_DONE)
        Close();
}

// Learns the column names, and the table and its columns that Update writes to. A computed
// column has no table column behind it, so SQLite refuses to store through such a set.
void Recordset::ReadShape(sqlite3_stmt* statement)
{
    for (int i = 1; i < sqlite3_column_count(statement); ++i) {
        const char* origin = sqlite3_column_origin_name(statement, i);
        const char* table = sqlite3_column_table_name(statement, i);
        names_.push_back(sqlite3_column_name(statement, i));
        columns_.push_back(origin ? origin : "");
        if (table)
            table_ = table;
    }
}

// Moving drops an AddNew or Edit that was not stored, as leaving a row does.
void Recordset::MoveFirst()
{
    mode_ = Mode::Reading;
    position_ = 0;
}

void Recordset::MoveNext()
{
    mode_ = Mode::Reading;
    if (position_ < rows_.size())
        ++position_;
}

Field& Recordset::Fields(const std::string& name)
{
    const auto found = std::find(names_.begin(), names_.end(), name);
    const std::size_t index = std::size_t(found - names_.begin());
    if (found != names_.end()) {
        if (mode_ != Mode::Reading)
            return buffer_[index];
        if (!Eof())
            return rows_[position_].fields[index];
    }
    scratch_ = {};
    return scratch_;
}

void Recordset::AddNew()
{
    mode_ = Mode::Adding;
    buffer_.assign(names_.size(), Field{});
}

void Recordset::Edit()
{
    mode_ = Eof() ? Mode::Reading : Mode::Editing;
    if (mode_ == Mode::Editing)
        buffer_ = rows_[position_].fields;
}

bool Recordset::Update()
{
    const Mode mode = std::exchange(mode_, Mode::Reading);
    if (table_.empty() || !connection_)
        return false;
    if (mode == Mode::Adding)
        return StoreNewRow();
    if (mode == Mode::Editing)
        return StoreEditedRow();
    return false;
}

// Writes only the fields that were given a value, so the rest take the column defaults.
bool Recordset::StoreNewRow()
{
    std::string columns, places;
    Parameters values;
    for (std::size_t i = 0; i < buffer_.size(); ++i) {
        if (buffer_[i].Value.IsNull())
            continue;
        columns += (values.empty() ? "" : ", ") + QuotedName(columns_[i]);
        places += values.empty() ? "?" : ", ?";
        values.push_back(buffer_[i].Value);
    }
    const std::string text = "INSERT INTO " + QuotedName(table_)
        + (values.empty() ? " DEFAULT VALUES" : " (" + columns + ") VALUES (" + places + ")");
    return RunStatement(connection_.get(), text, values);
}

bool Recordset::StoreEditedRow()
{
    std::string assignments;
    Parameters values;
    for (std::size_t i = 0; i < buffer_.size(); ++i) {
        assignments += (i ? ", " : "") + QuotedName(columns_[i]) + " = ?";
        values.push_back(buffer_[i].Value);
    }
    values.emplace_back(rows_[position_].rowid);
    const std::string text =
        "UPDATE " + QuotedName(table_) + " SET " + assignments + " WHERE _ROWID_ = ?";
    if (!RunStatement(connection_.get(), text, values) || sqlite3_changes(connection_.get()) != 1)
        return false;
    rows_[position_].fields = buffer_;
    return true;
}

void Recordset::Close()
{
    connection_.reset();
    rows_.clear();
    position_ = 0;
    mode_ = Mode::Reading;
}
