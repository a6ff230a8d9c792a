#include "data/lastchoices.h"

#include "base/settingsstore.h"
#include "data/datamodule.h"

#include <QUrl>

namespace Tallymere {

namespace {

// The name of a value must not look like a path.
QString valueName(const QString &user, const QString &database)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(user + u'@' + database));
}

} // namespace

LastChoices::LastChoices(QStringView screen, TDataModuleTallymere &data, SettingsStore *settings)
    : m_screen(screen)
    , m_owner(valueName(data.currentUser(), data.databaseTallymere().connection().location()))
    , m_settings(settings)
{
}

Choices LastChoices::read() const
{
    return m_settings ? Choices(m_settings->value(m_screen, setting())) : Choices();
}

bool LastChoices::keep(const Choices &choices) const
{
    return m_settings && m_settings->setValue(m_screen, setting(), choices.m_values);
}

} // namespace Tallymere
