#pragma once
// An updatable set of rows read by one SELECT on one table, walked and changed the way the
// game's routines describe their steps: OpenRecordset, RecordCount, MoveFirst, MoveNext,
// Eof, Fields(name).Value, AddNew or Edit, then Update, and Close.
//
// The rows are read in full when the set opens (the game's sets hold a few dozen rows at
// most), each with its rowid, and Update writes one row back by that rowid. Reading in full
// means no statement stays open on the file, so a transaction can end at any time; and the
// set keeps its own share of the connection, so it stays usable while another routine opens
// the data file anew and closes it again.
#include <sqlite3.h>

#include <memory>
#include <string>
#include <vector>

#include "Statement.h"
#include "Variant.h"

struct Field {
    Variant Value;
};

class Recordset {
public:
    // A closed set: no rows, and nothing can be stored through it.
    Recordset() = default;
    // A set that fails to read (no such table or column, a damaged or locked file) is empty
    // and refuses every Update.
    Recordset(std::shared_ptr<sqlite3> connection, const std::string& statement,
              const Parameters& parameters);

    // Above 0 exactly when the set has a row.
    int RecordCount() const { return int(rows_.size()); }
    void MoveFirst();
    void MoveNext();
    // True behind the last row. (Not EOF: that name is a macro of the C library.)
    bool Eof() const { return position_ >= rows_.size(); }

    // The column of that name in the row being added or edited, else in the current row.
    // With no such column or no current row it gives a scratch field that stores nothing.
    Field& Fields(const std::string& name);

    // Starts a new row whose unwritten fields take the column defaults of the table.
    void AddNew();
    // Starts changing the current row.
    void Edit();
    // Stores the row begun by AddNew or Edit; false when nothing was stored.
    // An added row goes to the table, not into this set.
    bool Update();

    void Close();

private:
    struct Row {
        sqlite3_int64 rowid = 0;
        std::vector<Field> fields;
    };
    enum class Mode { Reading, Adding, Editing };

    void ReadShape(sqlite3_stmt* statement);
    bool StoreNewRow();
    bool StoreEditedRow();

    std::shared_ptr<sqlite3> connection_;
    std::string table_;                  // empty when no column comes from a table
    std::vector<std::string> names_;     // as the statement names its columns
    std::vector<std::string> columns_;   // the table's own column names
    std::vector<Row> rows_;
    std::size_t position_ = 0;
    Mode mode_ = Mode::Reading;
    std::vector<Field> buffer_;
    Field scratch_;
};
