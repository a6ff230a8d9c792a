#pragma once

#include "master/masterkind.h"

// The master tables, each described in a file of its own (taxkind.cpp is the shortest).

namespace Tallymere::MasterKinds {

const MasterKind &item();
const MasterKind &itemType();
const MasterKind &location();
const MasterKind &vendor();
const MasterKind &vendorContact();
const MasterKind &tax();
const MasterKind &currency();
const MasterKind &bank();

// The one record of the organization, which has no list and comes from no file.
const MasterKind &company();

// All others, in the order in which the command line names them.
const QList<const MasterKind *> &all();

} // namespace Tallymere::MasterKinds
