// Editing and inserting records of a table: the record in hand.

#include "engine/records/datasetprivate.h"
#include "engine/records/tableprivate.h"
#include "engine/store/database.h"
#include "engine/values/error.h"
#include "engine/values/stablenumber.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Engine {

Table::Table(Database &database, QString name)
    : TableReader(database, std::move(name))
{
}

// First an edit in progress is dropped, and not posted as a moving master would have it.
Table::~Table()
{
    m_edit.reset();
    shut();
}

void Table::close()
{
    m_edit.reset();
    TableReader::close();
}

RecordRules &Table::rulesInForce() const
{
    static RecordRules none;
    return rules ? *rules : none;
}

// --- beginning and ending an edit ------------------------------------------------------------------------------

TableState Table::state() const
{
    if (!m_open)
        return TableState::Inactive;
    if (!m_edit)
        return TableState::Browse;
    return m_edit->isNew ? TableState::Insert : TableState::Edit;
}

bool Table::isModified() const { return m_edit && m_edit->isModified; }

void Table::requireEditing() const
{
    if (!isEditing())
        raise(ErrorCode::WrongState, Texts::tr("Table '%1' is not being edited.").arg(m_name));
}

void Table::beforeMove()
{
    checkBrowseMode();
    DataSet::beforeMove();
}

Key Table::keyOf(const Row &row) const
{
    Key key;
    for (const QString &name : m_layout.numberKey())
        key << row[static_cast<size_t>(requireField(name))].toInt64();
    return key;
}

Key Table::lockKey(const Row &row) const
{
    if (const Key key = keyOf(row); !key.isEmpty())
        return key;
    QStringList texts;
    for (const QString &name : m_layout.primaryFields())
        texts << row[static_cast<size_t>(requireField(name))].toText();
    return {texts.isEmpty() ? 0 : static_cast<qint64>(stableNumber(texts.join(QChar(0))))};
}

// Where a row of these values stands in the set. A row without a key of whole numbers gets another identity
// whenever it is written, but its primary key, if it has one, finds it again.
std::optional<Key> Table::storedKey(const Row &row) const
{
    if (const Key key = keyOf(row); !key.isEmpty())
        return key;
    const QStringList names = m_layout.primaryFields();
    if (names.isEmpty())
        return std::nullopt;
    QList<Value> values;
    for (const QString &name : names)
        values << row[static_cast<size_t>(requireField(name))];
    const DataSetReader reader(*this);
    const auto found = reader.read(&RowSource::first, reader.source().match(names, values, LocateOption::None));
    return found ? std::optional(found->key) : std::nullopt;
}

// Makes sure that the current record is still the row that was shown, before it is changed; false when that one is
// gone. A set goes by keys of whole numbers where a table has them, and they stay with their record. Other tables it goes
// over by the store's own row numbers, which change when somebody else writes the row or restores the table: the current
// one may belong to another record by now.
bool Table::findAgain(const Row &shown)
{
    if (!m_layout.numberKey().isEmpty())
        return true;
    if (exclusive)
        return true;
    if (m_layout.primaryFields().isEmpty()) {
        invalidate(Place::Keep);
        return !isEmpty(); // a counter's only row
    }
    const auto key = storedKey(shown);
    if (key && !d->cursor.isAt(*key)) {
        invalidate(Place::Keep);
        d->cursor.to(*key);
        emitListChanged();
    }
    return key.has_value();
}

void Table::edit()
{
    if (isEditing())
        return;
    requireOpen();
    const bool isFresh = exclusive && d->cursor.isUnread() && !d->keysRead; // it is read under the table's own lock
    if (isEmpty())
        return insert();
    rulesInForce().edit([this, isFresh] {
        readForEdit(isFresh);
        Q_EMIT stateChanged();
    });
}

QString Table::recordText() const
{
    const QString name = recordName ? recordName() : QString();
    return name.isEmpty() ? Texts::tr("This record of table '%1'").arg(title()) : u'\'' + name + u'\'';
}

// Locks the current record and reads it afresh, so that nothing another user saved is lost.
void Table::readForEdit(bool isFresh)
{
    const DataSetReader reader(*this);
    const Row shown = reader.currentRow(); // NOLINT(performance-unnecessary-copy-initialization): it is read anew
    auto edit = std::make_unique<Edit>(false);
    StatementPtr asked;
    const bool goesAlong = reader.source().isFar() && !m_layout.numberKey().isEmpty();
    edit->lock =
        goesAlong ? lockForEdit(shown, [&] { asked = reader.source().askRow(currentKey()); }) : lockForEdit(shown);
    const bool found = findAgain(shown);
    edit->key = currentKey();
    std::optional<Row> stored;
    if (isFresh)
        stored = shown;
    else if (asked)
        stored = reader.source().takeRow(*asked);
    else if (found && !edit->key.isEmpty())
        stored = reader.read(&RowSource::row, edit->key);
    if (!stored)
        raise(ErrorCode::RecordGone, recordGoneText(recordText()));
    edit->values = *stored;
    edit->original = *stored;
    if (*stored != shown) {
        d->takeRow(std::move(*stored));
        if (d->cursor.index() >= 0)
            Q_EMIT rowChanged(d->cursor.index());
        Q_EMIT currentChanged();
    }
    m_edit = std::move(edit);
}

std::unique_ptr<RecordLock> Table::lockForEdit(const Row &row, const std::function<void()> &along) const
{
    return std::make_unique<RecordLock>(m_database.connection(), m_database.session(), m_name, lockKey(row),
                                        recordText(), RecordLock::Loss::Noticed, along);
}

Answer<std::optional<LockOwner>> Table::askEditedBy() const
{
    if (isEditing() || isEmpty())
        return [] { return std::nullopt; };
    return m_database.connection().locks().askOwnerOf(m_name, lockKey(DataSetReader(*this).currentRow()));
}

bool Table::haveSameData(const Row &a, const Row &b) const
{
    for (int i = 0; i < fieldCount(); ++i) {
        const auto at = static_cast<size_t>(i);
        if (field(i).kind == FieldKind::Data && a[at] != b[at])
            return false;
    }
    return true;
}

void Table::holdAgain()
{
    Connection &connection = m_database.connection();
    if (m_edit && !connection.inTransaction() && !connection.locks().areLost())
        hold();
}

bool Table::isStored() const { return m_edit && m_edit->isStored; }

bool Table::holdRecord()
{
    if (!m_edit || m_edit->isNew || !m_edit->lock->isLost())
        return false;
    m_database.connection().execute(u"SELECT 1"_s); // connects again, and forgets the lock with that
    auto lock = lockForEdit(m_edit->original);
    const auto key = storedKey(m_edit->original);
    const auto stored = key ? DataSetReader(*this).read(&RowSource::row, *key) : std::nullopt;
    if (!stored)
        raise(ErrorCode::RecordGone, recordGoneText(recordText()));
    m_edit->isStored = m_edit->written && haveSameData(*stored, *m_edit->written);
    if (!m_edit->isStored && !haveSameData(*stored, m_edit->original))
        raise(ErrorCode::RecordChanged,
              Texts::tr("%1 was changed by another user while the connection "
                        "was lost. Cancel, and make your changes again.")
                  .arg(recordText()));
    m_edit->original = *stored;
    m_edit->key = *key;
    m_edit->lock = std::move(lock);
    return true;
}

void Table::insert()
{
    requireOpen();
    beforeMove();
    try {
        rulesInForce().insert([this] { startRecord(); });
    } catch (...) {
        m_edit.reset();
        throw;
    }
    if (m_edit)
        m_edit->isModified = false;
    Q_EMIT stateChanged();
    Q_EMIT currentChanged();
}

void Table::startRecord()
{
    m_edit = std::make_unique<Edit>(true);
    m_edit->values = d->nullRow;
    m_edit->original = d->nullRow;
    const QList<Value> linked = linkValues();
    for (qsizetype i = 0; i < linked.size(); ++i)
        setDefault(m_restriction->links[i].detail, linked[i]);
}

void Table::cancel()
{
    if (!isEditing())
        return;
    m_edit.reset();
    Q_EMIT stateChanged();
    Q_EMIT currentChanged();
    rulesInForce().cancelled();
}

void Table::checkBrowseMode()
{
    if (!isEditing())
        return;
    if (m_edit->isModified)
        return post();
    cancel();
}

void Table::flush()
{
    requireOpen();
    Connection &connection = m_database.connection();
    if (connection.inTransaction() && !connection.isInRun())
        connection.drain();
}

// --- values ----------------------------------------------------------------------------------------------------

Value Table::value(int fieldNumber) const
{
    const bool buffered = isEditing() && !d->rowInHand && field(fieldNumber).kind != FieldKind::Calculated;
    return buffered ? m_edit->values[static_cast<size_t>(fieldNumber)] : DataSet::value(fieldNumber);
}

Value Table::oldValue(QStringView name) const
{
    const int index = requireField(name);
    return isEditing() ? m_edit->original[static_cast<size_t>(index)] : value(index);
}

void Table::set(QStringView name, const Value &value)
{
    const int fieldNumber = requireField(name);
    requireEditing();
    Field &changing = m_fields[static_cast<size_t>(fieldNumber)];
    if (changing.kind != FieldKind::Data) {
        raise(ErrorCode::WrongState, Texts::tr("%1 follows from other fields.").arg(changing.caption()));
    }
    const Value fitted = changing.fit(value);
    if (fitted == m_edit->values[static_cast<size_t>(fieldNumber)])
        return;
    if (changing.validate)
        changing.validate(fitted);
    m_edit->isModified = true;
    setValue(fieldNumber, fitted);
}

void Table::setText(QStringView name, const QString &text) { set(name, field(name).parse(text)); }

void Table::setDefault(QStringView name, const Value &value)
{
    const int index = requireField(name);
    if (!isEditing() || field(index).kind != FieldKind::Data) {
        raise(ErrorCode::WrongState, Texts::tr("Table '%1' is not being edited.").arg(m_name));
    }
    const Value fitted = field(index).fit(value);
    if (fitted != m_edit->values[static_cast<size_t>(index)])
        setValue(index, fitted);
}

void Table::setValue(int fieldNumber, const Value &value)
{
    m_edit->values[static_cast<size_t>(fieldNumber)] = value;
    QList<int> followers;
    std::vector<int> lookUps;
    std::vector<const Field *> lookedFor;
    for (int i = 0; i < fieldCount(); ++i) {
        const Field &other = field(i);
        if (other.kind == FieldKind::Lookup
            && other.lookup.keyField.compare(field(fieldNumber).name, Qt::CaseInsensitive) == 0) {
            lookUps.push_back(i);
            lookedFor.push_back(&other);
            followers << i;
        }
        if (other.kind == FieldKind::Calculated)
            followers << i;
    }
    if (!lookUps.empty()) {
        std::vector<Value> found = DataSetReader(*this).source().lookedUp(lookedFor, value);
        for (size_t i = 0; i < lookUps.size(); ++i)
            m_edit->values[static_cast<size_t>(lookUps[i])] = std::move(found[i]);
    }
    Q_EMIT fieldChanged(fieldNumber);
    for (const int follower : std::as_const(followers))
        Q_EMIT fieldChanged(follower);
    if (const auto &changed = field(fieldNumber).changed)
        changed();
}

// --- writing ---------------------------------------------------------------------------------------------------

void Table::post()
{
    requireEditing();
    rulesInForce().post([this] { save(); });
}

void Table::save()
{
    requirePrimaryKey();
    write();
    const bool isNew = m_edit->isNew;
    bool placeMayDiffer = isNew;
    for (int i = 0; i < fieldCount() && !placeMayDiffer; ++i) {
        const auto at = static_cast<size_t>(i);
        placeMayDiffer = m_edit->values[at] != m_edit->original[at] && decidesPlace(i);
    }
    Row row = std::move(m_edit->values);
    m_edit.reset();
    if (isNew)
        showInserted(std::move(row));
    else
        showUpdated(std::move(row), placeMayDiffer);
}

bool Table::decidesPlace(int fieldNumber) const
{
    const QString &name = field(fieldNumber).name;
    const IndexDef *index = order();
    if (m_filtered || (index && index->fieldNames().contains(name, Qt::CaseInsensitive)))
        return true;
    if (m_layout.primaryFields().contains(name, Qt::CaseInsensitive))
        return true;
    return std::any_of(
        m_restriction->links.begin(), m_restriction->links.end(),
        [&](const Restriction::Link &link) { return link.detail.compare(name, Qt::CaseInsensitive) == 0; });
}

void Table::showInserted(Row row)
{
    const bool isOnlyOne = exclusive && d->cursor.isEmpty();
    invalidate(Place::First);
    if (const auto key = storedKey(row)) {
        d->cursor.to(*key, std::move(row));
    } else if (const int count = m_layout.primary() || isOnlyOne ? 0 : recordCount(); count > 0) {
        // Without a primary key the new row is the last in the natural order.
        d->cursor.to(DataSetReader(*this).keyAt(count - 1), std::move(row));
    }
    Q_EMIT stateChanged();
    emitListChanged();
}

void Table::showUpdated(Row row, bool placeMayDiffer)
{
    Q_EMIT stateChanged();
    if (placeMayDiffer || m_layout.numberKey().isEmpty()) {
        invalidate(Place::Keep);
        if (const auto key = storedKey(row))
            d->cursor.to(*key, std::move(row));
        emitListChanged();
        return;
    }
    d->takeRow(std::move(row));
    if (d->keysRead)
        Q_EMIT rowChanged(recordIndex());
}

} // namespace Engine
