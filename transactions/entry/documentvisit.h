#pragma once

#include "base/prompts.h"
#include "engine/records/table.h"
#include "transactions/entry/linecopy.h"

#include <functional>
#include <optional>

namespace Engine {
class EngineError;
}

namespace Tallymere {

// One visit to a document, from the point of view of its lines: they are kept as they were stored when the first change
// locked the document, and brought back when the visit is cancelled. Where the connection was lost in between, and with
// it the lock, nothing of what others have stored is touched, and the user is told what has become of the document.
//
// The owner of the two tables calls it from the rules of their edits.
class DocumentVisit
{
public:
    // The column of an error that concerns the lines as a whole.
    static constexpr QLatin1StringView LineGrid{"Lines"};

    using FillLine = std::function<void(const Engine::Row &kept)>;

    // The lines have the key of the header, and are ordered by it and their number.
    DocumentVisit(Engine::Table &header, Engine::Table &lines, QString keyField, Prompts &prompts);

    void begin(); // from here on losses of the connection count
    void end(); // the header is stored or dropped: the lock and what is known by it go

    // Makes sure of the lock of a document in edit. Raises RuleError where it was lost meanwhile and others have changed
    // the lines, or the new document is stored already; EngineError where the header is not as it was.
    void hold();
    // As stored now that the document is locked; the first call of a visit counts. Raises RuleError where a new document
    // has some already: they are another one's, of the same key.
    void keepLines();

    // Lines of a new document that are stored already, and are its own.
    void takeUpLines();

    // Around each write and removal of the current line.
    void write(const Engine::RecordRules::Step &save);
    void remove(const Engine::RecordRules::Step &erase);
    // Around the writing of several: all of them are stored, or none.
    void writeTogether(const std::function<void()> &writeAll);

    bool hasKept() const { return m_kept.has_value(); }
    // Stores the lines as they were, with their former numbers, each filled by its kind; without the rules of the
    // lines, whose checks would hinder. Where that cannot be done the user is told, and the visit ends all the same.
    void takeBackLines(const FillLine &fill);

private:
    bool isStoredAlready() const;
    bool isNew() const;
    bool hasStoredHeader() const;
    std::vector<Engine::Row> storedLines() const;
    Engine::Row currentLine() const;
    int key() const { return m_header.integer(m_keyField); }

    void takeBack(const FillLine &fill);
    void restoreLines(const FillLine &fill);
    void writeKeptLines(const FillLine &fill);
    bool mayTryAgain(const Engine::EngineError &error) const;
    void tellStored() const;
    void tellOthers() const;

    Engine::Table &m_header;
    Engine::Table &m_lines;
    const QString m_keyField;
    Prompts &m_prompts;

    std::optional<LineCopy> m_kept; // goes with the lock
    bool m_lockWasLost = false; // and who has been at the lines meanwhile is not known yet
    int m_checkedLosses = 0; // up to which the lines have been looked at
    int m_losses = 0; // of the connection, when the visit began
};

} // namespace Tallymere
