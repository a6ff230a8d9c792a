#pragma once

#include <QString>

namespace Tallymere {

// A page of the manual as plain text, in lines that fit a terminal: headings underlined, steps numbered, columns of
// tables under each other, links to other topics followed by their names in brackets. Pictures are left out. A page is
// well-formed XHTML of headings, paragraphs, lists, tables and preformatted text; what it holds besides is taken as text.
QString topicText(const QString &page);

} // namespace Tallymere
