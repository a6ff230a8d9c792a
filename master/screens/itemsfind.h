#pragma once

#include "master/screens/recordfindscreen.h"

namespace Tallymere {

// "Find Item": moves a list that has items to one of them.
class TfrmItemsFind final : public RecordFindScreen
{
    Q_OBJECT

public:
    TfrmItemsFind(ScreenContext &context, ListScreen &list);
};

} // namespace Tallymere
