#pragma once

#include "engine/store/answer.h"
#include "engine/store/recordlock.h"

#include <memory>
#include <optional>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

struct DocumentKind;

// A new document that is being entered: its lines are stored, its header is not. Beside the lines stands whose it is and
// what the header holds, and while the object lives a lock tells others that somebody is at it; the end of the
// program, however it comes, frees that. So a document that has been left can be told from one that is being entered,
// and is offered to its user again.
class BegunDocument
{
public:
    using Header = QHash<QString, QString>; // texts as of Engine::Value::toText by the fields that have one

    BegunDocument(Engine::Database &database, const DocumentKind &kind, qint64 key);

    // The keys of what the session's user has begun: being entered, left or saved already.
    static Engine::Answer<QList<qint64>> askBegun(Engine::Database &database, const DocumentKind &kind);
    // The first of these that has been left, locked; nothing where none has.
    static std::unique_ptr<BegunDocument> left(Engine::Database &database, const DocumentKind &kind,
                                               const QList<qint64> &begun);

    // How many the session's user has left; changes nothing.
    static int countLeft(Engine::Database &database, const DocumentKind &kind);

    qint64 key() const { return m_key; }
    bool isLost() const { return m_life.isLost(); } // the lock, with the connection

    void keep(const Header &header); // writes nothing where it is kept already
    void end() noexcept; // what is kept goes, unless lines without a header are left
    void takeOut(); // the lines as well, with a note in the host's history

    // Of one that was left.
    const Header &header() const { return m_header; }
    QDateTime saved() const { return m_saved; }
    int lineCount() const;
    QString title() const; // "Receipt 1001"

private:
    bool isStored() const;
    Engine::StatementPtr ofUseless() const; // deletes the row where header or no lines are stored
    void forget();
    Engine::StatementPtr ofRow(const QString &sql) const;

    Engine::Database &m_database;
    const DocumentKind &m_kind;
    const qint64 m_key;
    Engine::RecordLock m_life;
    bool m_isKept = false;
    Header m_header;
    QDateTime m_saved;
};

} // namespace Tallymere
