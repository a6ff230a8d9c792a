#pragma once

#include "base/settings.h"

#include <QHash>
#include <QJsonObject>
#include <QString>

namespace Tallymere {

// Name of the database, and so of the values that hold its settings.
inline constexpr QLatin1StringView databaseName{"Corvane"};
// The same written as two words: tried when the first gives nothing.
inline constexpr QLatin1StringView spacedDatabaseName{"Cor Vane"};

// How the mode is kept. Only the exact letter counts; anything else is file-server mode.
inline constexpr QLatin1StringView clientServerMode{"C"};
inline constexpr QLatin1StringView fileServerMode{"F"};

// Values as the texts that are kept. From a text that says nothing of the kind a value is left as it is.
QString settingText(const QString &value);
QString settingText(int value);
QString settingText(bool value); // of false an empty one: its default is false
QString settingText(const QRect &value);
QString settingText(const QJsonObject &value);
QString settingText(Engine::SessionType value);
QString settingText(Engine::LinkType value);
void takeSetting(const QString &text, QString &value);
void takeSetting(const QString &text, int &value);
void takeSetting(const QString &text, bool &value);
void takeSetting(const QString &text, QRect &value);
void takeSetting(const QString &text, QJsonObject &value);
void takeSetting(const QString &text, Engine::SessionType &value);
void takeSetting(const QString &text, Engine::LinkType &value);

// The settings that are kept for the user, those of the database shared with the host: below "\Software\DBIsam\" each
// of those ("Mode", "Alias", "Server IP", "Connection", "Read From Standby") is a key of its own, and holds one value for each database by the
// database's name. A screen has a key below "Forms". Nothing is cached: what another program wrote is read at the next
// call. What cannot be read counts as missing; what cannot be written gives false, and nothing is written then.
class SettingsStore
{
public:
    virtual ~SettingsStore() = default;

    // As it stands there for the database; an empty text when it is missing.
    template <typename T> QString getRegString(const DatabaseSetting<T> &setting, const QString &database) const
    {
        return read(setting.name.toString(), database);
    }
    // Writes under the name "Corvane", whatever database was read. On false the caller says "Error in Opening Corvane
    // Key" (keyErrorText).
    template <typename T> bool setRegString(const DatabaseSetting<T> &setting, const std::type_identity_t<T> &value)
    {
        return write(setting.name.toString(), databaseName, settingText(value));
    }
    template <typename T> T value(const DatabaseSetting<T> &setting) const
    {
        return valueOf<T>(getRegString(setting, databaseName), setting.byDefault);
    }

    template <typename T> T value(QStringView screen, const ScreenSetting<T> &setting) const
    {
        return valueOf<T>(read(keyOf(screen), setting.name.toString()), setting.byDefault);
    }
    template <typename T>
    bool setValue(QStringView screen, const ScreenSetting<T> &setting, const std::type_identity_t<T> &value)
    {
        return write(keyOf(screen), setting.name.toString(), settingText(value));
    }

private:
    virtual QString read(const QString &key, const QString &valueName) const = 0;
    virtual bool write(const QString &key, const QString &valueName, const QString &value) = 0;

    static QString keyOf(QStringView screen);
    template <typename T> static T valueOf(const QString &text, const DefaultOf<T> &byDefault)
    {
        T value(byDefault);
        takeSetting(text, value);
        return value;
    }
};

// The registry on Windows; elsewhere the file DBIsam.conf in the user's configuration folder.
class SystemSettings final : public SettingsStore
{
public:
    QString read(const QString &key, const QString &valueName) const override;
    bool write(const QString &key, const QString &valueName, const QString &value) override;
};

// Settings that live with the object.
class MemorySettings final : public SettingsStore
{
public:
    QString read(const QString &key, const QString &valueName) const override;
    bool write(const QString &key, const QString &valueName, const QString &value) override;

    bool writable = true; // false: every write fails

private:
    QHash<QString, QString> m_values;
};

QString keyErrorText();

// The folder of a database by its name, without the fallback to the spaced name.
QString dbisamAlias(const SettingsStore &settings, const QString &name);
QString databaseFolder(const SettingsStore &settings); // with it

} // namespace Tallymere
