#pragma once

#include "controls/screens/filterdialog.h"

namespace Tallymere {

struct DocumentKind;

// The filter dialog of a document list: the kind's boxes, and whether documents are posted.
class DocumentFilterScreen final : public FilterDialog
{
    Q_OBJECT

public:
    DocumentFilterScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent);
};

} // namespace Tallymere
