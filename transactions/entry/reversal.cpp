#include "transactions/entry/reversal.h"

#include "base/ruleerror.h"
#include "engine/records/query.h"
#include "engine/store/recordlock.h"
#include "engine/values/textsize.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::FieldKind;
using Engine::Value;

namespace Tallymere {

namespace {

class Reversal
{
public:
    Reversal(DocumentEntry &entry, int key)
        : m_entry(entry)
        , m_kind(entry.kind())
        , m_header(entry.header().database(), m_kind.headerTable)
        , m_lines(entry.header().database(), m_kind.lineTable)
    {
        m_header.open();
        if (!m_header.findKey({key}))
            throw RuleError(Engine::recordGoneText(m_kind.entry.title.arg(key)));
        if (!m_header.boolean(Fields::Posted))
            throw RuleError(TransactionsTexts::tr("Only a posted document can be reversed"));
        m_lines.setMaster(&m_header, m_kind.keyField);
        m_lines.open();
    }

    void begin()
    {
        askAboutFormer();
        m_entry.newDocument();
        try {
            fillHeader();
            for (int line = 0; line < m_lines.recordCount(); ++line)
                addLine(line);
        } catch (...) {
            m_entry.cancel();
            throw;
        }
    }

private:
    // What belongs to the new document itself, and what its rules work out.
    bool isOwn(const QString &field) const
    {
        return m_kind.files.systemFields.contains(field) || m_kind.entry.ownFields.contains(field)
            || QStringList{m_kind.keyField,  m_kind.shownField(), m_kind.dateField, Fields::GLYear,
                           Fields::GLPeriod, Fields::Posted,      Fields::Seq}
                   .contains(field);
    }

    void fillHeader()
    {
        Engine::Table &header = m_entry.header();
        for (int i = 0; i < header.fieldCount(); ++i) {
            const Engine::Field &field = std::as_const(header).field(i);
            if (field.kind == FieldKind::Data && !isOwn(field.name) && !m_header.value(field.name).isNull())
                header.set(field.name, m_header.value(field.name));
        }
        if (const std::optional<QString> &name = m_kind.entry.descriptionField)
            header.set(*name, description(*name));
    }

    Value description(const QString &field) const
    {
        const QString text = TransactionsTexts::tr("Reverses %1").arg(m_kind.titleOf(m_header));
        return Value(Engine::firstCharacters(text, m_header.field(field).size));
    }

    // By which one that has been begun before is told, posted or not. It is younger than what it reverses.
    void askAboutFormer()
    {
        const std::optional<QString> &name = m_kind.entry.descriptionField;
        if (!name)
            return;
        const Value former = Engine::singleValue(
            m_header.database(),
            u"SELECT MIN(%1) FROM %2 WHERE %1 > ? AND %3 = ?"_s.arg(m_kind.keyField, m_kind.headerTable, *name),
            {m_header.value(m_kind.keyField), description(*name)});
        if (former.isNull())
            return;
        Engine::TableReader other(m_header.database(), m_kind.headerTable);
        other.open();
        if (!other.findKey({former}))
            return;
        if (!m_entry.prompts().confirm(Question::Warning,
                                       TransactionsTexts::tr("%1 reverses %2 already. Reverse it once more?")
                                           .arg(m_kind.titleOf(other), m_kind.titleOf(m_header))))
            throw SilentAbort();
    }

    void addLine(int number)
    {
        const QString &quantity = m_kind.entry.lineColumns.constFirst().field;
        m_lines.moveTo(number);
        try {
            m_entry.newLineWith([&](const QString &field) {
                if (isOwn(field))
                    return std::optional<Value>();
                return std::optional(field == quantity ? Value(-m_lines.number(quantity)) : m_lines.value(field));
            });
            m_entry.lines().post();
        } catch (const RuleError &error) {
            throw RuleError(
                TransactionsTexts::tr("Line %1 cannot be reversed: %2").arg(number + 1).arg(error.message()));
        }
    }

    DocumentEntry &m_entry;
    const DocumentKind &m_kind;
    Engine::TableReader m_header;
    Engine::TableReader m_lines;
};

} // namespace

void beginReversal(DocumentEntry &entry, int key) { Reversal(entry, key).begin(); }

} // namespace Tallymere
