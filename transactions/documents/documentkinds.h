#pragma once

#include "transactions/documents/documentkind.h"

// The kinds of documents, each described in a file of its own.

namespace Tallymere::DocumentKinds {

const DocumentKind &receipt();
const DocumentKind &usage();
const DocumentKind &adjustment();

// In the order in which the command line names them.
const QList<const DocumentKind *> &all();
const DocumentKind *find(const QString &name); // by its name on the command line; null when there is none

GridColumn postedColumn(); // of their lists

} // namespace Tallymere::DocumentKinds
