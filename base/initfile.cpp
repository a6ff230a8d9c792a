#include "base/initfile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

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

// Old programs write in a code page of eight bits; what is not UTF-8 is read as the commonest of them.
QString textOf(const QByteArray &line)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(line);
    return (utf8.hasError() ? QString::fromLatin1(line) : text).trimmed();
}

// Where a section begins and where its value stands; -1 when there is none.
struct Place
{
    qsizetype header = -1;
    qsizetype entry = -1;
};

Place placeOf(const QList<QByteArray> &lines, QStringView section, QStringView name)
{
    Place place;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString line = textOf(lines[i]);
        if (place.header >= 0 && isHeader(line))
            break;
        if (place.header < 0 && isHeaderOf(line, section))
            place.header = i;
        if (place.header >= 0 && same(entryOf(line).name, name)) {
            place.entry = i;
            break;
        }
    }
    return place;
}

} // namespace

QString InitFile::value(const InitSetting &setting) const
{
    const QList<Entry> found = entries(setting.section);
    for (const Entry &entry : found) {
        if (same(entry.name, setting.name))
            return entry.value.isEmpty() ? QString(setting.byDefault) : entry.value;
    }
    return setting.byDefault;
}

QList<InitFile::Entry> InitFile::entries(QStringView section) const
{
    QList<Entry> found;
    bool inside = false;
    const QList<QByteArray> all = lines();
    for (const QByteArray &bytes : all) {
        const QString line = textOf(bytes);
        if (isHeader(line))
            inside = isHeaderOf(line, section);
        else if (Entry entry = entryOf(line); inside && !entry.name.isEmpty())
            found.append(std::move(entry));
    }
    return found;
}

bool InitFile::setValue(const InitSetting &setting, const QString &value) const
{
    if (const QFileInfo there(m_path); there.exists() && !there.isReadable())
        return false; // what cannot be read would be lost
    QList<QByteArray> all = lines();
    const QByteArray end = !all.isEmpty() && all.first().endsWith('\r') ? "\r" : "";
    const QByteArray line = (setting.name.toString() + u'=' + value).toUtf8() + end;
    const Place place = placeOf(all, setting.section, setting.name);
    if (place.entry >= 0)
        all[place.entry] = line;
    else if (place.header >= 0)
        all.insert(place.header + 1, line);
    else
        all << u"[%1]"_s.arg(setting.section).toUtf8() + end << line;

    QSaveFile file(m_path);
    return file.open(QIODevice::WriteOnly) && file.write(all.join('\n') + '\n') >= 0 && file.flush()
        && file.commit(); // which does not tell that the last block was not written whole
}

QList<QByteArray> InitFile::lines() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QByteArray> all = file.readAll().split('\n');
    if (all.last().isEmpty())
        all.removeLast();
    return all;
}

QString hostInitFile(const QString &executableFolder) { return executableFolder + "/HX1.ini"_L1; }

} // namespace Tallymere
