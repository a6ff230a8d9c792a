#pragma once

#include "base/language.h"

#include <QTranslator>

// What a test program with windows speaks: TALLYMERE_TEST_LANGUAGE names a language, whose texts lie in the folder
// TALLYMERE_TEST_TRANSLATIONS, or "pseudo".

// English in brackets, with accents and four tenths longer, so that what is not translated or finds no room shows.
class PseudoLanguage final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const QString source = QString::fromUtf8(text);
        if (context[0] == 'Q') // Qt's own
            return {};
        QString result;
        for (qsizetype i = 0; i < source.size(); ++i) {
            const QChar before = i > 0 ? source[i - 1] : QChar();
            const bool isMark = before == u'%' || before == u'&';
            const qsizetype at = QStringView(u"aeiounc").indexOf(source[i]);
            result += isMark || at < 0 ? source[i] : QStringView(u"áéíóúñç")[at];
        }
        return u'[' + result + QString(source.size() * 2 / 5, u'~') + u']';
    }
};

inline QString testLanguage() { return qEnvironmentVariable("TALLYMERE_TEST_LANGUAGE"); }

// As long as it lives; nothing where none is named.
class SpokenInTests
{
public:
    SpokenInTests()
    {
        const QString language = testLanguage();
        if (language == QLatin1StringView("pseudo"))
            QCoreApplication::installTranslator(&m_pseudo);
        else if (!language.isEmpty())
            m_speaking.emplace(language, qEnvironmentVariable("TALLYMERE_TEST_TRANSLATIONS"));
    }
    ~SpokenInTests() { QCoreApplication::removeTranslator(&m_pseudo); }
    SpokenInTests(const SpokenInTests &) = delete;
    SpokenInTests &operator=(const SpokenInTests &) = delete;

private:
    PseudoLanguage m_pseudo;
    std::optional<Tallymere::Speaking> m_speaking;
};
