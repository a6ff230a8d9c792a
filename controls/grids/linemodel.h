#pragma once

#include "controls/grids/lineoptions.h"
#include "controls/grids/tablemodel.h"
#include "engine/records/table.h"

#include <functional>
#include <QItemSelectionModel>

namespace Tallymere {

// The lines of a table with the one that is being edited or entered. A line being entered is the last row. It knows
// which cells can be typed into and in which order the keyboard reaches them.
class LineModel final : public TableModel
{
    Q_OBJECT

public:
    LineModel(Engine::Table &lines, const QList<GridColumn> &columns, LineOptions options, const Guard &guard,
              QObject *parent);

    int currentRow() const; // of the table's current record; -1 when there is none
    void setReadOnly(bool readOnly); // no cell can be edited then
    bool takesText(int column) const; // unless it is for reading only
    bool isUntouched() const; // the current record is new, and nothing has been entered in it
    // What the document offers for an empty cell; nothing of one that holds something.
    std::optional<LineOffer> offerFor(const QModelIndex &cell) const;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override; // by enterText

    std::function<bool(const QModelIndex &cell, const QString &text)> enterText; // as EntryGrid::enterText
    QVariant data(const QModelIndex &index, int role) const override;

    // The cell that comes after another: for Enter, and for Tab and Shift+Tab, which pass over none. Not valid
    // beyond the last cell, or before the first.
    enum class Way { Enter, Tab, Backtab };
    QModelIndex neighbour(const QModelIndex &cell, Way way) const;

private:
    Engine::Value cellValue(int row, int field) const override;
    int dataRows() const override;

    bool stopsAt(int column, Way way) const;

    Engine::Table &m_lines;
    const LineOptions m_options;
    bool m_readOnly = false;
};

// A selection that asks before the cursor leaves its row, and stays where it is when that is refused.
class LineSelection final : public QItemSelectionModel
{
    Q_OBJECT

public:
    // Brings the table to a row; false when it stays on its own.
    using Mover = std::function<bool(int row)>;

    LineSelection(QAbstractItemModel *model, Mover mover, QObject *parent);

public Q_SLOTS:
    void setCurrentIndex(const QModelIndex &index, QItemSelectionModel::SelectionFlags command) override;
    void select(const QModelIndex &index, QItemSelectionModel::SelectionFlags command) override;
    void select(const QItemSelection &selection, QItemSelectionModel::SelectionFlags command) override;

private:
    Mover m_mover;
    bool m_moving = false;
};

} // namespace Tallymere
