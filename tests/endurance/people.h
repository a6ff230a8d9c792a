#pragma once

#include "tests/support/otheruser.h"
#include "transactions/documents/documentkind.h"

#include <QSet>

// Users who do what comes, each in a process of his own, and say what they were answered; and whoever listens to them.

// What a check of the books finds, and of that, what is left of documents that somebody was entering, which may be.
struct Findings
{
    QStringList bad;
    int unfinished = 0;
};
Findings checked(Engine::Database &database);

void say(const QStringList &words); // a line

// The task of one: his number, and how many things he does.
void live(Engine::Database &database, const QStringList &arguments);

// What all of them were answered.
class Ledger
{
public:
    using Document = std::pair<QString, QString>; // kind and key
    using Line = QStringList; // location, item and quantity

    void take(const QString &line);
    // What all documents that were not deleted come to: by item and location.
    std::map<std::pair<int, int>, double> stock() const;
    QList<Line> linesOf(const Document &document) const { return m_documents.value(document); }
    QList<Document> documents(const Tallymere::DocumentKind &kind) const; // that were not deleted
    void print() const;

    QStringList bad; // lines that should not be
    int hostRows = 0;
    int posted = 0;
    QSet<Document> deleted;
    std::optional<Document> inDoubt; // begun to be deleted, and not answered
    std::map<QString, int> counts;

private:
    QHash<Document, QList<Line>> m_documents;
};
