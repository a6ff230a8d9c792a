#pragma once

#include "controls/screens/dialogscreen.h"

#include <memory>

namespace Engine {
class TableReader;
} // namespace Engine
namespace Ui {
class RecordFindScreen;
}

namespace Tallymere {

class ListScreen;
class RecordPair;
class WordsFinding;
struct MasterKind;

// How the find dialog of one kind of records differs from those of the others.
struct FindDialogKind
{
    QString name; // component name: "frmItemsFind"
    QString caption; // "Find Item"
    QString numberBox; // "editItem"
    QString numberLabel; // "Item &no.:"
    QString nameBox; // "cboItem"
    QString nameLabel; // "&Description:"
};

// Moves a list to one record, which the user names by its number or chooses by its name; or to rows with the words that have
// been typed for a number.
class RecordFindScreen : public DialogScreen
{
    Q_OBJECT

public:
    ~RecordFindScreen() override;

    void btnOKClick();

protected:
    // The records in the order in which they are chosen. The list, over which the dialog stands, may be one of rows that
    // refer to the records.
    RecordFindScreen(ScreenContext &context, const FindDialogKind &dialog, const MasterKind &kind,
                     Engine::TableReader &records, ListScreen &list);

    QWidget *widgetOfColumn(const QString &column) const override;

private:
    std::unique_ptr<Ui::RecordFindScreen> m_ui;
    const MasterKind &m_kind;
    ListScreen &m_list;
    RecordPair *m_record;
    WordsFinding *m_words;
};

} // namespace Tallymere
