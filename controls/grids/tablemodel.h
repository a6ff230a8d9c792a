#pragma once

#include "base/gridcolumn.h"
#include "controls/grids/cellnote.h"
#include "controls/windows/guard.h"
#include "engine/records/dataset.h"

#include <QAbstractTableModel>
#include <QList>

namespace Tallymere {

// Shows a data set to views. Rows are read in the windows that the data set keeps, never all of them. A model that
// reads the first page first has only that many rows when its set has been opened; the view that has painted them
// calls for the rest, so that a long list is there at once.
//
// Views read in the middle of painting, where nothing may be thrown: a failure of the store shows as empty cells and
// is reported by the guard afterwards, once until the list is read again.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum class Reading { Whole, FirstPageFirst };

    TableModel(Engine::DataSet &set, QList<GridColumn> columns, const Guard &guard, QObject *parent = nullptr,
               Reading reading = Reading::Whole);

    Engine::DataSet &dataSet() const { return m_data; }
    const QList<GridColumn> &columns() const { return m_columns; }
    int columnOf(const QString &field) const; // -1 when no column shows it
    bool isPartial() const { return m_partial; } // only the first page is there
    bool hasFailed() const { return m_failed; } // something could not be read since the list was read
    // A cell as it is shown. Throws what the store raises.
    QString shownText(int row, int column) const;
    QString shownText(const Engine::Row &row, int column) const; // of a row of the set that is in hand
    void readRest(); // nothing to do when all rows are there
    int
    currentRow() const; // of the data set's record; -1 where it has none, or one that the first page does not show
    void makeCurrent(int row); // as it is shown, whatever comes before it in the whole list

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // Typed search in views: the first row whose column begins with the text, found by the data set.
    QModelIndexList match(const QModelIndex &start, int role, const QVariant &value, int hits,
                          Qt::MatchFlags flags) const override;

Q_SIGNALS:
    void completed(); // all rows are there, which may be none, where only the first page was

protected:
    // A row beyond the data set's, or the value in hand of a row that is being edited.
    virtual Engine::Value cellValue(int row, int field) const;
    virtual int dataRows() const;
    void takeList(); // the data set's list is new: as many rows as it has now
    void updateRow(int row);
    void attempt(const std::function<void()> &reading) const; // with a report to come when it failed

private:
    void readList(bool mayBeginWithPage);
    QString cellText(const QModelIndex &index, int role) const;
    CellNote cellNote(const QModelIndex &index) const;
    QString shownValue(int field, const Engine::Value &value) const;
    void findFields();
    int rowStartingWith(const QString &field, const QString &text) const; // -1 when there is none
    void tell(const std::exception_ptr &failure) const;
    void readFirstPage();
    void showRows(int rows);

    const Guard &m_guard;
    mutable bool m_failed = false;
    Engine::DataSet &m_data;
    QList<GridColumn> m_columns;
    std::vector<int> m_fields; // the numbers of the columns' fields, -1 for one that the set does not have
    const Reading m_reading;
    std::vector<Engine::FoundRow> m_firstPage; // while it is partial
    bool m_partial = false;
    int m_rows = 0;
};

} // namespace Tallymere
