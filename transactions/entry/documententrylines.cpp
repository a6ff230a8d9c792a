// The lines of a document: one at a time, several at once, and the one that was taken out last.

#include "base/ruleerror.h"
#include "engine/records/query.h"
#include "engine/values/error.h"
#include "transactions/entry/documententry.h"
#include "transactions/texts.h"

#include <algorithm>
#include <QScopeGuard>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using Engine::ErrorCode;
using Engine::Value;

namespace Tallymere {

void DocumentEntry::LineRules::insert(const Step &begin)
{
    entry.lockLines();
    entry.m_check.newFigures();
    entry.lineChanging(LineChange::Insert);
    begin();
    entry.m_lines.setDefault(entry.m_kind.keyField, entry.key());
}

void DocumentEntry::LineRules::edit(const Step &begin)
{
    entry.beginLineChange(LineChange::Edit);
    begin();
}

// The numbers of lines are no concern of the user; saved again, the line gets another one. Within a longer
// transaction, as of an import, that would be too late: a server has given it up.
void DocumentEntry::LineRules::post(const Step &save)
{
    entry.m_visit.hold();
    entry.checkLine();
    entry.m_check.checkFigures(entry.lineCost());
    entry.numberLine();
    entry.signBegun();
    try {
        entry.m_visit.write(save);
    } catch (const Engine::EngineError &error) {
        if (error.code() == ErrorCode::KeyViolation && !entry.database().connection().inTransaction())
            throw RuleError(TransactionsTexts::tr(
                                "The line could not be saved because another one was added meanwhile. Try again."),
                            LineGrid);
        throw;
    }
    entry.m_takenOut.reset();
    entry.m_stock.linesChanged();
    entry.lineSaved();
}

void DocumentEntry::LineRules::remove(const Step &erase)
{
    entry.beginLineChange(LineChange::Remove);
    std::optional<TakenOut> taken = entry.currentLine();
    entry.m_visit.remove(erase);
    entry.m_takenOut = std::move(taken);
    entry.m_stock.linesChanged();
    entry.lineRemoved();
}

// The lines are locked with their header. Only what is read from then on is sure to be what is stored.
void DocumentEntry::lockLines()
{
    m_header.edit();
    m_visit.hold();
    m_visit.keepLines();
    m_lines.setMasterIsNew(false); // where they have not been read anew with that
    m_stock.linesChanged();
}

// What the user wants done to the line that he sees must not be done to the one that has come into its place. The
// number alone does not tell them apart: that of a deleted last line is given again.
void DocumentEntry::beginLineChange(LineChange change)
{
    const bool inEdit = m_header.isEditing();
    const int seq = m_lines.integer(Fields::Seq);
    const int item = m_lines.integer(Fields::ItemID);
    lockLines();
    if (m_lines.integer(Fields::Seq) == seq && m_lines.integer(Fields::ItemID) == item) {
        m_check.storedFigures(lineCost());
        return lineChanging(change);
    }
    if (!inEdit)
        m_header.cancel();
    throw RuleError(
        TransactionsTexts::tr("This line was deleted or replaced by another user. The lines are shown anew."),
        LineGrid);
}

double DocumentEntry::lineCost()
{
    return m_lines.fieldIndex(Fields::UnitCost) < 0 ? 0 : m_lines.value(Fields::UnitCost).toDouble();
}

// A new line that has a number already could not be written with it.
void DocumentEntry::numberLine()
{
    const bool numbered = !m_lines.value(Fields::Seq).isNull();
    if (numbered && m_lines.state() != Engine::TableState::Insert)
        return;
    if (numbered)
        m_nextSeq = std::max(m_nextSeq, highestSeq() + 1);
    m_lines.set(Fields::Seq, m_nextSeq++);
}

int DocumentEntry::highestSeq() const
{
    return Engine::singleValue(database(),
                               u"SELECT max(Seq) FROM %1 WHERE %2 = ?"_s.arg(m_kind.lineTable, m_kind.keyField),
                               {key()})
        .toInt();
}

QString DocumentEntry::lineName() const
{
    const QString document = m_kind.titleOf(m_header);
    const int seq = m_lines.integer(Fields::Seq);
    return seq == 0 ? document : TransactionsTexts::tr("%1, line %2").arg(document, QString::number(seq));
}

void DocumentEntry::checkLine() { m_check.requireItem(); }

void DocumentEntry::chooseItem(int itemId)
{
    m_lines.edit();
    m_lines.set(Fields::ItemID, itemId);
}

void DocumentEntry::chooseItemByNumber(const QString &itemNo)
{
    setLineColumn(Fields::ItemNo);
    m_lines.edit();
    m_lines.set(Fields::ItemID, itemNo.isEmpty() ? Value() : Value(m_check.itemByNumber(itemNo)));
}

void DocumentEntry::chooseItemByDescription(const QString &description)
{
    setLineColumn(Fields::ItemDescription);
    const int itemId = m_check.itemByDescription(description);
    chooseItem(itemId);
}

void DocumentEntry::chooseScannedItem(int itemId, bool mayReplace)
{
    setLineColumn(Fields::ItemNo);
    const int present = m_lines.integer(Fields::ItemID);
    const bool isLine = !m_lines.isEmpty() || m_lines.isEditing(); // the first one may have been begun
    if (isLine && present == itemId)
        return;
    if (!isLine || (present != 0 && !mayReplace))
        newLine();
    chooseItem(itemId);
}

bool DocumentEntry::goToLineOf(int itemId, double quantity)
{
    if (m_lines.isEditing())
        return false;
    const QString both = u"ItemID;"_s + m_kind.entry.lineColumns.constFirst().field;
    return m_lines.locate(both, {itemId, quantity}) || m_lines.locate(Fields::ItemID, {itemId});
}

void DocumentEntry::newLine() { m_lines.insert(); }

void DocumentEntry::removeLine()
{
    if (m_lines.state() == Engine::TableState::Insert)
        m_lines.cancel();
    else if (!m_lines.isEmpty())
        m_lines.remove();
}

// What sets the item presets others.
void DocumentEntry::newLineWith(const std::function<std::optional<Value>(const QString &field)> &held)
{
    newLine();
    try {
        if (const std::optional<Value> item = held(Fields::ItemID))
            m_lines.set(QString(Fields::ItemID), *item);
        for (int i = 0; i < m_lines.fieldCount(); ++i) {
            const Engine::Field &field = std::as_const(m_lines).field(i);
            const bool isGiven =
                field.name == m_kind.keyField || field.name == Fields::Seq || field.name == Fields::ItemID;
            if (field.kind != Engine::FieldKind::Data || isGiven)
                continue;
            if (const std::optional<Value> value = held(field.name))
                m_lines.set(field.name, *value);
        }
    } catch (...) {
        m_lines.cancel();
        throw;
    }
}

// --- several lines -----------------------------------------------------------------------------------------------

bool DocumentEntry::takesText(const QString &column) const
{
    return m_lines.field(column).kind == Engine::FieldKind::Data || column == Fields::ItemNo
        || column == Fields::ItemDescription;
}

void DocumentEntry::clearLine()
{
    for (int i = 0; i < m_lines.fieldCount(); ++i)
        if (m_lines.field(i).kind == Engine::FieldKind::Data)
            m_lines.setDefault(m_lines.field(i).name, {});
    m_lines.setDefault(m_kind.keyField, key());
}

// One new line serves for all. Whoever shows the lines need not see it.
void DocumentEntry::tryLines(int count, const std::function<void(int)> &fillAndLook)
{
    m_lines.checkBrowseMode();
    lockLines();
    const QSignalBlocker quiet(m_lines);
    newLine();
    const auto dropped = qScopeGuard([this] { m_lines.cancel(); });
    for (int line = 0; line < count; ++line) {
        clearLine();
        fillAndLook(line);
    }
}

std::optional<QString> DocumentEntry::judgeLine()
{
    checkLine();
    requireQuantity();
    m_check.requireFigures(lineCost());
    return m_check.questionOf(lineCost());
}

void DocumentEntry::addLines(int count, const std::function<void(int)> &fill)
{
    m_lines.checkBrowseMode();
    lockLines();
    Engine::Row header;
    for (int i = 0; i < m_header.fieldCount(); ++i)
        header.push_back(m_header.value(i));
    const int nextSeq = m_nextSeq;
    signBegun();
    try {
        const QSignalBlocker quiet(m_lines); // they are shown once all are there
        m_visit.writeTogether([&] {
            for (int line = 0; line < count; ++line) {
                newLine();
                fill(line);
                judgeLine();
                m_check.storedFigures(lineCost());
                m_lines.post();
            }
        });
    } catch (...) {
        takeBackLines(header, nextSeq);
        throw;
    }
    m_lines.refresh();
}

void DocumentEntry::takeBackLines(const Engine::Row &header, int nextSeq)
{
    if (m_lines.isEditing())
        m_lines.cancel();
    m_nextSeq = nextSeq;
    for (int i = 0; m_header.isEditing() && i < m_header.fieldCount(); ++i)
        if (m_header.field(i).kind == Engine::FieldKind::Data)
            m_header.setDefault(m_header.field(i).name, header[static_cast<size_t>(i)]);
    m_stock.linesChanged();
    linesTakenBack();
    m_lines.refresh();
}

// --- the line taken out last -----------------------------------------------------------------------------------

DocumentEntry::TakenOut DocumentEntry::currentLine() const
{
    const QString item = m_lines.text(Fields::ItemDescription);
    const QString line = TransactionsTexts::tr("Line %1").arg(m_lines.recordIndex() + 1);
    return {m_lines.rowAt(m_lines.recordIndex()), item.isEmpty() ? line : u"%1 (%2)"_s.arg(line, item)};
}

QString DocumentEntry::takenOut() const { return m_takenOut ? m_takenOut->name : QString(); }

// Its item may have been suspended or deleted meanwhile. Its figures were meant when it was there.
void DocumentEntry::putBack()
{
    if (!m_takenOut)
        return;
    const TakenOut taken = *m_takenOut;
    m_lines.checkBrowseMode();
    try {
        setLineColumn(Fields::ItemNo);
        newLineWith([&](const QString &field) {
            return std::optional(taken.values[static_cast<size_t>(m_lines.fieldIndex(field))]);
        });
        m_check.storedFigures(lineCost());
        m_lines.post();
    } catch (const RuleError &error) {
        if (m_lines.isEditing())
            m_lines.cancel();
        throw RuleError(TransactionsTexts::tr("%1 cannot be put back: %2").arg(taken.name, error.message()));
    }
}

} // namespace Tallymere
