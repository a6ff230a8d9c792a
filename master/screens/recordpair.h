#pragma once

#include "controls/windows/guard.h"

#include <QObject>

class QLineEdit;

namespace Engine {
class TableReader;
}

namespace Tallymere {

class LookupComboBox;
struct MasterKind;

// Choosing a record by its number or from a list of names: two widgets that follow each other, as find and filter
// dialogs have them. Leaving the number box looks the number up; an unknown one is shown and keeps the cursor.
class RecordPair final : public QObject
{
    Q_OBJECT

public:
    // The records in the order of the list; the widgets belong to the dialog.
    RecordPair(QLineEdit *number, LookupComboBox *list, const MasterKind &kind, Engine::TableReader &records,
               const Guard &guard);

    // The chosen record, after looking up a number that was typed; 0 when nothing is chosen. Throws for an unknown
    // number.
    int settle();
    int key() const;
    QString text() const; // what messages call the chosen record
    void choose(int key); // shows the record in both widgets; 0 clears them
    QLineEdit *numberBox() const { return m_number; }

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void lookUp();

    QLineEdit *m_number;
    LookupComboBox *m_list;
    const MasterKind &m_kind;
    Engine::TableReader &m_records;
    const Guard &m_guard;
};

} // namespace Tallymere
