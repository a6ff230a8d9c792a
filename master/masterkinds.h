#pragma once

#include "master/masterrecord.h"

// The master tables whose rules are data alone, and the few that add rules of their own.

namespace Tallymere {

namespace MasterKinds {

MasterKind item();
MasterKind itemType();
MasterKind location();
MasterKind vendor();
MasterKind vendorContact();
MasterKind tax();
MasterKind currency();
MasterKind bank();

} // namespace MasterKinds

class ItemRecord final : public MasterRecord
{
    Q_DECLARE_TR_FUNCTIONS(Tallymere::ItemRecord)

public:
    explicit ItemRecord(Engine::Database &database);

protected:
    void check() override; // tax codes are up to three letters
};

class VendorRecord final : public MasterRecord
{
public:
    explicit VendorRecord(Engine::Database &database);

    // A web page as it is kept: what contains "http://" loses its first seven characters and all after the 29th.
    static QString webPageAsKept(const QString &typed);

protected:
    void configureFields() override; // how a web page and a postal code are taken over
    void presetNew() override; // the organization's currency
};

class VendorContactRecord final : public MasterRecord
{
    Q_DECLARE_TR_FUNCTIONS(Tallymere::VendorContactRecord)

public:
    explicit VendorContactRecord(Engine::Database &database);

protected:
    void check() override; // a contact has a name
};

} // namespace Tallymere
