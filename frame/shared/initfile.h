#pragma once

#include <QList>
#include <QString>
#include <QStringList>
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

    // Empty when there is no such value, or no such file.
    QString value(QStringView section, QStringView name) const;
    // The values of a section in the order of the file.
    QList<Entry> entries(QStringView section) const;
    // Writes one value and keeps every other line of the file as it is. False when the file cannot be written.
    bool setValue(const QString &section, const QString &name, const QString &value) const;

private:
    QStringList lines() const;

    QString m_path;
};

} // namespace Tallymere
