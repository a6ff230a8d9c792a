#include "controls/grids/listsearch.h"

#include "controls/windows/typing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace Tallymere {

namespace {
constexpr qint64 stepLength = 20; // ms, after which keys are taken
} // namespace

using Engine::DataSet;
using Engine::OrderedField;

ListSearch::ListSearch(const TableModel &model, const Guard &guard, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_guard(guard)
    , m_rows(model)
{
    connect(&m_idle, &QTimer::timeout, this, [this] { lookThrough(stepLength); });
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
    for (const OrderedField &field : set.shownOrder()) {
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
    case Qt::Key_F3:
        findNext(m_text);
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
    if (!isPrinted(text) || !m_model.dataSet().isOpen() || (!goesOn() && text.trimmed().isEmpty()))
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

bool ListSearch::begins() const
{
    constexpr int many = 50'000; // rows, in which only what has an index is found at once
    const DataSet &set = m_model.dataSet();
    const std::optional<OrderedField> where = column();
    const bool isSlow = !set.isOrderedByIndex() && set.recordCount() > many;
    return where && !isSlow && locate(*where, m_text);
}

// Rows that have been looked at in vain for less need not be looked at for more.
void ListSearch::find()
{
    const bool searched = m_guard.run([this] {
        const QScopedValueRollback moving(m_moving, true);
        m_found = begins();
    });
    m_sinceTyped.start(); // what finding has taken is nobody's pause
    if (!searched)
        return end();
    const TextMatch words(m_text);
    const bool isLonger = m_rows.isOn() && m_text.startsWith(m_lookedFor);
    m_lookedFor = m_text;
    if (m_found)
        m_rows.end();
    else if (isLonger)
        m_rows.narrow(words);
    else
        m_rows.begin(words, 0);
    if (m_rows.isOn())
        lookThrough(stepLength);
    Q_EMIT changed();
}

void ListSearch::findNext(const QString &text)
{
    m_found = false;
    m_text = m_lookedFor = text;
    m_rows.begin(TextMatch(m_text), m_model.dataSet().recordIndex() + 1);
    lookThrough(stepLength);
    Q_EMIT changed();
}

// The row that is found stays the one to go on from.
void ListSearch::lookThrough(qint64 milliseconds)
{
    std::optional<int> row;
    const bool looked = m_guard.run([&] {
        row = m_rows.step(milliseconds);
        const QScopedValueRollback moving(m_moving, true);
        if (row)
            m_model.dataSet().moveTo(*row);
    });
    if (!looked)
        return end();
    m_found = row.has_value();
    if (isLooking()) {
        m_idle.start(0);
    } else {
        m_idle.stop();
        if (!m_found)
            QApplication::beep();
    }
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
    m_rows.end();
    m_idle.stop();
    Q_EMIT changed();
}

} // namespace Tallymere
