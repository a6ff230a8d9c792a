#pragma once

#include "engine/values/userlocale.h"

#include <memory>
#include <QList>
#include <QString>
#include <QStringList>
#include <vector>

class QTranslator;

namespace Tallymere {

class SettingsStore;

// The languages that the program speaks: English, in which its texts are written, and those that translations/ has.
struct Language
{
    QString code; // "de"
    QString name; // in itself: "Deutsch"
};
const QList<Language> &languages(); // English first

// The code of the language to speak: the chosen one, else the first of the desktop's that there is, else English.
QString languageToSpeak(const QString &chosen, const QStringList &desktop);
QString languageToSpeak(const SettingsStore &settings); // on this desktop

// The desktop's ways where they are those of a speaker of the language; else the language's own, as they are in the
// desktop's country where that is known.
Engine::UserLocale localeOf(const QString &language, const QLocale &desktop);

// As long as it lives the program speaks a language: its own texts from FOLDER/tallymere_CODE.qm, Qt's from where Qt is
// installed. Descriptions keep their texts, so it has to be there before the first of them is made.
class Speaking
{
public:
    Speaking(const QString &language, const QString &folder);
    ~Speaking();
    Speaking(const Speaking &) = delete;
    Speaking &operator=(const Speaking &) = delete;

private:
    void speak(const QString &file, const QString &folder);

    const Engine::UserLocale m_before = Engine::userLocale();
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace Tallymere
