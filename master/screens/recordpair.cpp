#include "master/screens/recordpair.h"

#include "controls/fields/lookupcombobox.h"
#include "controls/windows/leaving.h"
#include "engine/records/table.h"
#include "master/masterkind.h"
#include "master/recordnumber.h"

#include <algorithm>
#include <QFocusEvent>
#include <QLineEdit>

namespace Tallymere {

namespace {

QString titleOf(const MasterKind &kind, const QString &field)
{
    const auto column = std::find_if(kind.list.columns.begin(), kind.list.columns.end(),
                                     [&](const GridColumn &shown) { return shown.field == field; });
    return column == kind.list.columns.end() ? field : column->title;
}

} // namespace

RecordPair::RecordPair(QLineEdit *number, LookupComboBox *list, const MasterKind &kind,
                       Engine::TableReader &records, const Guard &guard)
    : QObject(number)
    , m_number(number)
    , m_list(list)
    , m_kind(kind)
    , m_records(records)
    , m_guard(guard)
{
    const QString name = kind.nameField();
    m_list->setList(records,
                    {{name, titleOf(kind, name), 260}, {kind.numberField, titleOf(kind, kind.numberField), 90}},
                    guard);
    m_number->setMaxLength(records.field(kind.numberField).size);
    m_number->installEventFilter(this);
    connect(m_list, &LookupComboBox::chosen, this, &RecordPair::choose);
}

int RecordPair::key() const { return m_list->chosenId(); }

QString RecordPair::text() const { return m_list->currentText(); }

void RecordPair::choose(int key)
{
    m_list->setChosenId(key);
    const bool any = key != 0;
    m_number->setText(any ? m_records.lookUp(m_kind.keyField, {key}, m_kind.numberField).toText() : QString());
}

int RecordPair::settle()
{
    m_list->settle();
    lookUp();
    return key();
}

void RecordPair::lookUp()
{
    if (!m_number->isModified())
        return;
    const QString text = m_number->text().trimmed();
    choose(text.isEmpty() ? 0 : keyByNumber(m_records.database(), m_kind, text));
}

bool RecordPair::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::FocusOut || !handsEntryOver(*static_cast<QFocusEvent *>(event)))
        return false;
    const std::exception_ptr failure = Guard::attempt([this] { lookUp(); });
    if (failure) {
        QMetaObject::invokeMethod(
            this,
            [this, failure] {
                m_number->setFocus();
                m_guard.report(failure);
            },
            Qt::QueuedConnection);
    }
    return false;
}

} // namespace Tallymere
