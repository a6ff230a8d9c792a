#include "controls/windows/openobject.h"

#include "base/ruleerror.h"
#include "controls/texts.h"
#include "engine/values/linetext.h"

#include <QDesktopServices>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tallymere {

QUrl urlOf(const QString &object)
{
    constexpr auto mail = "mailto:"_L1;
    if (object.startsWith(mail)) {
        QUrl url;
        url.setScheme(u"mailto"_s);
        url.setPath(object.mid(mail.size()).trimmed(), QUrl::DecodedMode);
        return url;
    }
    if (const QFileInfo file(object); file.exists())
        return QUrl::fromLocalFile(file.absoluteFilePath());
    return QUrl(object.trimmed(), QUrl::TolerantMode);
}

void openObject(const QString &object)
{
    const QUrl url = urlOf(object);
    // What a field holds must not start programs or reach into the computer.
    static const QStringList schemes{u"http"_s, u"https"_s, u"ftp"_s, u"mailto"_s};
    if (url.isValid() && !url.scheme().isEmpty() && !schemes.contains(url.scheme()) && !QFileInfo::exists(object))
        throw RuleError(ControlsTexts::tr("'%1' is not opened: it is neither a web page nor a mail address.")
                            .arg(Engine::excerpt(object)));
    const bool complete = url.isValid() && !url.scheme().isEmpty();
    if (!complete || !QDesktopServices::openUrl(url))
        throw RuleError(ControlsTexts::tr("'%1' cannot be opened: this computer has no program for it.")
                            .arg(Engine::excerpt(object)));
}

} // namespace Tallymere
