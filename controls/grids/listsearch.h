#pragma once

#include "controls/grids/rowsearch.h"
#include "controls/grids/tablemodel.h"
#include "controls/windows/guard.h"

#include <optional>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QKeyEvent;

namespace Tallymere {

// The search by typing in a list: what is typed without a pause is the beginning of a text in the column that the list is
// ordered by, and the cursor goes to the first row that has it, found by a key look-up. When no row has it, the words are
// looked for anywhere in the shown columns (RowSearch), in a long list while nothing else is done; when no row has them
// either, the cursor stays. F3 goes to the next row that has the words. Backspace takes the last character away, Escape and
// any other move of the cursor end the search.
//
// The column is the first text of the order that the list shows.
class ListSearch : public QObject
{
    Q_OBJECT

public:
    ListSearch(const TableModel &model, const Guard &guard, QObject *parent);

    bool takeKey(const QKeyEvent &key); // false when it means nothing here
    void type(const QString &text);
    void findNext(const QString &text); // anywhere below the cursor
    void end();

    const QString &text() const { return m_text; } // empty: nothing is being searched for
    bool isFound() const { return m_found; }
    bool isLooking() const { return m_rows.isOn() && !m_found; } // through the rows of a long list
    int looked() const { return m_rows.looked(); } // at so many of them

Q_SIGNALS:
    void changed();

private:
    std::optional<Engine::OrderedField> column() const;
    bool goesOn() const; // what is typed now belongs to the text
    bool locate(const Engine::OrderedField &column, const QString &text) const;
    void find();
    bool begins() const; // a row with the text at its beginning has been found
    void shorten();
    void lookThrough(qint64 milliseconds);

    const TableModel &m_model;
    const Guard &m_guard;
    QString m_text;
    QString m_lookedFor; // through the rows
    bool m_found = false;
    bool m_moving = false; // it is the search that moves the cursor
    QElapsedTimer m_sinceTyped;
    RowSearch m_rows;
    QTimer m_idle; // while rows are looked through
};

} // namespace Tallymere
