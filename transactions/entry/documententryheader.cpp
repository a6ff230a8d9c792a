// The header of a document: a new one with its numbers and defaults, its checks, what is chosen in it.

#include "base/formats.h"
#include "base/ruleerror.h"
#include "base/typeddate.h"
#include "data/fiscalperiod.h"
#include "engine/records/query.h"
#include "engine/values/error.h"
#include "transactions/books/lastsaved.h"
#include "transactions/entry/documententry.h"
#include "transactions/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Engine::ErrorCode;
using Engine::Value;

namespace Tallymere {

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

} // namespace Tallymere
