#pragma once

#include <functional>
#include <QList>

class QWidget;

namespace Tallymere {

class MasterListScreen;
struct MasterKind;
struct ScreenContext;

// A list of the master data with its screen.
struct MasterScreen
{
    const MasterKind &kind;
    std::function<MasterListScreen *(ScreenContext &, QWidget *parent)> make;
};

// In the order in which the main window offers them.
const QList<MasterScreen> &masterScreens();

} // namespace Tallymere
