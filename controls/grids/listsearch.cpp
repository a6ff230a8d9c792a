#include "controls/grids/listsearch.h"

#include "controls/windows/typing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace Tallymere {

using Engine::DataSet;
using Engine::OrderedField;

ListSearch::ListSearch(const TableModel &model, const Guard &guard, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_guard(guard)
{
    const auto endUnlessMoving = [this] {
        if (!m_moving)
            end();
    };
    connect(&model.dataSet(), &DataSet::currentChanged, this, endUnlessMoving);
    connect(&model.dataSet(), &DataSet::listChanged, this, endUnlessMoving);
}

std::optional<OrderedField> ListSearch::column() const
{
    const DataSet &set = m_model.dataSet();
    for (const OrderedField &field : set.orderedFields()) {
        if (Engine::isText(set.field(field.name).type) && m_model.columnOf(field.name) >= 0)
            return field;
    }
    return std::nullopt;
}

bool ListSearch::goesOn() const
{
    return !m_text.isEmpty() && !m_sinceTyped.hasExpired(QApplication::keyboardInputInterval());
}

bool ListSearch::takeKey(const QKeyEvent &key)
{
    if (m_text.isEmpty() && !isTyped(key))
        return false;
    switch (key.key()) {
    case Qt::Key_Escape:
        end();
        return true;
    case Qt::Key_Backspace:
        shorten();
        return true;
    default:
        break;
    }
    if (!isTyped(key) || (key.key() == Qt::Key_Space && !goesOn()))
        return false;
    type(key.text());
    return true;
}

// No text begins with a blank, and the space bar means something else to a list. With Ctrl it arrives as a control
// character on some platforms.
void ListSearch::type(const QString &text)
{
    if (!isPrinted(text) || !m_model.dataSet().isOpen() || !column() || (!goesOn() && text.trimmed().isEmpty()))
        return;
    m_text = goesOn() ? m_text + text : text;
    find();
}

// What has been typed stays in sight after a pause, so it can still be shortened.
void ListSearch::shorten()
{
    m_text.chop(m_text.size() > 1 && m_text.back().isLowSurrogate() ? 2 : 1);
    if (m_text.isEmpty())
        end();
    else
        find();
}

void ListSearch::find()
{
    m_sinceTyped.start();
    const bool searched = m_guard.run([this] {
        const QScopedValueRollback moving(m_moving, true);
        const std::optional<OrderedField> where = column();
        m_found = where && locate(*where, m_text);
    });
    if (!searched)
        return end();
    if (!m_found)
        QApplication::beep();
    Q_EMIT changed();
}

// Numbers are mostly written in capitals. Where letter case counts, those who type small letters find them as well.
bool ListSearch::locate(const OrderedField &column, const QString &text) const
{
    DataSet &set = m_model.dataSet();
    const Engine::LocateOptions options = column.options() | Engine::LocateOption::PartialKey;
    if (set.locate(column.name, {text}, options))
        return true;
    return !column.caseInsensitive && text != text.toUpper() && set.locate(column.name, {text.toUpper()}, options);
}

void ListSearch::end()
{
    if (m_text.isEmpty())
        return;
    m_text.clear();
    Q_EMIT changed();
}

} // namespace Tallymere
