#pragma once

#include "controls/screens/recordscreen.h"
#include "engine/store/tablelocks.h"
#include "master/masterrecord.h"

namespace Tallymere {

// The screen of one record of a master table. The form names the fields; the rules are those of the kind.
//
// A screen without anything of its own is MasterForm<kind, form>; others derive, set up their form and call
// buildRecord().
class MasterRecordScreen : public RecordScreen
{
    Q_OBJECT

public:
    ~MasterRecordScreen() override;

    void newRecord() override;
    void newCopy(const Engine::DataSet &original); // a row of the list
    bool openRecord(int key) override;
    std::optional<int> storedKey() const override;
    int key() const { return m_record.key(); }
    bool isNew() const { return m_record.isNew(); }

protected:
    // The record is open. What else the screen opens is named.
    MasterRecordScreen(ScreenContext &context, const MasterKind &kind, QWidget *parent,
                       const QStringList &otherTables = {});

    // Called once by the constructor of a screen, after its form has been set up: fills the lookup boxes, binds the
    // fields and connects the buttons.
    void buildRecord();

    MasterRecord &record() { return m_record; }
    const MasterRecord &record() const { return m_record; }

    void saveAndNew(); // saves, and goes on with a new one; stays with the record when the saving is refused

    virtual void showRecord() { } // the record, or one of its values, is new
    void firstShown() override;

    Pending pending() const override;
    void saveChanges() override;
    void dropChanges() override;
    std::optional<int> savedKey() const override;
    QString caption() const override { return m_record.caption(); }
    QString recordName() const override;

private:
    void recordChanged();
    void addSaveAndNew();
    void followName(); // the caption, while the name is typed

    const Engine::OpenShares m_opening; // of its tables
    MasterRecord m_record;
    bool m_saved = false;
};

template <const MasterKind &(*kind)(), typename Form> class MasterForm final : public MasterRecordScreen
{
public:
    MasterForm(ScreenContext &context, QWidget *parent)
        : MasterRecordScreen(context, kind(), parent)
    {
        Form form;
        form.setupUi(this);
        buildRecord();
    }
};

} // namespace Tallymere
