#pragma once

namespace Tallymere {

// Lets assistive programs read the page that a PageView shows, as a document of its text, and tells them when another
// one comes. May be called for every view; the first call does it for all.
void letPagesBeRead();

} // namespace Tallymere
