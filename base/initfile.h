#pragma once

#include "base/settings.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringView>

namespace Tallymere {

// An initialization file as other programs of the host's family read it: sections in brackets, lines "name=value".
// (QSettings would write the blank in "Sample Data" as %20.) Names are compared without regard to letter case.
class InitFile
{
public:
    struct Entry
    {
        QString name;
        QString value;
    };

    explicit InitFile(QString path)
        : m_path(std::move(path))
    {
    }

    QString value(const InitSetting &setting) const; // the default when there is no such value, or no such file
    // The values of a section in the order of the file.
    QList<Entry> entries(QStringView section) const;
    // Writes one value and keeps every other line of the file to the byte. False when the file cannot be written.
    bool setValue(const InitSetting &setting, const QString &value) const;

private:
    QList<QByteArray> lines() const; // each with the carriage return that it may end with

    QString m_path;
};

// The host's file, "HX1.ini" in the folder of its executable.
QString hostInitFile(const QString &executableFolder);

} // namespace Tallymere
