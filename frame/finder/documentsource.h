#pragma once

#include "controls/screens/recordopener.h"
#include "data/nameindex.h"
#include "frame/finder/findsource.h"

#include <memory>

namespace Tallymere {

struct DocumentKind;
struct FoundDocument;

// The documents of a kind by number, with the name of the kind or without ("receipt 1001"), and by any part of what users
// say of them. Numbers are looked up in the books, so a document that has just been saved is there.
class DocumentSource final : public FindSource
{
public:
    // The owner is a window of the main window.
    DocumentSource(ScreenContext &context, const DocumentKind &kind, QWidget &owner);

    QString caption() const override;
    QList<Finding> find(const Wanted &wanted) override;
    std::optional<Finding> findById(const QString &id) override;
    void readAnew() override;
    bool isReading() const override { return m_descriptions && m_descriptions->isReading(); }
    bool readOn(qint64 milliseconds) override { return m_descriptions && m_descriptions->readOn(milliseconds); }

private:
    QString numberIn(const QString &typed) const; // beside words that name the kind; empty when there is none
    Finding finding(const FoundDocument &found);

    ScreenContext &m_context;
    const DocumentKind &m_kind;
    const QString m_kindWords;
    RecordOpener *m_records; // of the owner
    std::unique_ptr<NameIndex> m_descriptions; // null for a kind without
};

} // namespace Tallymere
