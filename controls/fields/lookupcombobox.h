#pragma once

#include "controls/grids/tablemodel.h"

#include <QComboBox>
#include <QElapsedTimer>

namespace Tallymere {

// A drop-down list of another table's rows, which stands for the key of the chosen row.
//
// Typing letters moves to the first row that begins with them, the arrow keys to the rows beside it; the choice is
// made on leaving the box (not towards a widget that keeps the entry, see leaving.h), with Enter, or at once by picking
// from the open list. Delete clears it, Escape goes back to the last choice. The list is read again when the cursor
// comes, and each time it is dropped down.
class LookupComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LookupComboBox(QWidget *parent = nullptr);

    // The rows in the list's own order; their key is one whole number. The first column stands in the closed box, all
    // of them in the open list. The list must outlive the box and is opened if need be. Others may share it: the box
    // has a row of its own and moves nothing in it.
    void setList(Engine::DataSet &list, const QList<GridColumn> &columns, const Guard &guard);

    int chosenId() const { return m_id; } // 0: nothing chosen
    int shownId() const { return currentIndex() < 0 ? 0 : m_id; } // 0 also for what the list does not hold any more
    void setChosenId(int id); // shows nothing when the list does not hold it; no signal
    bool isPending() const { return m_shown != m_id; } // moved by keys, not chosen yet
    void settle(); // makes the pending row the choice
    void setReadOnly(bool readOnly); // looks like a line edit that can only be read
    bool isReadOnly() const { return m_readOnly; }

    void showPopup() override;

Q_SIGNALS:
    void chosen(int id); // the user has made a choice, or cleared it
    void moved(); // a key has brought up another row, which is pending

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchParent();
    void choose(int id);
    void showPending(int id);
    void showRow();
    void typed(const QString &text);
    void step(int rows);
    int rowOf(int id) const;
    int idAt(int row) const;

    TableModel *m_list = nullptr;
    const Guard *m_guard = nullptr;
    int m_id = 0;
    int m_shown = 0; // the key of the row that the box stands on
    bool m_readOnly = false;
    QString m_typed;
    QElapsedTimer m_sinceTyped;
};

} // namespace Tallymere
