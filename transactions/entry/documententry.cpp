#include "transactions/entry/documententry.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "engine/store/tablelocks.h"
#include "engine/values/error.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
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
    m_lines.addCalculated(OnHand, [this, told](const Engine::DataSet &line) { return told(m_stock.onHand(line)); });
    m_lines.addCalculated(Afterwards,
                          [this, told](const Engine::DataSet &line) { return told(m_stock.afterwards(line)); });
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
    const Engine::OpenShares together(database(), m_kind.keyTables());
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
