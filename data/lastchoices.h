#pragma once

#include "base/settings.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace Tallymere {

class SettingsStore;
class TDataModuleTallymere;

// What was chosen on a screen, by the settings that keep it.
class Choices
{
public:
    Choices() = default;

    template <typename T> T value(const ChoiceSetting<T> &setting) const
    {
        const QJsonValue kept = m_values[setting.name];
        if constexpr (std::is_same_v<T, bool>)
            return kept.toBool(setting.byDefault);
        else if constexpr (std::is_same_v<T, int>)
            return kept.toInt(setting.byDefault);
        else
            return kept.toString(setting.byDefault);
    }
    template <typename T> void set(const ChoiceSetting<T> &setting, const std::type_identity_t<T> &value)
    {
        m_values.insert(setting.name, value);
    }
    QJsonArray list(const ListSetting &setting) const { return m_values[setting.name].toArray(); }
    void setList(const ListSetting &setting, const QJsonArray &values) { m_values.insert(setting.name, values); }

private:
    friend class LastChoices;
    explicit Choices(QJsonObject values)
        : m_values(std::move(values))
    {
    }

    QJsonObject m_values;
};

// What a user chose last on a screen, to be offered again: kept for each user and each database, as keys mean something
// else in another one.
class LastChoices
{
public:
    // The screen by its component name; without settings nothing is remembered.
    LastChoices(QStringView screen, TDataModuleTallymere &data, SettingsStore *settings);

    Choices read() const; // the defaults when nothing is kept
    bool keep(const Choices &choices) const; // false: it could not be written, and is forgotten

private:
    ScreenSetting<QJsonObject> setting() const { return {m_owner}; }

    QStringView m_screen;
    QString m_owner;
    SettingsStore *m_settings;
};

} // namespace Tallymere
