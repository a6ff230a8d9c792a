#pragma once

#include "controls/filterdialog.h"

namespace Tallymere {

// The filter dialog of a document list: a location, and whether documents are posted.
class DocumentFilterScreen : public FilterDialog
{
    Q_OBJECT

protected:
    DocumentFilterScreen(ScreenContext &context, const QString &name, const QString &caption, QWidget *parent);
};

// "Inventory Receipts Filter"
class TfrmInvReceiptsFilter final : public DocumentFilterScreen
{
    Q_OBJECT

public:
    TfrmInvReceiptsFilter(ScreenContext &context, QWidget *parent);
};

} // namespace Tallymere
