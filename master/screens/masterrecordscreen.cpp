#include "master/screens/masterrecordscreen.h"

#include "controls/fields/lookuplists.h"
#include "controls/windows/icons.h"
#include "data/datamodule.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace Tallymere {

MasterRecordScreen::MasterRecordScreen(ScreenContext &context, const MasterKind &kind, QWidget *parent,
                                       const QStringList &otherTables)
    : RecordScreen(context, parent)
    , m_opening(context.data.databaseTallymere(), QStringList(kind.table) + otherTables)
    , m_record(context.data.databaseTallymere(), kind)
{
    m_record.open();
    m_record.table().moveToNone();
}

MasterRecordScreen::~MasterRecordScreen()
{
    // The table closes with the record and would call for a caption that is no more.
    m_record.table().disconnect(this);
}

void MasterRecordScreen::buildRecord()
{
    setObjectName(m_record.kind().record.screen);
    setLookupLists(*this, context().lookups, guard());
    binder().bind(m_record.table());
    connect(&m_record.table(), &Engine::DataSet::fieldChanged, this, &MasterRecordScreen::recordChanged);
    connect(&m_record.table(), &Engine::DataSet::currentChanged, this, &MasterRecordScreen::recordChanged);
    connect(&m_record.table(), &Engine::DataSet::stateChanged, this, &MasterRecordScreen::recordChanged);
    followName();
    if (m_record.kind().record.comesInNumbers)
        addSaveAndNew();
    buildScreen();
}

// Apart from the buttons that the form has, at the other end of their row.
void MasterRecordScreen::addSaveAndNew()
{
    auto *ok = findChild<QPushButton *>(u"btnOK"_s);
    auto *row = qobject_cast<QBoxLayout *>(ok->parentWidget()->layout());
    auto *button = new QPushButton(tr("Save and New"), ok->parentWidget());
    button->setObjectName(u"btnSaveAndNew"_s);
    setGlyph(*button, Glyph::New);
    row->insertWidget(0, button);
    setTabOrder(findChild<QPushButton *>(u"btnCancel"_s), button);
    connectGuarded(button, &QPushButton::clicked, this, &MasterRecordScreen::saveAndNew);
}

void MasterRecordScreen::saveAndNew()
{
    saveAndReport();
    newRecord();
    m_saved = false;
    firstShown();
}

void MasterRecordScreen::followName()
{
    const QString nameField = m_record.kind().nameField();
    if (auto *edit = qobject_cast<QLineEdit *>(binder().widgetFor(nameField)))
        connect(edit, &QLineEdit::textEdited, this, [this, edit] {
            // What was typed may have been taken back already.
            showCaption(m_record.captionFor(edit->text()));
        });
}

void MasterRecordScreen::recordChanged()
{
    showCaption();
    showRecord();
}

void MasterRecordScreen::newRecord()
{
    m_record.newRecord();
    recordChanged();
}

void MasterRecordScreen::newCopy(const Engine::DataSet &original)
{
    m_record.newCopy(original);
    recordChanged();
}

bool MasterRecordScreen::openRecord(int key)
{
    const bool found = m_record.openRecord(key);
    recordChanged();
    return found;
}

std::optional<int> MasterRecordScreen::storedKey() const { return isNew() ? std::nullopt : std::optional(key()); }

void MasterRecordScreen::firstShown()
{
    if (auto *pages = findChild<QTabWidget *>())
        pages->setCurrentIndex(0);
    if (QWidget *first = binder().firstWidget())
        first->setFocus();
}

EntryScreen::Pending MasterRecordScreen::pending() const
{
    if (!m_record.table().isEditing())
        return Pending::Nothing;
    return m_record.table().isModified() ? Pending::Changes : Pending::Untouched;
}

void MasterRecordScreen::saveChanges()
{
    if (!m_record.table().isEditing())
        return;
    m_record.save();
    m_saved = true;
}

void MasterRecordScreen::dropChanges() { m_record.cancel(); }

QString MasterRecordScreen::recordName() const
{
    const MasterKind &kind = m_record.kind();
    const QString name = kind.recordName(m_record.table());
    const QString what = isNew() ? kind.record.newCaption : kind.record.caption;
    return name.isEmpty() ? what : tr("%1 '%2'").arg(what, name);
}

std::optional<int> MasterRecordScreen::savedKey() const
{
    return m_saved ? std::optional(m_record.key()) : std::nullopt;
}

} // namespace Tallymere
