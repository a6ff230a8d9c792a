#include "base/language.h"

#include "base/settingsstore.h"

#include <algorithm>
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

const auto english = u"en"_s;

bool isSpoken(const QString &code)
{
    return std::ranges::any_of(languages(), [&](const Language &language) { return language.code == code; });
}

} // namespace

const QList<Language> &languages()
{
    static const QList<Language> list = {{english, u"English"_s}, {u"de"_s, u"Deutsch"_s}, {u"es"_s, u"Español"_s}};
    return list;
}

QString languageToSpeak(const QString &chosen, const QStringList &desktop)
{
    if (isSpoken(chosen))
        return chosen;
    for (const QString &wanted : desktop) {
        const QString code = wanted.section(u'-', 0, 0); // "de-AT"
        if (isSpoken(code))
            return code;
    }
    return english;
}

QString languageToSpeak(const SettingsStore &settings)
{
    return languageToSpeak(settings.value(Settings::languageSection, Settings::ChosenLanguage),
                           QLocale::system().uiLanguages());
}

Engine::UserLocale localeOf(const QString &language, const QLocale &desktop)
{
    const auto codeOf = [](const QLocale &locale) { return locale.name().section(u'_', 0, 0); };
    const bool isDesktops = codeOf(desktop) == language || (language == english && !isSpoken(codeOf(desktop)));
    QLocale locale = isDesktops ? desktop : QLocale(QLocale(language).language(), desktop.territory());
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator); // of "C", while lists group
    return {.locale = locale, .spellsMonths = language == english, .groupsCounts = true};
}

Speaking::Speaking(const QString &language, const QString &folder)
{
    Engine::setUserLocale(localeOf(language, QLocale::system()));
    speak(u"tallymere_"_s + language, folder);
    if (language == english)
        return;
    const QString ofQt = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    for (const auto *part : {"qtbase_", "qt_help_"})
        speak(QLatin1StringView(part) + language, ofQt);
}

Speaking::~Speaking()
{
    for (const auto &translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
    Engine::setUserLocale(m_before);
}

void Speaking::speak(const QString &file, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(file, folder) && QCoreApplication::installTranslator(translator.get()))
        m_translators.push_back(std::move(translator));
}

} // namespace Tallymere
