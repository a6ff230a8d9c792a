#pragma once

#include "engine/values/foldedtext.h"

#include <QString>
#include <QStringList>

namespace Tallymere {

// How a text is compared with what somebody looks for, wherever one looks for something: letter case does not count, in
// any alphabet, nor does whether an accented letter is stored as one character or as two. A letter that is typed without
// its accent finds the one with it ("creme" finds "Crème"); one that is typed with it finds no other.

using Engine::foldedText;
using Engine::plainText;

// What is looked for: words with blanks between them, each of which must be there, in whatever order.
class TextMatch
{
public:
    TextMatch() = default;
    explicit TextMatch(const QString &typed);

    bool isEmpty() const { return m_words.isEmpty(); }
    const QStringList &words() const { return m_words; } // plain
    bool isIn(const QString &text) const;

    // How well a record answers, the best first.
    enum class Rank { Number, NumberBegins, NameBegins, WordsBegin, Anywhere, None };
    // Of a record whose number and name are plain already, and whose accents are not asked for.
    Rank plainRank(QStringView number, QStringView name) const;
    Rank rank(const QString &number, const QString &name) const;
    bool accentsAgree(const QString &text) const; // of a text that the plain words are in

private:
    bool beginsWords(QStringView text) const; // each of the words begins one of it

    QString m_all; // the words in the order in which they were typed
    QStringList m_words;
    QStringList m_accented; // of the words, folded, those with accents
};

} // namespace Tallymere
