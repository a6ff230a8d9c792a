#pragma once

#include "base/csvreader.h"

#include <functional>
#include <gtest/gtest.h>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

// What stands in a file; nothing when it cannot be read.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void putContent(const QString &path, const QByteArray &content)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size()) << qPrintable(path);
}

// The names of whatever lies in a folder.
inline QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

// What is written to a device.
inline QByteArray writtenBy(const std::function<void(QIODevice &)> &write)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    write(buffer);
    return buffer.data();
}

// The records of a CSV file.
inline QList<QStringList> csvRows(QByteArray csv)
{
    QBuffer buffer(&csv);
    buffer.open(QIODevice::ReadOnly);
    Tallymere::CsvReader reader(buffer);
    QList<QStringList> rows;
    while (reader.next())
        rows.append(reader.fields());
    return rows;
}
