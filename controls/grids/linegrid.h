#pragma once

#include "controls/grids/entrygrid.h"
#include "controls/grids/linemodel.h"
#include "controls/windows/fieldground.h"

namespace Tallymere {

// What a line grid asks of the document that it shows. Each may throw to refuse.
struct LineActions
{
    std::function<void()> begin; // before an editor opens: the current line goes into edit
    std::function<void()> append;
    std::function<void()> remove;
    // The text typed into a column of the current line, by the column's field.
    std::function<void(const QString &field, const QString &text)> enter;
    std::function<void(const QString &field)> columnSelected = {};
    // Opens the search of a column that has one, on what has been typed so far in the cell, which may be nothing.
    // False when nothing was chosen: what has been typed is there again. The columns are named in searchColumns.
    std::function<bool(const QString &field, const QString &typed)> search = {};
    QStringList searchColumns = {};
    // What a scanner has sent, if it is a code, while the cursor was in a column.
    std::function<bool(const QString &text)> isCode = {};
    std::function<void(const QString &field, const QString &code)> scan = {};
    // The full text that a typed beginning stands for; empty when there is none or the column does not complete.
    std::function<QString(const QString &field, const QString &typed)> complete = {};
};

// The lines of a document, edited in place.
//
// Enter goes to the next column, from the last one to the next line, and appends one after the last. So does Tab, and
// Shift+Tab goes back; Shift+Tab leaves the grid from its first cell, Tab from the last one of a new line in which
// nothing has been entered. Page Down appends, Ctrl+Insert and Ctrl+Delete append and delete, Ctrl+Enter searches. A
// double click begins the first line. What a barcode scanner sends goes to where the document wants it, whatever the column. Leaving a row writes it; when that is refused the cursor stays. Escape drops
// first the text being typed, then the changes of the row.
class LineGrid : public EntryGrid
{
    Q_OBJECT

public:
    explicit LineGrid(QWidget *parent = nullptr);

    void setLines(Engine::Table &lines, const QList<GridColumn> &columns, LineActions actions, const Guard &guard,
                  const LineOptions &options = {});
    // Lines can neither be appended nor deleted nor searched nor edited, and look so; what an edit says is up to the
    // document.
    void setReadOnly(bool readOnly);
    bool isReadOnly() const { return m_readOnly; }

    bool showColumn(const QString &field); // goes to it in the current line; false when no column shows the field
    void enterAtFirstLine(); // focus, first line and column; appends when there are none
    void appendLine();
    void removeLine();
    void nextCell(); // what Enter does; takes what is offered for the cell that it leaves
    void search(); // in the current column, where it has one
    QString shownHint() const override;

protected:
    using DataGrid::edit;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void gridKey(QKeyEvent *event) override;
    bool isCode(const QString &text) const override;
    void takeScan(const QString &code) override;
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    Editor makeEditor(QWidget *parent, const QModelIndex &cell) override;
    Editor makeLineEdit(QWidget *parent, const QString &field);
    void takeEntry(const QModelIndex &cell, const QString &text, Entry entry) override;
    void entered() override;
    void entryLeft(Qt::FocusReason reason) override { leave(reason); }
    bool editorKey(QKeyEvent *event) override;
    void completeEntry(const QString &typed);
    bool takeOffer(); // false when it is refused

    bool isLeft(Qt::FocusReason reason) const;
    void leave(Qt::FocusReason reason);
    bool moveByTab(bool forward);
    void moveByHand(const std::function<void()> &move);
    void searchIfEntered(int before);
    bool appends() const { return !m_readOnly && !m_options.fixedLines; }
    bool steps(const QString &field) const { return m_options.steps.contains(field); }

    bool moveToRow(int row);
    void takeCursor();
    void selectCell(int row, int column);
    QString currentField() const;
    bool searches(const QString &field) const
    {
        return m_actions.search && m_actions.searchColumns.contains(field);
    }

    FieldGround &m_ground;
    Engine::Table *m_lines = nullptr;
    LineModel *m_model = nullptr;
    LineActions m_actions;
    LineOptions m_options;
    bool m_readOnly = false;
    bool m_deleting = false; // the last key took text away: no completion
    bool m_ledByCheck = false; // a refusal has put the cursor where it is
    int m_pressedFrom = -1; // the column in which the cursor was when the mouse button went down
};

} // namespace Tallymere
