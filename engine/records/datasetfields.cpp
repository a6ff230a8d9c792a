// The fields of a set and the values of its current record.

#include "engine/records/dataset.h"

#include "engine/records/datasetprivate.h"
#include "engine/values/amounttoolarge.h"

#include <algorithm>

namespace Engine {

namespace {

Field fieldOf(const FieldDef &shown, FieldKind kind)
{
    Field field;
    field.name = shown.name;
    field.type = shown.type;
    field.size = shown.size;
    field.kind = kind;
    return field;
}

} // namespace

int DataSet::fieldIndex(QStringView name) const
{
    for (size_t i = 0; i < m_fields.size(); ++i) {
        if (name.compare(m_fields[i].name, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

int DataSet::requireField(QStringView name) const
{
    const int index = fieldIndex(name);
    if (index < 0) {
        raise(ErrorCode::NoSuchField, Texts::tr("There is no field \"%1\".").arg(name));
    }
    return index;
}

Field &DataSet::field(QStringView name) { return m_fields[static_cast<size_t>(requireField(name))]; }
const Field &DataSet::field(QStringView name) const { return m_fields[static_cast<size_t>(requireField(name))]; }

Money DataSet::money(NameOf<FieldType::Money> name) const
{
    const Value amount = value(name);
    try {
        return amount.toMoney();
    } catch (const AmountTooLarge &) {
        raise(ErrorCode::BadValue,
              Texts::tr("%1 holds %2, which is too large for an amount.")
                  .arg(field(name).caption(), amount.toText()));
    }
}

void DataSet::addLookup(const FieldDef &shown, Lookup lookup)
{
    Field field = fieldOf(shown, FieldKind::Lookup);
    field.lookup = std::move(lookup);
    addField(std::move(field));
}

void DataSet::addCalculated(const FieldDef &shown, std::function<Value(const DataSet &)> rule,
                            const QString &sortedBy)
{
    Field field = fieldOf(shown, FieldKind::Calculated);
    field.calculate = std::move(rule);
    field.sortedBy = sortedBy;
    addField(std::move(field));
}

void DataSet::addField(Field field)
{
    if (m_open || fieldIndex(field.name) >= 0) {
        raise(ErrorCode::WrongState,
              Texts::tr("The field \"%1\" cannot be added: the table is open or has it.").arg(field.name));
    }
    m_fields.push_back(std::move(field));
}

void DataSet::setDataFields(const std::vector<Field> &fields)
{
    const auto isData = [](const Field &field) { return field.kind == FieldKind::Data; };
    const auto known = static_cast<size_t>(std::count_if(m_fields.begin(), m_fields.end(), isData));
    const bool same = known == fields.size()
        && std::equal(fields.begin(), fields.end(), m_fields.begin(), [](const Field &one, const Field &other) {
                          return one.name.compare(other.name, Qt::CaseInsensitive) == 0;
                      });
    if (same) {
        for (size_t i = 0; i < fields.size(); ++i) {
            m_fields[i].type = fields[i].type;
            m_fields[i].size = fields[i].size;
        }
    } else {
        // Data fields stand in front. A deque grows at its front without moving the fields it has.
        m_fields.erase(std::remove_if(m_fields.begin(), m_fields.end(), isData), m_fields.end());
        m_fields.insert(m_fields.begin(), fields.begin(), fields.end());
    }
    d->nullRow = Row(m_fields.size());
}

Value DataSet::value(int fieldNumber) const
{
    if (!m_open)
        return {};
    const Field &wanted = field(fieldNumber);
    if (wanted.kind == FieldKind::Calculated)
        return wanted.calculate(*this);
    return DataSetReader(*this).currentRow()[static_cast<size_t>(fieldNumber)];
}

Value DataSet::lookedUp(const Field &field, const Value &key) const
{
    return DataSetReader(*this).source().lookedUp(field, key);
}

} // namespace Engine
