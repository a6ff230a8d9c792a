#include "master/masterrecord.h"

#include "base/ruleerror.h"
#include "engine/records/query.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

NumberSource numbersIfInReach(Engine::Database &database)
{
    return [&database](const QString &table, const CounterRule &rule) {
        try {
            takeNumbers(database, table, rule);
        } catch (const Engine::EngineError &error) {
            if (error.isStoreLost())
                throw;
            // the record stays without
        }
    };
}

} // namespace

MasterRecord::MasterRecord(Engine::Database &database, const MasterKind &kind)
    : numbers(numbersIfInReach(database))
    , m_kind(kind)
    , m_table(database, m_kind.table)
{
    if (!m_kind.numberField.isEmpty())
        m_table.uniqueFields = {m_kind.numberField};
    m_table.rules = this;
    m_table.recordName = [this] { return m_kind.recordName(m_table); };
    if (m_kind.addFields)
        m_kind.addFields(m_table);
}

void MasterRecord::open()
{
    m_table.open();
    if (m_kind.formatFields)
        m_kind.formatFields(m_table);
}

void MasterRecord::insert(const Step &begin)
{
    begin();
    const auto preset = m_kind.record.preset ? m_kind.record.preset(m_table) : nullptr; // asked with the numbers
    assignIdentity(numbers);
    for (const Engine::FieldValue &given : m_kind.record.defaults)
        m_table.setDefault(given.field, given.value);
    if (preset)
        preset();
}

void MasterRecord::post(const Step &save)
{
    checkAll();
    save();
}

void MasterRecord::newRecord(const QString &number)
{
    m_givenNumber = number;
    m_isCopy = false;
    m_table.insert();
}

void MasterRecord::newCopy(const Engine::DataSet &original)
{
    newRecord();
    for (const QString &field : m_kind.record.copiedFields)
        m_table.setDefault(field, original.value(field));
    m_isCopy = true;
}

bool MasterRecord::openRecord(int key) { return m_table.locate(m_kind.keyField, {key}); }

QString MasterRecord::caption() const
{
    if (m_isCopy && isNew() && !m_table.isModified())
        return m_kind.record.copyCaption;
    return captionFor(m_table.text(m_kind.nameField()));
}

QString MasterRecord::captionFor(const QString &name) const
{
    if (m_kind.record.namesCaption && !name.isEmpty())
        return name;
    return isNew() ? m_kind.record.newCaption : m_kind.record.caption;
}

void MasterRecord::save()
{
    if (!m_table.isEditing())
        return;
    try {
        m_table.post();
    } catch (const Engine::EngineError &error) {
        if (error.code() != Engine::ErrorCode::KeyViolation || m_kind.record.taken.isEmpty())
            throw;
        throw RuleError(m_kind.record.taken, m_kind.numberField);
    }
    m_table.flush();
}

void MasterRecord::cancel()
{
    if (m_table.isEditing())
        m_table.cancel();
}

void MasterRecord::assignIdentity(const NumberSource &source)
{
    if (m_kind.record.counterTable.isEmpty())
        return;
    source(m_kind.record.counterTable, [this](CounterRow &counters) {
        counters.expectKey(m_kind.record.keyCounter, m_kind.keyField, m_kind.keyTables(), firstCountedKey);
        if (m_givenNumber.isEmpty()) {
            counters.restartOutside(m_kind.record.numberCounter, firstNumber, lastNumber, firstNumber);
            m_table.setDefault(m_kind.numberField, QString::number(counters.take(m_kind.record.numberCounter)));
        } else {
            m_table.setDefault(m_kind.numberField, m_givenNumber);
        }
        counters.restartWhenZero(m_kind.record.keyCounter, firstCountedKey);
        m_table.setDefault(m_kind.keyField,
                           counters.takeKey(m_kind.record.keyCounter, m_kind.keyField, m_kind.keyTables()));
    });
}

// For a record that is about to be written and has none yet.
void MasterRecord::assignKey()
{
    if (m_kind.record.keyByEngine || !isNew())
        return;
    if (m_kind.record.counterTable.isEmpty()) {
        if (!m_kind.hasDefault(m_kind.keyField))
            assignHighestKey();
    } else if (m_table.value(m_kind.keyField).isNull()) {
        m_givenNumber = m_table.text(m_kind.numberField);
        assignIdentity(numbersAtOnce(database()));
    }
}

// Without counter the key is found when the record is written, so that two users who enter at the same time are
// told apart by the key violation at the latest.
void MasterRecord::assignHighestKey()
{
    const QString highest = u"SELECT max(%1) FROM %2"_s.arg(m_kind.keyField, m_kind.table);
    m_table.set(m_kind.keyField, Engine::singleValue(database(), highest).toInt64() + 1);
}

void MasterRecord::checkAll()
{
    trimNumber();
    for (const MasterKind::Required &required : m_kind.record.required) {
        if (isEmpty(required.field))
            throw RuleError(required.message, required.field);
    }
    if (m_kind.record.check)
        m_kind.record.check(m_table);
    for (const MasterKind::Reference &reference : m_kind.record.references)
        requireReference(reference);
    assignKey();
}

// Blanks around a number, as come along with a pasted one, are never typed when it is looked up.
void MasterRecord::trimNumber()
{
    if (m_kind.numberField.isEmpty())
        return;
    const QString number = m_table.text(m_kind.numberField);
    if (number != number.trimmed())
        m_table.set(m_kind.numberField, number.trimmed());
}

bool MasterRecord::isEmpty(const QString &field) const
{
    const Engine::Value value = m_table.value(field);
    if (std::holds_alternative<QString>(value.storage()))
        return value.toText().trimmed().isEmpty();
    return value.isNull() || (!std::holds_alternative<bool>(value.storage()) && value.toDouble() == 0);
}

void MasterRecord::requireReference(const MasterKind::Reference &reference) const
{
    const QString sql = u"SELECT count(*) FROM %1 WHERE %2 = ?"_s.arg(reference.table, reference.field);
    if (Engine::singleValue(database(), sql, {m_table.value(reference.field)}).toInt64() == 0)
        throw RuleError(reference.gone, reference.field);
}

} // namespace Tallymere
