#pragma once

#include <QHash>
#include <QObject>
#include <QRect>

class QWidget;

namespace Tallymere {

class DataGrid;
class SettingsStore;

// Keeps for the user where a window stood, how large it was, and how wide the columns of its grids were: written when
// the window goes, if the user has changed it, and taken over by the next one with the same component name. Sizes are
// kept in design pixels, so that they fit another resolution. What cannot be written is forgotten.
class WindowMemory : public QObject
{
    Q_OBJECT

public:
    WindowMemory(QWidget &window, SettingsStore *settings); // null: nothing is remembered

    // To be called once, when the window is about to be shown with the size and place that it takes by itself.
    void restore();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString section() const;
    QList<DataGrid *> grids() const;
    void restorePlace();
    void save();
    void savePlace();
    void keepWidths(const DataGrid &grid);

    QWidget &m_window;
    SettingsStore *m_settings;
    bool m_restored = false;
    QRect m_place; // as it was opened
    // What the settings hold, or would hold if the user changed nothing.
    bool m_maximized = false;
    QHash<QString, QString> m_widths; // by grid
};

} // namespace Tallymere
