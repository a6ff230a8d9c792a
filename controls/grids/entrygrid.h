#pragma once

#include "controls/grids/datagrid.h"
#include "controls/grids/lineoptions.h"
#include "controls/windows/fieldmark.h"
#include "controls/windows/guard.h"
#include "controls/windows/scan.h"

class QLineEdit;

namespace Tallymere {

// A grid whose cells are typed into, in place. What is typed is handed over by Enter, Tab or leaving the cell. Where it is
// refused the editor stays open, or is opened again on it once the refusal has been shown, unless that sends the cursor to
// another column. Escape drops it.
class EntryGrid : public DataGrid, public MarksRefusals
{
    Q_OBJECT

public:
    // Hands over the text being typed; throws what refuses it, and the editor stays open. SilentAbort while a refusal is
    // still to be shown.
    void commitEntry();
    bool hasEntry() const { return m_editor != nullptr; }
    // Goes to a cell and enters a text there as if it had been typed, for programs that read and write for the user. False
    // where that is refused, which the user is told; the text stays there to be mended then.
    bool enterText(const QModelIndex &cell, const QString &text);
    void dropEntry(); // without a word
    CellState cellState(const QModelIndex &cell) const override;
    bool isRefused(const QModelIndex &cell) const override { return cell == m_refused; }
    void markRefused() override; // until another text is typed there, or the cursor leaves the row

protected:
    explicit EntryGrid(QWidget *parent);

    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void setRefused(const QModelIndex &cell); // none: nothing is refused any more

    void setGuard(const Guard &guard) { m_guard = &guard; }
    const Guard &guard() const { return *m_guard; }

    struct Editor
    {
        QWidget *box = nullptr; // what stands in the cell: the edit, or what holds it
        QLineEdit *edit = nullptr;
    };
    Editor lineEdit(QWidget *parent) const;
    Editor stepBox(QWidget *parent, const Engine::Field &field, const LineSteps &steps) const;

    virtual Editor makeEditor(QWidget *parent, const QModelIndex &cell) = 0;
    enum class Entry { Unchanged, Changed };
    virtual void takeEntry(const QModelIndex &cell, const QString &text, Entry entry) = 0; // throws to refuse
    virtual void entered() = 0; // Enter has handed the entry over; the cursor moves on
    virtual void entryLeft(Qt::FocusReason) { } // it was handed over as the focus went
    virtual bool editorKey(QKeyEvent *event); // true when the key has been used
    void keyPressEvent(QKeyEvent *event) final;
    virtual void gridKey(QKeyEvent *event); // pressed while no editor is open
    // Whether what has come as fast as from a scanner is a code for takeScan(); else it counts as typed.
    virtual bool isCode(const QString & /*text*/) const { return false; }
    virtual void takeScan(const QString & /*code*/) { } // whatever cell its letters have come into

    QLineEdit *editor() const { return m_editor; } // null while none is open
    QString typedText() const; // what has been typed in the open editor, if anything
    bool finishEntry(); // commits and closes; false, with the editor open, when refused
    void reopen(const QModelIndex &cell, const QString &text);
    bool isReporting() const { return m_reporting; }
    // The box waits for the end of the event that took the focus away; until then the cursor is held.
    void reportLater(const std::exception_ptr &failure, const std::function<void()> &then);

private:
    friend class EntryDelegate;

    bool takeEditorKey(QKeyEvent *event);
    bool endsScan(const QKeyEvent &key);
    bool takeOut(const QString &code);
    void setTextMargins(QLineEdit &edit) const;
    QWidget *openEditor(QWidget *parent, const QModelIndex &cell);
    bool openAt(const QModelIndex &cell);
    void editorLeft(Qt::FocusReason reason);
    bool leadsAway(const std::exception_ptr &failure, const QModelIndex &cell) const;
    void editorGone();

    const Guard *m_guard = nullptr;
    QWidget *m_editorBox = nullptr;
    QLineEdit *m_editor = nullptr;
    QPersistentModelIndex m_edited;
    QPersistentModelIndex m_refused;
    QString m_offered; // what the editor began with
    Scan m_scan;
    const QKeyEvent *m_forwarded = nullptr; // that has opened the editor, which is given it as well
    bool m_given = false; // the text counts as entered, be it what the editor began with
    bool m_reporting = false; // a refusal is being shown: the focus may come and go
};

} // namespace Tallymere
