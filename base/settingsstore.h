#pragma once

#include <QHash>
#include <QString>

namespace Tallymere {

// Name of the database, and so of the values that hold its settings.
inline constexpr QLatin1StringView databaseName{"Corvane"};
// The same written as two words: tried when the first gives nothing.
inline constexpr QLatin1StringView spacedDatabaseName{"Cor Vane"};

// The settings that are kept for the user and shared with the host: below "\Software\DBIsam\" each setting ("Mode",
// "Alias", "Server IP", "Connection") is a key of its own, and holds one value for each database by the database's
// name. Nothing is cached: what another program wrote is read at the next call.
class SettingsStore
{
public:
    virtual ~SettingsStore() = default;

    // An empty text when the key or the value is missing or cannot be read; never an error.
    virtual QString read(const QString &setting, const QString &valueName) const = 0;
    // False when the key can be neither made nor opened; nothing is written then.
    virtual bool write(const QString &setting, const QString &valueName, const QString &value) = 0;
};

// The registry on Windows; elsewhere the file DBIsam.conf in the user's configuration folder.
class SystemSettings final : public SettingsStore
{
public:
    QString read(const QString &setting, const QString &valueName) const override;
    bool write(const QString &setting, const QString &valueName, const QString &value) override;
};

// Settings that live with the object.
class MemorySettings final : public SettingsStore
{
public:
    QString read(const QString &setting, const QString &valueName) const override;
    bool write(const QString &setting, const QString &valueName, const QString &value) override;

    bool writable = true; // false: every write fails

private:
    QHash<QString, QString> m_values;
};

QString getRegString(const SettingsStore &settings, const QString &setting, const QString &valueName);
// Writes under the name "Corvane", whatever database was read. On false the caller says "Error in Opening Corvane
// Key" (keyErrorText).
bool setRegString(SettingsStore &settings, const QString &setting, const QString &value);
QString keyErrorText();

// The folder of a database by its name: the setting "Alias" alone, without the fallback to the spaced name.
QString dbisamAlias(const SettingsStore &settings, const QString &name);

} // namespace Tallymere
