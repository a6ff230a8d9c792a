#pragma once

#include <functional>
#include <QList>

class QWidget;

namespace Tallymere {

class MasterListScreen;
struct MasterKind;
struct ScreenContext;

// A list of the master data that the main window offers, with the screen that it opens.
struct MasterScreen
{
    const MasterKind &kind;
    std::function<MasterListScreen *(ScreenContext &, QWidget *parent)> make;
};

const QList<MasterScreen> &masterScreens();

} // namespace Tallymere
