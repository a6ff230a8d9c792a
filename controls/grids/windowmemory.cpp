#include "controls/grids/windowmemory.h"

#include "base/formposition.h"
#include "controls/grids/columnwidths.h"
#include "controls/grids/datagrid.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/windowplaces.h"

#include <algorithm>
#include <QEvent>
#include <utility>

namespace Tallymere {

namespace {
// Screens that are scaled by a fraction round places; a pixel is not the user's change.
bool isSamePlace(const QRect &one, const QRect &other)
{
    const QMargins apart(one.left() - other.left(), one.top() - other.top(), one.right() - other.right(),
                         one.bottom() - other.bottom());
    const auto [least, most] = std::minmax({apart.left(), apart.top(), apart.right(), apart.bottom()});
    return least >= -1 && most <= 1;
}
} // namespace

WindowMemory::WindowMemory(QWidget &window, SettingsStore *settings)
    : QObject(&window)
    , m_window(window)
    , m_settings(settings)
{
    window.installEventFilter(this);
}

QString WindowMemory::section() const { return m_window.objectName(); }

QList<DataGrid *> WindowMemory::grids() const
{
    QList<DataGrid *> grids = m_window.findChildren<DataGrid *>();
    grids.removeIf(
        [this](const DataGrid *grid) { return grid->columns().isEmpty() || grid->window() != &m_window; });
    return grids;
}

void WindowMemory::restore()
{
    m_restored = true;
    if (m_settings) {
        restorePlace();
        for (DataGrid *grid : grids()) {
            const QString name = grid->objectName();
            setColumnWidths(*grid, m_settings->value(section(), Settings::columnWidths(name)));
            m_widths.insert(name, columnWidths(*grid));
        }
    }
    standApart(m_window);
    m_place = m_window.geometry();
}

void WindowMemory::restorePlace()
{
    if (const std::optional<QRect> kept = setFormPos(*m_settings, section(), Settings::Place))
        moveToPlace(m_window, QRect(kept->topLeft(), kept->size() * fontFactor(&m_window)));
    m_maximized = m_settings->value(section(), Settings::Maximized);
    if (m_maximized)
        m_window.setWindowState(m_window.windowState() | Qt::WindowMaximized);
}

bool WindowMemory::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_window && event->type() == QEvent::Hide && !event->spontaneous() && m_restored && m_settings)
        save();
    return false;
}

void WindowMemory::save()
{
    for (const DataGrid *grid : grids())
        keepWidths(*grid);
    if (!m_window.isMinimized())
        savePlace();
}

void WindowMemory::savePlace()
{
    const bool maximized = m_window.isMaximized();
    if (std::exchange(m_maximized, maximized) != maximized)
        m_settings->setValue(section(), Settings::Maximized, maximized);
    if (m_window.isMaximized() || m_window.isFullScreen() || isSamePlace(m_window.geometry(), m_place))
        return;
    m_place = m_window.geometry();
    saveFormPos(*m_settings, QRect(m_place.topLeft(), m_place.size() / fontFactor(&m_window)), section(),
                Settings::Place);
}

void WindowMemory::keepWidths(const DataGrid &grid)
{
    const QString name = grid.objectName();
    const QString widths = columnWidths(grid);
    if (std::exchange(m_widths[name], widths) != widths)
        m_settings->setValue(section(), Settings::columnWidths(name), widths);
}

} // namespace Tallymere
