#include "controls/grids/windowmemory.h"

#include "base/formposition.h"
#include "controls/grids/columnwidths.h"
#include "controls/grids/datagrid.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/windowplaces.h"

#include <algorithm>
#include <QEvent>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr auto placeKey = "Place"_L1;
constexpr auto maximizedKey = "Maximized"_L1;
constexpr auto yes = "true"_L1;

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
            setColumnWidths(*grid, m_settings->read(formSetting(section()), grid->objectName()));
            m_kept.insert(grid->objectName(), columnWidths(*grid));
        }
    }
    standApart(m_window);
    m_place = m_window.geometry();
}

void WindowMemory::restorePlace()
{
    if (const std::optional<QRect> kept = setFormPos(*m_settings, section(), placeKey))
        moveToPlace(m_window, QRect(kept->topLeft(), kept->size() * fontFactor(&m_window)));
    m_kept.insert(maximizedKey, m_settings->read(formSetting(section()), maximizedKey));
    if (m_kept[maximizedKey] == yes)
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
        keep(grid->objectName(), columnWidths(*grid));
    if (!m_window.isMinimized())
        savePlace();
}

void WindowMemory::savePlace()
{
    keep(maximizedKey, m_window.isMaximized() ? QString(yes) : QString());
    if (m_window.isMaximized() || m_window.isFullScreen() || isSamePlace(m_window.geometry(), m_place))
        return;
    m_place = m_window.geometry();
    saveFormPos(*m_settings, QRect(m_place.topLeft(), m_place.size() / fontFactor(&m_window)), section(), placeKey);
}

void WindowMemory::keep(const QString &key, const QString &value)
{
    if (m_kept.value(key) == value)
        return;
    m_kept.insert(key, value);
    m_settings->write(formSetting(section()), key, value);
}

} // namespace Tallymere
