#pragma once

#include "controls/windows/guard.h"
#include "engine/records/table.h"

#include <memory>
#include <QObject>
#include <vector>

class QWidget;

namespace Tallymere {

class FieldBinding;

// Ties the widgets of a form to the fields of tables.
//
// A widget names its field in the dynamic property "dataField", and its table in "dataSource" where the form has
// several. Line edits, lookup boxes, drop-down lists of fixed choices (dynamic property "values"), check boxes, groups
// of radio buttons, plain text edits and labels can be tied. What the user enters puts the table into edit at once and
// is handed over on leaving the widget; a refusal is shown and the cursor stays. A line edit with the dynamic property
// "editMask" has that input mask while it has the cursor; one that the form has read-only stays that, in the form's
// grey. Leaving towards a widget that keeps the entry (see leaving.h) hands nothing over yet; that is done when the
// cursor goes on from there to another one of the form.
class FieldBinder : public QObject
{
    Q_OBJECT

public:
    FieldBinder(QWidget *form, const Guard &guard);
    ~FieldBinder() override;

    // Ties all widgets of the form whose table is the source. The table must be open; a field that it does not have
    // throws NoSuchField, so that a misspelt form shows at once. Before the form can become read-only.
    void bind(Engine::Table &table, const QString &source = {});

    // What is typed into the line edit of a field goes to the rule instead of the field: for a looked-up number
    // that stands for a key. The table is left alone until then; the rule puts it into edit.
    void setEntryRule(const QString &field, std::function<void(const QString &text)> rule);

    QList<Engine::Table *> tables() const; // those whose fields are bound

    QWidget *firstWidget() const; // that Tab comes to, among the bound ones; nullptr when there is none
    QWidget *widgetFor(const QString &column) const; // nullptr when no widget shows it
    // The number in a bound field of the current record; 0 for none. What has been entered is handed over first, so
    // that it is the one that the form shows; throws what commit() does.
    int keyIn(const QString &field);
    // Hands over what has been entered and not handed over yet; throws what refuses it, and SilentAbort while the user
    // is still to be told of an entry that was refused before, as on leaving it for the button that calls this, or when he
    // says no to a question about it.
    void commit();
    bool hasEntry() const; // something was entered that commit() would hand over
    // Puts the field's value back into the widget; false when nothing had been entered there.
    bool revert(QWidget *widget);
    // The record can only be read: its fields look so and accessibility tools are told so. Who types into one all the
    // same asks the table for the edit, whose refusal says why.
    void setReadOnly(bool readOnly);
    // So it is as long as somebody else has the record in use, unless something has been entered already. That ends
    // with the first key for which the record can be had.
    void setInUse(bool inUse);
    void refresh(); // shows the tables' values, except where an entry waits

Q_SIGNALS:
    void readOnlyChanged(bool readOnly); // for either reason

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void leave(FieldBinding &binding);
    void askLater(FieldBinding &binding);
    void handOver(FieldBinding &binding);
    void focusMoved(QWidget *now);
    void startEdit(FieldBinding &binding);
    void reportLater(const std::exception_ptr &failure);
    void watch(Engine::Table &table);
    FieldBinding *bindingOf(const QObject *widget) const;
    bool isReadOnly() const { return m_readOnly || m_inUse; }
    void showReadOnly(bool before);
    bool isBeingEdited() const;

    QWidget *m_form;
    const Guard &m_guard;
    std::vector<std::unique_ptr<FieldBinding>> m_bindings;
    bool m_readOnly = false;
    bool m_inUse = false;
    FieldBinding *m_kept = nullptr; // left towards a widget that keeps the entry, or another window
    bool m_refusing = false; // an entry is refused, and that is being told
    FieldBinding *m_asked = nullptr; // left with an entry about which the user is still to be asked
};

} // namespace Tallymere
