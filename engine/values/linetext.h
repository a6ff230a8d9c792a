#pragma once

#include <QString>

namespace Engine {

// A text as one line: each run of control characters (tab, line end, NUL) is one blank.
QString oneLine(const QString &text);

// What a message quotes of a text that may be anything: its first line, 60 characters of it at most, with "..." where
// more follows.
QString excerpt(const QString &text);

} // namespace Engine
