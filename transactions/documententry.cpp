#include "transactions/documententry.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "base/typeddate.h"
#include "data/fields.h"
#include "data/fiscalperiod.h"
#include "engine/records/query.h"
#include "engine/values/error.h"
#include "transactions/lastsaved.h"
#include "transactions/texts.h"

#include <algorithm>
#include <QScopeGuard>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using Engine::ErrorCode;
using Engine::FieldType;
using Engine::Value;

namespace Tallymere {

DocumentEntry::DocumentEntry(Engine::Database &database, Prompts &prompts, const DocumentKind &kind)
    : numbers(numbersAtOnce(database))
    , m_kind(kind)
    , m_prompts(prompts)
    , m_header(database, m_kind.headerTable)
    , m_lines(database, m_kind.lineTable)
    , m_check(m_lines, m_kind, prompts)
    , m_visit(m_header, m_lines, m_kind.keyField, prompts)
    , m_stock(m_header, m_lines, m_kind)
{
    if (m_kind.numberField)
        m_header.uniqueFields = {*m_kind.numberField};
    m_header.recordName = [this] { return m_kind.titleOf(m_header); };
    m_lines.recordName = [this] { return lineName(); };
    m_lines.addLookup(Fields::ItemNo.sized(20), {Fields::ItemID, u"Item"_s, Fields::ItemID, Fields::ItemNo});
    m_lines.addLookup(Fields::ItemDescription.sized(40),
                      {Fields::ItemID, u"Item"_s, Fields::ItemID, Fields::ItemDescription});
    const auto told = [](std::optional<double> quantity) { return quantity ? Value(*quantity) : Value(); };
    m_lines.addCalculated({OnHand.toString(), FieldType::Float},
                          [this, told](const Engine::DataSet &line) { return told(m_stock.onHand(line)); });
    m_lines.addCalculated({Afterwards.toString(), FieldType::Float},
                          [this, told](const Engine::DataSet &line) { return told(m_stock.afterwards(line)); });
    m_lines.setIndex(m_kind.keyField + ";Seq"_L1);
    m_lines.setMaster(&m_header, m_kind.keyField);
    m_header.rules = &m_headerRules;
    m_lines.rules = &m_lineRules;
}

DocumentEntry::~DocumentEntry()
{
    // What is still being edited is dropped; the checks of the kind are gone already.
    m_lines.rules = nullptr;
    m_header.rules = nullptr;
    close();
}

void DocumentEntry::open()
{
    m_header.open();
    m_lines.open();
    configureFields();
}

void DocumentEntry::close()
{
    m_lines.close();
    m_header.close();
}

void DocumentEntry::configureFields()
{
    Engine::Field &year = m_header.field(Fields::GLYear);
    year.label = TransactionsTexts::tr("Year of Period");
    year.format =
        twoDigitYearFormat(TransactionsTexts::tr("Period invalid...\nEnter year as 2 digits"), Fields::GLYear);

    Engine::Field &period = m_header.field(Fields::GLPeriod);
    period.label = TransactionsTexts::tr("Period");
    period.format = periodNumberFormat(period.label, Fields::GLPeriod);
    period.validate = [parse = period.format.parse](const Value &value) { parse(value.toText()); };

    Engine::Field &date = m_header.field(m_kind.dateField);
    date.label = TransactionsTexts::tr("Date");
    date.format = dateFormat(RegionalSettings::system(), m_kind.dateField, [this] { return today(); });
    date.format.parse = [this, parse = date.format.parse](const QString &text) { return askedDate(parse(text)); };

    m_header.field(Fields::WarehouseID).label = TransactionsTexts::tr("Warehouse");
    m_lines.field(Fields::ItemID).label = TransactionsTexts::tr("Item no.");
    m_lines.field(Fields::ItemID).validate = [this](const Value &itemId) { m_check.requireUsable(itemId); };
    const QString &quantity = m_kind.entry.lineColumns.constFirst().field;
    m_lines.field(quantity).label = TransactionsTexts::tr("Quantity");
    m_lines.field(quantity).format = quantityFormat(RegionalSettings::system(), quantity);
    m_lines.field(quantity).validate = [quantity](const Value &value) {
        requireSensibleQuantity(value.toDouble(), quantity);
    };
    for (const QStringView stock : {OnHand, Afterwards})
        m_lines.field(stock).format = quantityFormat();
    if (const int cost = m_lines.fieldIndex(Fields::UnitCost); cost >= 0) {
        m_lines.field(cost).label = TransactionsTexts::tr("Unit Cost");
        m_lines.field(cost).format = currencyFormat(RegionalSettings::system(), Fields::UnitCost);
    }
}

void DocumentEntry::newDocument(const QString &number)
{
    m_wasSaved = false;
    m_givenNumber = number;
    m_header.insert();
}

bool DocumentEntry::openDocument(int key)
{
    m_wasSaved = false;
    m_lines.setMasterIsNew(false);
    beginVisit();
    return m_header.findKey({key});
}

void DocumentEntry::takeUp(std::unique_ptr<BegunDocument> left)
{
    const BegunDocument::Header texts = left->header();
    m_begun = std::move(left);
    newDocument(m_kind.numberField ? texts.value(*m_kind.numberField) : QString());
    try {
        setHeader(texts);
        m_visit.takeUpLines();
        m_nextSeq = highestSeq() + 1;
        takenUp();
    } catch (...) {
        m_header.cancel();
        throw;
    }
}

BegunDocument::Header DocumentEntry::headerTexts() const
{
    BegunDocument::Header texts;
    for (int i = 0; i < m_header.fieldCount(); ++i) {
        const Engine::Field &field = m_header.field(i);
        if (field.kind == Engine::FieldKind::Data && field.name != m_kind.keyField && !m_header.value(i).isNull())
            texts.insert(field.name, m_header.value(i).toText());
    }
    return texts;
}

// Whatever cannot be chosen any more, as a vendor that was suspended meanwhile, is asked for anew.
void DocumentEntry::setHeader(const BegunDocument::Header &texts)
{
    for (const auto &[name, text] : texts.asKeyValueRange()) {
        const int at = m_header.fieldIndex(name);
        if (at < 0 || std::as_const(m_header).field(at).kind != Engine::FieldKind::Data)
            continue;
        try {
            m_header.set(name, Value(text).as(std::as_const(m_header).field(at).type));
        } catch (const RuleError &) {
        } catch (const Engine::EngineError &error) {
            if (error.isStoreLost())
                throw;
        }
    }
}

// A transaction that fails takes the lines with it.
void DocumentEntry::signBegun()
{
    if (m_header.state() != Engine::TableState::Insert || database().connection().inTransaction())
        return;
    if (!m_begun || m_begun->isLost()) {
        m_begun.reset();
        m_begun = std::make_unique<BegunDocument>(database(), m_kind, key());
    }
    m_begun->keep(headerTexts());
}

void DocumentEntry::beginVisit()
{
    m_visit.begin();
    m_distantDate = {};
    m_stock.forget();
    m_takenOut.reset();
    visitBegins();
}

void DocumentEntry::endVisit()
{
    m_visit.end();
    m_takenOut.reset();
    m_stock.forget();
    m_lines.setMasterIsNew(false);
    if (const std::unique_ptr<BegunDocument> begun = std::move(m_begun))
        begun->end();
    visitBegins();
}

// --- header --------------------------------------------------------------------------------------------------

void DocumentEntry::HeaderRules::insert(const Step &begin)
{
    entry.m_nextSeq = 1;
    begin();
    entry.newHeader();
}

void DocumentEntry::HeaderRules::edit(const Step &begin)
{
    entry.refusePosted();
    begin();
    entry.headerEdited();
}

void DocumentEntry::HeaderRules::post(const Step &save)
{
    entry.checkHeader();
    try {
        save();
    } catch (const Engine::EngineError &error) {
        if (error.code() == ErrorCode::KeyViolation)
            throw RuleError(entry.m_kind.entry.numberTaken, entry.m_kind.shownField());
        throw;
    }
    entry.m_wasSaved = true;
    entry.endVisit();
}

void DocumentEntry::HeaderRules::cancelled() { entry.endVisit(); }

void DocumentEntry::newHeader()
{
    beginVisit();
    m_lines.setMasterIsNew(!m_begun);
    const Engine::StatementPtr fiscal = FiscalSettings::ask(database()); // it travels with what the numbers take
    const Engine::Answer<void> preset = presetHeader();
    assignNumbers();
    m_header.setDefault(m_kind.dateField, today());
    m_header.setDefault(Fields::Posted, false);
    setFiscalDefaults(FiscalSettings::from(*fiscal));
    preset();
}

void DocumentEntry::assignNumbers()
{
    const DocumentKind::Counters &from = m_kind.entry.counters;
    if (m_begun)
        m_header.setDefault(m_kind.keyField, static_cast<int>(m_begun->key()));
    numbers(from.table, [&](CounterRow &counters) {
        if (!m_begun)
            m_header.setDefault(m_kind.keyField, counters.takeKey(from.key, m_kind.keyField, m_kind.keyTables()));
        if (!m_kind.numberField || !m_givenNumber.isEmpty())
            return;
        counters.restartOutside(*from.number, firstNumber, lastNumber, from.restart);
        m_header.setDefault(*m_kind.numberField, QString::number(counters.take(*from.number)));
    });
    if (m_kind.numberField && !m_givenNumber.isEmpty())
        m_header.setDefault(*m_kind.numberField, m_givenNumber);
}

void DocumentEntry::setFiscalDefaults(const FiscalSettings &settings)
{
    const Period period = defaultPeriod(settings, today());
    m_header.setDefault(Fields::GLPeriod, period.number);
    m_header.setDefault(Fields::GLYear, period.year);
}

void DocumentEntry::refusePosted() const
{
    if (!isPosted())
        return;
    m_prompts.inform(m_kind.entry.postedRefusal);
    throw SilentAbort();
}

void DocumentEntry::headerEdited()
{
    // The edit has read the document anew: another user may have posted it since it was shown.
    if (isPosted()) {
        m_header.cancel();
        refusePosted();
    }
    m_nextSeq = highestSeq() + 1;
}

void DocumentEntry::checkHeader()
{
    if (isPosted())
        return;
    checkComplete();
    m_lines.checkBrowseMode();
    askReferences();
    checkPeriod();
    checkReferences();
    for (const QString &field : m_kind.entry.requiredFields)
        requireHeaderField(field, field);
    rememberSaved(database(), m_kind.posting.transType, key());
}

void DocumentEntry::checkPeriod()
{
    requirePeriod(FiscalSettings::readFrom(database()),
                  {m_header.integer(Fields::GLYear), m_header.integer(Fields::GLPeriod)}, m_prompts,
                  Fields::GLPeriod);
}

void DocumentEntry::requireHeaderField(const QString &field, const QString &column) const
{
    if (m_header.text(field).isEmpty())
        throw RuleError(TransactionsTexts::tr("Field '%1' must have a value").arg(m_header.field(field).label),
                        column);
}

QString DocumentEntry::caption() const
{
    const bool unnamed = m_header.text(m_kind.shownField()).isEmpty();
    return m_header.state() == Engine::TableState::Insert && unnamed ? m_kind.entry.newTitle
                                                                     : m_kind.titleOf(m_header);
}

bool DocumentEntry::chooseByNumber(const QString &, const QString &) { return false; }

void DocumentEntry::checkReferences()
{
    requireLocation();
    requireLines();
}

QList<std::pair<QString, QString>> DocumentEntry::references() const
{
    return {{u"Warehse"_s, Fields::WarehouseID}};
}

void DocumentEntry::askReferences()
{
    m_references.clear();
    const QList<std::pair<QString, QString>> wanted = references();
    for (const auto &[table, keyField] : wanted) {
        const Value key = m_header.value(keyField);
        if (key.isNull())
            continue;
        Engine::StatementPtr row =
            database().connection().prepare(u"SELECT %2 FROM %1 WHERE %2 = ?"_s.arg(table, keyField));
        row->bind(0, key);
        row->ask();
        m_references.emplace_back(table, std::move(row));
    }
}

bool DocumentEntry::hasReference(const QString &table, const QString &keyField)
{
    const auto asked =
        std::ranges::find_if(m_references, [&table](const auto &each) { return each.first == table; });
    if (asked == m_references.end())
        return Engine::hasRow(database(), table, keyField, m_header.value(keyField));
    const Engine::StatementPtr row = std::move(asked->second);
    m_references.erase(asked);
    return row->next();
}

void DocumentEntry::requireLocation()
{
    if (!hasReference(u"Warehse"_s, Fields::WarehouseID))
        throw RuleError(m_kind.entry.locationGone, Fields::WarehouseID);
}

void DocumentEntry::requireLines() const
{
    if (m_lines.isEmpty())
        throw RuleError(m_kind.entry.nothingEntered, LineGrid);
}

void DocumentEntry::chooseInHeader(const QString &field, const Value &value)
{
    if (!m_header.isEditing())
        m_header.edit();
    m_header.set(field, value);
}

// Only what is typed comes here: old books are brought in as they are.
Value DocumentEntry::askedDate(const Value &typed)
{
    const QDate date = typed.toDate();
    const bool isWanted = date == m_distantDate || date == m_header.date(m_kind.dateField);
    if (date.isValid() && !isWanted && isMoreThanAYearAway(date, today()))
        throw RuleQuestion(distantDateQuestion(date), m_kind.dateField, [this, date] { m_distantDate = date; });
    return typed;
}

void DocumentEntry::chooseDate(QDate date)
{
    try {
        askedDate(date);
    } catch (const RuleQuestion &question) {
        if (!m_prompts.confirm(Question::Warning, question.question()))
            throw SilentAbort(question.column());
        question.accept();
    }
    chooseInHeader(m_kind.dateField, date);
}

// --- lines ---------------------------------------------------------------------------------------------------

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
    if (!m_header.isEditing())
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
    if (!m_lines.isEditing())
        m_lines.edit();
    m_lines.set(Fields::ItemID, itemId);
}

void DocumentEntry::chooseItemByNumber(const QString &itemNo)
{
    setLineColumn(Fields::ItemNo);
    if (!m_lines.isEditing())
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
    if (!m_lines.isEmpty() && present == itemId)
        return;
    if (m_lines.isEmpty() || (present != 0 && !mayReplace))
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

// --- end of the visit ----------------------------------------------------------------------------------------

void DocumentEntry::save()
{
    if (m_header.isEditing()) {
        m_visit.hold();
        m_header.post();
    }
    m_lines.checkBrowseMode();
    m_header.flush();
    m_lines.flush();
}

void DocumentEntry::cancel()
{
    if (!m_header.isEditing())
        return;
    try {
        if (m_lines.isEditing())
            m_lines.cancel();
    } catch (const Engine::EngineError &) {
        // It is dropped. What follows cannot be shown, for want of a connection.
    }
    m_visit.takeBackLines([this](const Engine::Row &kept) { restoreLine(kept); });
    m_header.cancel();
}

void DocumentEntry::restoreLine(const Engine::Row &kept)
{
    for (int i = 0; i < m_lines.fieldCount(); ++i)
        if (m_lines.field(i).kind == Engine::FieldKind::Data)
            m_lines.setDefault(m_lines.field(i).name, kept[static_cast<size_t>(i)]);
}

DocumentEntry::Closing DocumentEntry::closing() const
{
    if (!m_header.isEditing() && !m_lines.isEditing())
        return Closing::Free;
    if (m_header.state() != Engine::TableState::Insert)
        return Closing::Ask;
    return m_header.isModified() || m_lines.isModified() || hasLines() ? Closing::Ask : Closing::Drop;
}

// As far as can be told without a connection.
bool DocumentEntry::hasLines() const
{
    try {
        return !m_lines.isEmpty();
    } catch (const Engine::EngineError &) {
        return m_visit.hasKept();
    }
}

} // namespace Tallymere
