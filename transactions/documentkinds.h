#pragma once

#include "transactions/documentkind.h"

// The kinds of documents, each described in a file of its own.

namespace Tallymere::DocumentKinds {

const DocumentKind &receipt();

} // namespace Tallymere::DocumentKinds
