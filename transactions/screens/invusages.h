#pragma once

#include "transactions/screens/documentlistscreen.h"

namespace Tallymere {

// "Inventory Usage": the list of all usage. Beside a single one, all that is unposted of a date is deleted from it.
class TfrmUsages final : public DocumentListScreen
{
    Q_OBJECT

public:
    TfrmUsages(ScreenContext &context, QWidget *parent);

private:
    void addCommands(ListDescription &description);
    ListCommand deleteMenu(const ListCommand &selected);
    void mnuDeleteDateClick();
};

} // namespace Tallymere
