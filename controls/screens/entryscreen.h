#pragma once

#include "controls/fields/fieldbinder.h"
#include "controls/grids/windowmemory.h"
#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"
#include "data/tableowner.h"

#include <optional>
#include <QDialog>

namespace Tallymere {

// A window in which one record or document is entered. Not modal; it is freed when it is closed.
//
// Enter moves on as Tab does, but passes over the small buttons beside fields. Escape takes back what is being typed,
// except in notes, else it closes. Closing with changes asks whether they shall be saved, in front of the other windows
// and naming the record when it is closed from one of those; a new record that nobody has touched is dropped silently.
// Its place, size and the column widths of its grids are remembered.
class EntryScreen : public QDialog, public TableOwner
{
    Q_OBJECT

public:
    const Guard &guard() const { return m_guard; }
    QList<Engine::TableReader *> ownedTables() override;

    void btnOKClick(); // saves and closes; stays open when the saving is refused
    void btnCancelClick(); // drops the changes and closes

Q_SIGNALS:
    // The record has been written; the list that opened the screen moves there. What it throws is only traced.
    void saved(int key);
    void closed();

protected:
    EntryScreen(ScreenContext &context, QWidget *parent);

    enum class Pending { Nothing, Untouched, Changes };

    // --- what the kinds of screens give -------------------------------------------------------------------------
    virtual Pending pending() const = 0; // what closing would lose
    virtual void saveChanges() = 0; // throws what refuses
    virtual void dropChanges() = 0;
    virtual std::optional<int> savedKey() const = 0; // where OK leads the list; nothing where it stays
    virtual QString caption() const = 0;
    // Among the records that are open; empty where there is only one.
    virtual QString recordName() const { return caption(); }
    virtual QString closingQuestion() const { return tr("Do you want to save changes?"); }
    // Brings the cursor to what shows the column; the base knows the bound widgets.
    virtual bool focusColumn(const QString &column);
    // What a key means on this screen before anything else; true when it was used.
    virtual bool takeKey(QKeyEvent *) { return false; }

    virtual void firstShown() { } // when the screen is shown for the first time

    // Connects OK, Cancel, Help, the buttons that lead to lists and the menus of notes. Called once, after the form
    // has been set up and its fields are bound.
    void buildScreen();
    void showCaption() { showCaption(caption()); }
    void showCaption(QString text); // names that users have typed are shown as they are
    void saveAndReport(); // what OK does before it closes; throws what refuses

    ScreenContext &context() const { return m_context; }
    FieldBinder &binder() { return m_binder; }
    const FieldBinder &binder() const { return m_binder; }

    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void reject() override;

private:
    void tellSaved(int key);
    void btnHelpClick();
    void leave(); // closes without a question
    void moveOn(); // what Enter does
    bool settleChanges(); // asks if need be; false: the screen stays
    Answer askAboutChanges();

    ScreenContext &m_context;
    Guard m_guard;
    bool m_scaled = false;
    FieldBinder m_binder;
    WindowMemory m_memory;
    QSize m_firstSize;
    bool m_settled = false;
};

} // namespace Tallymere
