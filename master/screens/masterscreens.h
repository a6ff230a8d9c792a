#pragma once

#include "controls/screens/recordopener.h"

#include <functional>
#include <QList>

class QWidget;

namespace Tallymere {

class MasterListScreen;
struct MasterKind;

// A list of the master data with its screen, and that of a record.
struct MasterScreen
{
    const MasterKind &kind;
    std::function<MasterListScreen *(ScreenContext &, QWidget *parent)> make;
    RecordScreens::Make makeRecord;
};

// In the order in which the main window offers them.
const QList<MasterScreen> &masterScreens();

} // namespace Tallymere
