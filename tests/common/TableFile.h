#pragma once
// The rows of a plain table file beside the tests: each line's words, where a quoted text is one
// word; blank lines and lines starting with '#' are left out.
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <gtest/gtest.h>

inline QList<QStringList> ReadTable(const QString& path)
{
    static const QRegularExpression word(R"("([^"]*)\"|(\S+))");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QList<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        QStringList row;
        for (const auto& m : word.globalMatch(line))
            row << (m.capturedStart(1) >= 0 ? m.captured(1) : m.captured(2));
        if (!row.isEmpty() && !row[0].startsWith('#'))
            rows << row;
    }
    return rows;
}
