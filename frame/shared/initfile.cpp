#include "frame/shared/initfile.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool same(QStringView a, QStringView b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

bool isHeader(QStringView line) { return line.startsWith(u'[') && line.endsWith(u']'); }

bool isHeaderOf(QStringView line, QStringView section)
{
    return isHeader(line) && same(line.mid(1, line.size() - 2).trimmed(), section);
}

// Nothing for a comment, a header or an empty line.
InitFile::Entry entryOf(QStringView line)
{
    const qsizetype equals = line.indexOf(u'=');
    if (equals < 1 || line.startsWith(u';') || isHeader(line))
        return {};
    QStringView value = line.mid(equals + 1).trimmed();
    if (value.size() >= 2 && value.startsWith(u'"') && value.endsWith(u'"'))
        value = value.mid(1, value.size() - 2);
    return {line.left(equals).trimmed().toString(), value.toString()};
}

} // namespace

QString InitFile::value(QStringView section, QStringView name) const
{
    const QList<Entry> found = entries(section);
    for (const Entry &entry : found) {
        if (same(entry.name, name))
            return entry.value;
    }
    return {};
}

QList<InitFile::Entry> InitFile::entries(QStringView section) const
{
    QList<Entry> found;
    bool inside = false;
    const QStringList all = lines();
    for (const QString &text : all) {
        const QStringView line = QStringView(text).trimmed();
        if (isHeader(line))
            inside = isHeaderOf(line, section);
        else if (Entry entry = entryOf(line); inside && !entry.name.isEmpty())
            found.append(std::move(entry));
    }
    return found;
}

bool InitFile::setValue(const QString &section, const QString &name, const QString &value) const
{
    QStringList all = lines();
    const QString text = name + u'=' + value;
    qsizetype header = -1;
    qsizetype at = -1;
    for (qsizetype i = 0; i < all.size() && at < 0; ++i) {
        const QStringView line = QStringView(all[i]).trimmed();
        if (header >= 0 && isHeader(line))
            break;
        if (header < 0 && isHeaderOf(line, section))
            header = i;
        else if (header >= 0 && same(entryOf(line).name, name))
            at = i;
    }
    if (at >= 0)
        all[at] = text;
    else if (header >= 0)
        all.insert(header + 1, text);
    else
        all << u"[%1]"_s.arg(section) << text;

    QSaveFile file(m_path);
    return file.open(QIODevice::WriteOnly) && file.write((all.join(u'\n') + u'\n').toUtf8()) >= 0 && file.commit();
}

QStringList InitFile::lines() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList all = QString::fromUtf8(file.readAll()).split(u'\n');
    for (QString &line : all) {
        if (line.endsWith(u'\r'))
            line.chop(1);
    }
    while (!all.isEmpty() && all.last().isEmpty())
        all.removeLast();
    return all;
}

} // namespace Tallymere
