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
    const bool complete = url.isValid() && !url.scheme().isEmpty();
    if (!complete || !QDesktopServices::openUrl(url))
        throw RuleError(ControlsTexts::tr("'%1' cannot be opened: this computer has no program for it.")
                            .arg(Engine::excerpt(object)));
}

} // namespace Tallymere
