#include "help/manual.h"

#include "help/topictext.h"

#include <algorithm>
#include <numeric>
#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr auto page = ".html"_L1;

// The sections of the project file, which is also what the help window's contents are made of.
QList<ManualTopic> readContents()
{
    QList<ManualTopic> topics;
    QFile file(u":/manual/tallymere.qhp"_s);
    if (!file.open(QIODevice::ReadOnly))
        return topics;
    QXmlStreamReader xml(&file);
    int level = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.name() != "section"_L1)
            continue;
        if (xml.isStartElement()) {
            const QString ref = xml.attributes().value("ref"_L1).toString();
            topics.append({ref.chopped(page.size()), xml.attributes().value("title"_L1).toString(), level});
        }
        level += xml.isStartElement() ? 1 : -1;
    }
    return topics;
}

// How many letters have to be put in, taken out or changed to make one word of the other.
qsizetype distance(const QString &one, const QString &other)
{
    QList<qsizetype> row(other.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < one.size(); ++i) {
        qsizetype before = std::exchange(row[0], i + 1);
        for (qsizetype j = 0; j < other.size(); ++j) {
            const qsizetype changed = before + (one[i] == other[j] ? 0 : 1);
            before = std::exchange(row[j + 1], std::min({changed, row[j] + 1, row[j + 1] + 1}));
        }
    }
    return row.constLast();
}

} // namespace

const QList<ManualTopic> &manualTopics()
{
    static const QList<ManualTopic> topics = readContents();
    return topics;
}

QString manualText(const QString &name)
{
    const QList<ManualTopic> &topics = manualTopics();
    const bool known =
        std::any_of(topics.begin(), topics.end(), [&](const auto &topic) { return topic.name == name; });
    QFile file(":/manual/"_L1 + name + page);
    if (!known || !file.open(QIODevice::ReadOnly))
        return {};
    return topicText(QString::fromUtf8(file.readAll()));
}

QStringList similarTopics(const QString &name)
{
    constexpr qsizetype within = 100; // one holds the other, which beats any distance of letters
    const QString word = name.toLower();
    const qsizetype limit = std::max<qsizetype>(1, word.size() / 3);
    QList<std::pair<qsizetype, QString>> found;
    for (const ManualTopic &topic : manualTopics()) {
        const bool holds = topic.name.contains(word) || topic.title.contains(word, Qt::CaseInsensitive)
            || word.startsWith(topic.name);
        const qsizetype apart = distance(word, topic.name);
        if (holds || apart <= limit)
            found.append({holds ? apart - within : apart, topic.name});
    }
    std::stable_sort(found.begin(), found.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList names;
    for (const auto &[apart, topic] : found)
        names.append(topic);
    return names;
}

} // namespace Tallymere
