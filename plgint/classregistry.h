#pragma once

#include "plgint/export.h"

#include <QHash>
#include <QString>
#include <QStringList>

class QWidget;

namespace Tallymere {

// The form classes that loaded modules offer, by class name. One registry for the whole process.
// Use on the user-interface thread only.
class PLGINT_EXPORT ClassRegistry
{
public:
    // Makes a form of the class. The parent owns it; without a parent the caller does.
    using Factory = QWidget *(*)(QWidget *parent);

    static ClassRegistry &instance();
    ClassRegistry(const ClassRegistry &) = delete;
    ClassRegistry &operator=(const ClassRegistry &) = delete;

    // False, and nothing changed, when the name is taken.
    bool registerClass(const QString &className, Factory factory);
    // False when there is no such class.
    bool unregisterClass(const QString &className);
    // Null when there is no such class. Names are compared exactly.
    Factory find(const QString &className) const;
    // Null when there is no such class.
    QWidget *create(const QString &className, QWidget *parent = nullptr) const;
    // In alphabetical order.
    QStringList classNames() const;

private:
    ClassRegistry() = default;

    QHash<QString, Factory> m_factories;
};

} // namespace Tallymere
