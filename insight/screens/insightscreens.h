#pragma once

#include <functional>
#include <QList>
#include <QString>

class QWidget;

namespace Tallymere {

struct ScreenContext;

// A screen of this room under its component name.
struct InsightScreen
{
    using Make = std::function<QWidget *(ScreenContext &, QWidget *parent)>;

    QString name;
    Make make;
};

QList<InsightScreen> insightScreens();

} // namespace Tallymere
