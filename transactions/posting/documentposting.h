#pragma once

#include "base/prompts.h"
#include "engine/store/database.h"
#include "transactions/documents/documentkind.h"

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace Tallymere {

// Posts every unposted document of one kind: marks it posted, then writes history and balance line by line.
//
// Which documents are taken is decided when the object is made. They are posted in the order of their keys; one
// that another user has posted or deleted since is left out. All tables of PostingKind::locks are held for the
// whole run and released when run() returns or throws.
//
// A document that a rule refuses, for an amount or a quantity on hand that is out of range, ends the run: nothing of it
// is written, it stays unposted, and the documents before it stay posted. The RuleError says how many these are, and how
// many wait behind it.
//
// Failure of the store: an EngineError, which names the document where one was in hand. Documents before it stay posted; the
// one in hand stays marked, with what was written before the failing statement. The end of the process or of the machine
// leaves whole documents only, at most the last two seconds of them unposted. Use on the thread that opened the database.
class DocumentPosting final
{
public:
    DocumentPosting(Engine::Database &database, const DocumentKind &kind); // the kind outlives the object
    DocumentPosting(const DocumentPosting &) = delete;
    DocumentPosting &operator=(const DocumentPosting &) = delete;

    int count() const { return static_cast<int>(m_keys.size()); } // documents to be posted
    const std::vector<qint64> &keys() const { return m_keys; }
    QString countText() const { return m_kind.posting.toBePosted.arg(count()); }
    int posted() const { return m_posted; } // by run(); another user may have been ahead with some

    // Whether the entry screen of this kind is open; set by whoever knows screens.
    std::function<bool()> isEntryOpen;
    std::optional<std::chrono::milliseconds> groupTime; // of GroupedWrites, for tests that look between two groups

    // True when the run took place; false when there was nothing to post. Raises RuleError while the entry screen
    // is open, and for a document that cannot be posted, naming its line. A table held by another user is asked
    // about with Prompts::retry; the answer Cancel raises the lock's EngineError, with nothing written and no table
    // held.
    bool run(Prompts &prompts, Progress &progress);

private:
    struct PostingBooks;

    void postAll(Prompts &prompts, Progress &progress);
    QString aroundRefused() const;
    QString whereItFailed() const;
    void postDocument(const PostingDocument &document, Engine::Statement &mark, PostingBooks books) const;
    static void writeLine(const PostingDocument &document, const PostingLine &line, const LineEffect &effect,
                          PostingBooks books);

    Engine::Database &m_database;
    const DocumentKind &m_kind;
    std::vector<qint64> m_keys;
    QString m_inHand; // the document of which something is being written; empty between two
    int m_posted = 0;
    int m_waiting = 0; // behind the one in hand
};

} // namespace Tallymere
