#include "data/lastchoices.h"

#include "base/formposition.h"
#include "data/datamodule.h"

#include <QJsonDocument>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// The name of a value must not look like a path.
QString valueName(const QString &user, const QString &database)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(user + u'@' + database));
}

} // namespace

LastChoices::LastChoices(const QString &screen, TDataModuleTallymere &data, SettingsStore *settings)
    : m_section(formSetting(screen))
    , m_owner(valueName(data.currentUser(), data.databaseTallymere().connection().location()))
    , m_settings(settings)
{
}

QJsonObject LastChoices::read() const
{
    const QString kept = m_settings ? m_settings->read(m_section, m_owner) : QString();
    return QJsonDocument::fromJson(kept.toUtf8()).object();
}

void LastChoices::keep(const QJsonObject &choices) const
{
    if (m_settings)
        m_settings->write(m_section, m_owner,
                          QString::fromUtf8(QJsonDocument(choices).toJson(QJsonDocument::Compact)));
}

} // namespace Tallymere
