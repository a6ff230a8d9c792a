#include "base/formposition.h"

#include "base/trace.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Tallymere {

QString formSetting(const QString &section) { return u"Forms/"_s + section; }

void saveFormPos(SettingsStore &settings, const QRect &geometry, const QString &section, const QString &key)
{
    const QString text =
        u"%1 %2 %3 %4"_s.arg(geometry.x()).arg(geometry.y()).arg(geometry.width()).arg(geometry.height());
    settings.write(formSetting(section), key, text);
}

std::optional<QRect> setFormPos(const SettingsStore &settings, const QString &section, const QString &key)
{
    qCDebug(trace) << "Entering SetFormPos...";
    const QStringList parts = settings.read(formSetting(section), key).split(u' ');
    QList<int> numbers;
    bool ok = parts.size() == 4;
    for (const QString &part : parts) {
        bool isNumber = false;
        numbers << part.toInt(&isNumber);
        ok = ok && isNumber;
    }
    qCDebug(trace) << "Exiting SetFormPos";
    if (!ok || numbers[2] <= 0 || numbers[3] <= 0)
        return std::nullopt;
    return QRect(numbers[0], numbers[1], numbers[2], numbers[3]);
}

} // namespace Tallymere
