#include "master/itempairform.h"

#include "controls/lookupcombobox.h"
#include "engine/table.h"
#include "master/itemsearch.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace Tallymere {

ItemPair::ItemPair(QLineEdit *number, LookupComboBox *list, Engine::Table &items, const Guard &guard)
    : QObject(number)
    , m_number(number)
    , m_list(list)
    , m_items(items)
    , m_guard(guard)
{
    m_list->setList(items, u"ItemID"_s,
                    {{u"ItemDescription"_s, tr("Description"), 260}, {u"ItemNo"_s, tr("Item no."), 90}}, guard);
    m_number->setMaxLength(items.field(u"ItemNo"_s).size);
    m_number->installEventFilter(this);
    connect(m_list, &LookupComboBox::chosen, this, &ItemPair::choose);
}

int ItemPair::itemId() const { return m_list->chosenId(); }

QString ItemPair::itemText() const { return m_list->currentText(); }

void ItemPair::choose(int itemId)
{
    m_list->setChosenId(itemId);
    const bool shown = itemId != 0 && m_items.locate(u"ItemID"_s, {Engine::Value(itemId)});
    m_number->setText(shown ? m_items.text(u"ItemNo") : QString());
}

int ItemPair::settle()
{
    m_list->settle();
    lookUp();
    return itemId();
}

void ItemPair::lookUp()
{
    if (!m_number->isModified())
        return;
    const QString text = m_number->text().trimmed();
    choose(text.isEmpty() ? 0 : itemIdByNumber(m_items.database(), text));
}

bool ItemPair::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::FocusOut)
        return false;
    const auto reason = static_cast<QFocusEvent *>(event)->reason();
    const QWidget *next = QApplication::focusWidget();
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason
        || (next && next->property("keepsEntry").toBool()))
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
