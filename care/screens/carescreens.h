#pragma once

#include <functional>
#include <QList>
#include <QString>

class QWidget;

namespace Tallymere {

struct ScreenContext;

// A screen of this room under its component name.
struct CareScreen
{
    using Make = std::function<QWidget *(ScreenContext &, QWidget *parent)>;

    QString name;
    Make make;
};

QList<CareScreen> careScreens();

} // namespace Tallymere
