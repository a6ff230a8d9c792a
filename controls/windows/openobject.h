#pragma once

#include <QString>
#include <QUrl>

namespace Tallymere {

// Has the desktop open a file, or an address that begins with its scheme ("mailto:", "http://"), with its program for
// it. Throws RuleError when the desktop has none.
void openObject(const QString &object);

// The same as a URL. What follows "mailto:" is one address, whatever stands in it, and never part of the letter.
QUrl urlOf(const QString &object);

} // namespace Tallymere
