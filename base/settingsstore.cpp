#include "base/settingsstore.h"

#include "base/texts.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// A fresh object for each call, so that nothing is cached.
template <typename Function> auto withSettings(Function function)
{
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, u"DBIsam"_s);
    settings.setFallbacksEnabled(false);
    return function(settings);
}

QString path(const QString &setting, const QString &valueName) { return setting + u'/' + valueName; }

} // namespace

QString SystemSettings::read(const QString &setting, const QString &valueName) const
{
    return withSettings([&](QSettings &settings) { return settings.value(path(setting, valueName)).toString(); });
}

bool SystemSettings::write(const QString &setting, const QString &valueName, const QString &value)
{
    return withSettings([&](QSettings &settings) {
        if (!settings.isWritable()) // what is set all the same would be read back until the program ends
            return false;
        settings.setValue(path(setting, valueName), value);
        settings.sync();
        return settings.status() == QSettings::NoError;
    });
}

QString MemorySettings::read(const QString &setting, const QString &valueName) const
{
    return m_values.value(path(setting, valueName));
}

bool MemorySettings::write(const QString &setting, const QString &valueName, const QString &value)
{
    if (writable)
        m_values.insert(path(setting, valueName), value);
    return writable;
}

QString getRegString(const SettingsStore &settings, const QString &setting, const QString &valueName)
{
    return settings.read(setting, valueName);
}

bool setRegString(SettingsStore &settings, const QString &setting, const QString &value)
{
    return settings.write(setting, databaseName, value);
}

QString keyErrorText() { return BaseTexts::tr("Error in Opening Corvane Key"); }

QString dbisamAlias(const SettingsStore &settings, const QString &name) { return settings.read(u"Alias"_s, name); }

} // namespace Tallymere
