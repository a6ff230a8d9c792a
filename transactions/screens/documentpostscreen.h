#pragma once

#include "controls/screens/dialogscreen.h"
#include "transactions/documentlist.h"
#include "transactions/documentposting.h"

#include <memory>

namespace Ui {
class DocumentPostScreen;
}

namespace Tallymere {

// The posting dialog of one kind of document. It shows how many documents there are, and how many of them the list that it
// has been opened from does not show, and runs the posting; accepted when the run took place, even if it ended with an
// error.
class DocumentPostScreen final : public DialogScreen
{
    Q_OBJECT

public:
    // Without a list it has been opened from the main window.
    DocumentPostScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent,
                       const DocumentList *list = nullptr);
    ~DocumentPostScreen() override;

    const DocumentPosting &posting() const { return m_posting; }
    bool hasFailed() const { return m_failed; } // how many were posted is not certain then
    QString postedText() const; // "3 receipts posted"
    void sayPosted() const; // the same in the main window
    void btnOKClick();
    void reject() override; // not while the run goes on

private:
    QString notListedText(const DocumentList &list) const;

    DocumentPosting m_posting;
    const DocumentKind &m_kind;
    std::unique_ptr<Ui::DocumentPostScreen> m_ui;
    bool m_running = false;
    bool m_failed = false;
};

} // namespace Tallymere
