#include "help/manual.h"
#include "help/topictext.h"
#include "tests/support/files.h"

#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const QDir folder(QStringLiteral(MANUAL_FOLDER));

QString textOf(const QString &file) { return QString::fromUtf8(contentOf(folder.filePath(file))); }

QStringList attributes(const QString &content, const char *name)
{
    QStringList values;
    const QRegularExpression pattern(u"\\s%1=\"([^\"]*)\""_s.arg(QLatin1StringView(name)));
    for (const QRegularExpressionMatch &found : pattern.globalMatch(content))
        values << found.captured(1);
    return values;
}

// Whether a reference from a page, "receive.html#lines", leads somewhere.
bool leadsSomewhere(const QString &reference, const QString &from)
{
    const QString file = reference.section(u'#', 0, 0);
    const QString anchor = reference.section(u'#', 1);
    const QString target = file.isEmpty() ? from : file;
    return QFile::exists(folder.filePath(target))
        && (anchor.isEmpty() || attributes(textOf(target), "name").contains(anchor));
}

} // namespace

TEST(Manual, EachPageIsInTheContentsAndSaysSomethingAndLeadsOn)
{
    QStringList listed;
    for (const ManualTopic &topic : manualTopics())
        listed << topic.name + ".html"_L1;
    QSet<QString> shown;
    for (const QString &page : folder.entryList({u"*.html"_s})) {
        SCOPED_TRACE(qPrintable(page));
        EXPECT_EQ(listed.count(page), 1);
        const QString content = textOf(page);
        QXmlStreamReader xml(content);
        while (!xml.atEnd())
            xml.readNext();
        EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
        for (const QString &link : attributes(content, "href"))
            EXPECT_TRUE(leadsSomewhere(link, page)) << qPrintable(link);
        for (const QString &picture : attributes(content, "src")) {
            EXPECT_TRUE(QFile::exists(folder.filePath(picture))) << qPrintable(picture);
            shown << picture.section(u'/', 1);
        }
        EXPECT_EQ(attributes(content, "src").size(), attributes(content, "alt").size());
        listed.removeOne(page);
    }
    EXPECT_EQ(listed, QStringList()) << "in the contents without a page";
    const QStringList pictures = folder.entryList({u"pictures"_s}, QDir::Dirs).isEmpty()
        ? QStringList()
        : QDir(folder.filePath(u"pictures"_s)).entryList({u"*.png"_s});
    EXPECT_EQ(shown, QSet<QString>(pictures.begin(), pictures.end()));

    for (const ManualTopic &topic : manualTopics()) {
        const QString text = manualText(topic.name);
        EXPECT_TRUE(text.startsWith(topic.title + u'\n')) << qPrintable(topic.name);
        EXPECT_GT(text.size(), topic.title.size() * 2 + 100) << qPrintable(topic.name) << " says nothing";
        EXPECT_FALSE(text.contains(QRegularExpression(u"</|[^\\n]{80}"_s))) << qPrintable(text);
    }
}

TEST(Manual, EachWordOfTheIndexLeadsToOnePlace)
{
    QSet<QString> words;
    QXmlStreamReader xml(textOf(u"tallymere.qhp"_s));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != "keyword"_L1)
            continue;
        const QString name =
            xml.attributes().value("name"_L1).toString() + xml.attributes().value("id"_L1).toString();
        EXPECT_FALSE(words.contains(name)) << qPrintable(name);
        words << name;
        EXPECT_TRUE(leadsSomewhere(xml.attributes().value("ref"_L1).toString(), {})) << qPrintable(name);
    }
    EXPECT_GT(words.size(), manualTopics().size()) << "less than a word a page";
}

TEST(Manual, APageIsPlainTextForATerminal)
{
    EXPECT_EQ(topicText(u"<html><head><title>X</title></head><body><h1>Count</h1>"
                        "<p>Post <b>all</b>\nfirst, see <a href=\"post.html\">Posting</a>. <img src=\"a.png\"/></p>"
                        "<ol><li>One</li><li>%1 two</li></ol>"
                        "<table><tr><td>F5</td><td>reads</td></tr><tr><td>Enter</td><td>opens</td></tr></table>"
                        "<pre>\n a\n  b\n</pre></body></html>"_s.arg(u"word "_s.repeated(16).trimmed())),
              u"Count\n=====\n\nPost all first, see Posting [post].\n\n 1. One\n 2. "
              "word word word word word word word word word word word word word word word\n    word two\n\n"
              "F5     reads\nEnter  opens\n\n    a\n      b"_s);
}

TEST(Manual, AMistypedTopicIsNamed)
{
    EXPECT_EQ(similarTopics(u"recieve"_s).value(0), u"receive"_s);
    EXPECT_EQ(similarTopics(u"Month"_s).value(0), u"monthend"_s);
    EXPECT_EQ(similarTopics(u"counting"_s).value(0), u"count"_s);
    EXPECT_EQ(similarTopics(u"xyzzy"_s), QStringList());
    EXPECT_EQ(manualText(u"../manual/receive"_s), QString());
}
