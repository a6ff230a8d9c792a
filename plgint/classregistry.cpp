#include "plgint/classregistry.h"

namespace Tallymere {

ClassRegistry &ClassRegistry::instance()
{
    static ClassRegistry registry;
    return registry;
}

bool ClassRegistry::registerClass(const QString &className, Factory factory)
{
    if (!factory || m_factories.contains(className))
        return false;
    m_factories.insert(className, factory);
    return true;
}

bool ClassRegistry::unregisterClass(const QString &className) { return m_factories.remove(className); }

ClassRegistry::Factory ClassRegistry::find(const QString &className) const { return m_factories.value(className); }

QWidget *ClassRegistry::create(const QString &className, QWidget *parent) const
{
    const Factory factory = find(className);
    return factory ? factory(parent) : nullptr;
}

QStringList ClassRegistry::classNames() const
{
    QStringList names = m_factories.keys();
    names.sort();
    return names;
}

} // namespace Tallymere
