#pragma once

#include <QJsonObject>
#include <QString>

namespace Tallymere {

class SettingsStore;
class TDataModuleTallymere;

// What a user chose last on a screen, to be offered again: kept for each user and each database, as keys mean something
// else in another one. What cannot be written is forgotten.
class LastChoices
{
public:
    // The screen by its component name; without settings nothing is remembered.
    LastChoices(const QString &screen, TDataModuleTallymere &data, SettingsStore *settings);

    QJsonObject read() const; // empty when nothing is kept
    void keep(const QJsonObject &choices) const;

private:
    QString m_section;
    QString m_owner;
    SettingsStore *m_settings;
};

} // namespace Tallymere
