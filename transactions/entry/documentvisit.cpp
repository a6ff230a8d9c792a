#include "transactions/entry/documentvisit.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "engine/store/lockmanager.h"
#include "engine/values/error.h"
#include "transactions/texts.h"

#include <QScopeGuard>
#include <utility>

using namespace Qt::StringLiterals;
using Engine::ErrorCode;

namespace Tallymere {

namespace {

std::vector<Engine::Row> rowsOf(const Engine::DataSet &table)
{
    std::vector<Engine::Row> rows;
    rows.reserve(static_cast<size_t>(table.recordCount()));
    for (int i = 0; i < table.recordCount(); ++i)
        rows.push_back(table.rowAt(i));
    return rows;
}

} // namespace

DocumentVisit::DocumentVisit(Engine::Table &header, Engine::Table &lines, QString keyField, Prompts &prompts)
    : m_header(header)
    , m_lines(lines)
    , m_keyField(std::move(keyField))
    , m_prompts(prompts)
{
    for (Engine::Table *table : {&m_header, &m_lines})
        table->holdMore = [this] { hold(); };
}

void DocumentVisit::begin()
{
    end();
    m_losses = m_checkedLosses = m_header.database().connection().locks().losses();
}

void DocumentVisit::end()
{
    m_lockWasLost = false;
    m_kept.reset();
}

// A lost connection has taken the lock of the header with it, or of a new document, and so of the lines. It is taken again, but whoever has
// changed the document meanwhile goes first.
void DocumentVisit::hold()
{
    if (isStoredAlready())
        throw RuleError(TransactionsTexts::tr(
            "The document had been saved before the connection was lost. Close this screen with Cancel "
            "and open the document anew."));
    const Engine::LockManager &locks = m_header.database().connection().locks();
    const bool isNewAfterLoss = isNew() && (locks.areLost() || locks.losses() != m_checkedLosses);
    if (m_header.holdRecord() || isNewAfterLoss)
        m_lockWasLost = true;
    if (!m_lockWasLost)
        return;
    if (m_kept && !m_kept->accountsFor(storedLines()))
        throw RuleError(TransactionsTexts::tr(
                            "Another user has changed the lines of this document while the connection was lost. "
                            "Cancel, and make your changes again."),
                        LineGrid);
    m_lockWasLost = false;
    m_checkedLosses = locks.losses();
}

// The answer to the saving may be all that was lost.
bool DocumentVisit::isStoredAlready() const
{
    const Engine::LockManager &locks = m_header.database().connection().locks();
    const bool wasLost = locks.areLost() || locks.losses() != m_losses;
    return wasLost && isNew() && hasStoredHeader();
}

bool DocumentVisit::isNew() const { return m_header.state() == Engine::TableState::Insert; }

bool DocumentVisit::hasStoredHeader() const
{
    return Engine::hasRow(m_header.database(), m_header.name(), m_keyField, key());
}

std::vector<Engine::Row> DocumentVisit::storedLines() const
{
    Engine::TableReader stored(m_lines.database(), m_lines.name());
    stored.open();
    stored.setRange({key()}, {key()});
    return rowsOf(stored);
}

void DocumentVisit::keepLines()
{
    if (m_kept)
        return;
    // The key of a new document was looked for in both tables, and a run has these to itself.
    if (isNew() && m_header.database().connection().isInRun()) {
        m_kept.emplace(m_lines, std::vector<Engine::Row>());
        return;
    }
    m_lines.refresh();
    if (isNew() && (!m_lines.isEmpty() || hasStoredHeader()))
        throw RuleError(TransactionsTexts::tr("Another document with the key of this new one has been stored "
                                              "meanwhile. Close this screen with Cancel "
                                              "and enter the document anew."));
    m_kept.emplace(m_lines, rowsOf(m_lines));
}

// None of them was there when the document was begun.
void DocumentVisit::takeUpLines()
{
    m_lines.refresh();
    m_kept.emplace(m_lines, std::vector<Engine::Row>());
    for (const Engine::Row &line : rowsOf(m_lines))
        m_kept->changed(line[static_cast<size_t>(m_lines.fieldIndex(Fields::Seq))].toInt(), line);
}

// What is calculated, as what is on hand, is not asked for: that would read it.
Engine::Row DocumentVisit::currentLine() const
{
    Engine::Row row;
    row.reserve(static_cast<size_t>(m_lines.fieldCount()));
    for (int i = 0; i < m_lines.fieldCount(); ++i)
        row.push_back(m_lines.field(i).kind == Engine::FieldKind::Calculated ? Engine::Value() : m_lines.value(i));
    return row;
}

void DocumentVisit::write(const Engine::RecordRules::Step &save)
{
    if (m_kept)
        m_kept->changing(m_lines.integer(Fields::Seq), currentLine());
    try {
        save();
    } catch (const Engine::EngineError &error) {
        const bool isRefused = m_lines.isEditing() && !error.isConnectionLost();
        if (m_kept && isRefused)
            m_kept->refused(m_lines.integer(Fields::Seq));
        throw;
    }
    if (m_kept)
        m_kept->changed(m_lines.integer(Fields::Seq), currentLine());
}

void DocumentVisit::remove(const Engine::RecordRules::Step &erase)
{
    const int seq = m_lines.integer(Fields::Seq);
    if (m_kept)
        m_kept->changing(seq, {});
    erase();
    if (m_kept)
        m_kept->changed(seq, {});
}

// Where the connection breaks, the answer to the commit may be all that is lost.
void DocumentVisit::writeTogether(const std::function<void()> &writeAll)
{
    const std::optional<LineCopy> before = m_kept;
    const auto restore = [&](bool isUncertain) {
        if (!before || !m_kept)
            return;
        LineCopy known = *before;
        if (isUncertain)
            known.mayHaveBecome(*m_kept);
        m_kept.emplace(std::move(known));
    };
    try {
        Engine::Transaction transaction(m_lines.database().connection());
        writeAll();
        transaction.commit();
    } catch (const Engine::EngineError &error) {
        restore(error.isStoreLost());
        throw;
    } catch (...) {
        restore(false);
        throw;
    }
}

// --- taking back -----------------------------------------------------------------------------------------------

void DocumentVisit::takeBackLines(const FillLine &fill)
{
    if (!m_kept)
        return;
    bool connectedAgain = false;
    for (;;) {
        try {
            return takeBack(fill);
        } catch (const RuleError &) {
            return tellOthers();
        } catch (const Engine::EngineError &error) {
            if (error.code() == ErrorCode::RecordChanged || error.code() == ErrorCode::RecordGone)
                return tellOthers();
            // The first statement after a loss notices it, the next one connects again.
            if (error.isConnectionLost() && !std::exchange(connectedAgain, true))
                continue;
            if (!mayTryAgain(error))
                return;
        }
    }
}

void DocumentVisit::takeBack(const FillLine &fill)
{
    if (isStoredAlready())
        return tellStored();
    hold();
    if (m_header.isStored())
        return tellStored();
    restoreLines(fill);
}

void DocumentVisit::restoreLines(const FillLine &fill)
{
    Engine::RecordRules *const checks = std::exchange(m_lines.rules, nullptr);
    const auto hookAgain = qScopeGuard([&] { m_lines.rules = checks; });
    m_kept->restoring();
    try {
        writeKeptLines(fill);
    } catch (...) {
        m_lines.cancel();
        throw;
    }
}

void DocumentVisit::writeKeptLines(const FillLine &fill)
{
    Engine::Transaction transaction(m_lines.database().connection());
    m_lines.removeAll();
    for (const Engine::Row &kept : m_kept->rows()) {
        if (kept[static_cast<size_t>(m_lines.fieldIndex(Fields::Seq))].toInt() == 0)
            continue;
        m_lines.insert();
        fill(kept);
        m_kept->restoring(m_lines.integer(Fields::Seq), currentLine());
        m_lines.post();
    }
    transaction.commit();
}

bool DocumentVisit::mayTryAgain(const Engine::EngineError &error) const
{
    if (error.code() == ErrorCode::FileReplaced) { // trying again does not help
        m_prompts.error(
            TransactionsTexts::tr("%1\n\nYour changes to the lines stay in the file that was in use. %2")
                .arg(error.text(), m_kept->summary()));
        return false;
    }
    return m_prompts.retry(TransactionsTexts::tr("Your changes to the lines could not be taken back:\n%1\n\nUnless "
                                                 "that is tried again, they stay stored. %2")
                               .arg(error.text(), m_kept->summary()));
}

void DocumentVisit::tellStored() const
{
    m_prompts.warn(TransactionsTexts::tr("The document had been saved before the connection was lost. It stays."));
}

void DocumentVisit::tellOthers() const
{
    m_prompts.warn(
        TransactionsTexts::tr(
            "Another user has changed, posted or deleted the document while the connection was lost. What "
            "that user has saved is stored; nothing of it was taken back. Your own changes were: %1")
            .arg(m_kept->summary()));
}

} // namespace Tallymere
