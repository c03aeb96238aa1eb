#pragma once
// ReadRows for the window tests, as lists of QString.
#include <QStringList>

#include "Rows.h"

inline QList<QStringList> ReadTable(const QString& path)
{
    QList<QStringList> rows;
    for (const Words& words : ReadRows(path.toStdString())) {
        rows.append(QStringList());
        for (const std::string& word : words)
            rows.last() << QString::fromStdString(word);
    }
    return rows;
}
