#pragma once

#include <QString>

namespace Engine {

QString quoted(const QString &identifier); // "User", with quotes inside doubled

// The name as it stands when it is a plain word that neither store reserves, else in quotes. One list serves both
// stores, so that texts written for one read the same for the other.
QString quotedIfReserved(const QString &identifier);

QString textLiteral(const QString &text); // 'text', with quotes inside doubled

} // namespace Engine
