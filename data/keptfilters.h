#pragma once

#include "data/lastchoices.h"

#include <optional>

namespace Tallymere {

class Prompts;

// A filter of a list that a user has kept under a name.
struct KeptFilter
{
    QString name;
    QString words; // as the list says it: "Location: Office"
    QJsonObject choices; // of the list's filter dialog, by the names of its boxes
};

// The filters that a user has kept for one list, in one database. Others of his programs may keep some as well, so they
// are read anew for each change.
class KeptFilters
{
public:
    // The list by its component name.
    KeptFilters(const QString &list, TDataModuleTallymere &data, SettingsStore *settings);

    QList<KeptFilter> all() const; // by name
    std::optional<KeptFilter> find(const QString &name) const;

    // Each refuses what cannot be written. The first two refuse an empty name, and ask before they replace another filter.
    void keep(KeptFilter filter, Prompts &prompts) const;
    void rename(const QString &name, const QString &newName, Prompts &prompts) const;
    void remove(const QString &name) const;

private:
    LastChoices store() const { return {m_section, m_data, m_settings}; }
    void write(const QList<KeptFilter> &filters) const;
    void askToReplace(const QString &name, Prompts &prompts) const;

    const QString m_section;
    TDataModuleTallymere &m_data;
    SettingsStore *m_settings;
};

} // namespace Tallymere
