#include "base/settingsstore.h"

#include "base/texts.h"

#include <QFile>
#include <QJsonDocument>
#include <QSettings>
#include <QStringList>

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

QString path(const QString &key, const QString &valueName) { return key + u'/' + valueName; }

constexpr auto yes = "true"_L1;
constexpr auto lan = "LAN"_L1;
constexpr auto internet = "Internet"_L1;

} // namespace

QString settingText(const QString &value) { return value; }
QString settingText(int value) { return QString::number(value); }
QString settingText(bool value) { return value ? QString(yes) : QString(); }
QString settingText(Engine::LinkType value) { return value == Engine::LinkType::Internet ? internet : lan; }
QString settingText(Engine::SessionType value)
{
    return value == Engine::SessionType::Remote ? clientServerMode : fileServerMode;
}

QString settingText(const QRect &value)
{
    return u"%1 %2 %3 %4"_s.arg(value.x()).arg(value.y()).arg(value.width()).arg(value.height());
}

QString settingText(const QJsonObject &value)
{
    return QString::fromUtf8(QJsonDocument(value).toJson(QJsonDocument::Compact));
}

void takeSetting(const QString &text, QString &value)
{
    if (!text.isEmpty())
        value = text;
}

void takeSetting(const QString &text, int &value)
{
    bool isNumber = false;
    if (const int number = text.toInt(&isNumber); isNumber)
        value = number;
}

void takeSetting(const QString &text, bool &value)
{
    if (text == yes)
        value = true;
}

// Edges beyond all screens are no place; further out they could not be computed.
void takeSetting(const QString &text, QRect &value)
{
    constexpr int furthest = 1'000'000;
    const QStringList parts = text.split(u' ');
    QList<int> numbers;
    bool ok = parts.size() == 4;
    for (const QString &part : parts) {
        bool isNumber = false;
        numbers << part.toInt(&isNumber);
        ok = ok && isNumber && -furthest <= numbers.constLast() && numbers.constLast() <= furthest;
    }
    if (ok && numbers[2] > 0 && numbers[3] > 0)
        value = QRect(numbers[0], numbers[1], numbers[2], numbers[3]);
}

void takeSetting(const QString &text, QJsonObject &value)
{
    if (const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8()); document.isObject())
        value = document.object();
}

void takeSetting(const QString &text, Engine::SessionType &value)
{
    if (text == clientServerMode)
        value = Engine::SessionType::Remote;
    else if (text == fileServerMode)
        value = Engine::SessionType::Local;
}

void takeSetting(const QString &text, Engine::LinkType &value)
{
    if (text == internet)
        value = Engine::LinkType::Internet;
    else if (text == lan)
        value = Engine::LinkType::Lan;
}

QString SettingsStore::keyOf(QStringView screen) { return u"Forms/"_s + screen.toString(); }

QString SystemSettings::read(const QString &key, const QString &valueName) const
{
    return withSettings([&](QSettings &settings) { return settings.value(path(key, valueName)).toString(); });
}

bool SystemSettings::write(const QString &key, const QString &valueName, const QString &value)
{
    return withSettings([&](QSettings &settings) {
        if (!settings.isWritable()) // what is set all the same would be read back until the program ends
            return false;
        settings.setValue(path(key, valueName), value);
        settings.sync();
        QFile::setPermissions(settings.fileName(), QFile::ReadOwner | QFile::WriteOwner);
        return settings.status() == QSettings::NoError;
    });
}

QString MemorySettings::read(const QString &key, const QString &valueName) const
{
    return m_values.value(path(key, valueName));
}

bool MemorySettings::write(const QString &key, const QString &valueName, const QString &value)
{
    if (writable)
        m_values.insert(path(key, valueName), value);
    return writable;
}

QString keyErrorText() { return BaseTexts::tr("Error in Opening Corvane Key"); }

QString dbisamAlias(const SettingsStore &settings, const QString &name)
{
    return settings.getRegString(Settings::Alias, name);
}

QString databaseFolder(const SettingsStore &settings)
{
    const QString folder = dbisamAlias(settings, databaseName);
    return folder.isEmpty() ? dbisamAlias(settings, spacedDatabaseName) : folder;
}

} // namespace Tallymere
