#pragma once

#include "controls/screens/dialogscreen.h"
#include "transactions/documents/documentlist.h"
#include "transactions/posting/documentposting.h"
#include "transactions/posting/postingoutlook.h"

#include <memory>

namespace Ui {
class DocumentPostScreen;
}

namespace Tallymere {

// The posting dialog of one kind of document. It shows how many documents there are, and how many of them the list that it
// has been opened from does not show, tells what posting them will do that one may want to look at first, and runs the
// posting; accepted when the run took place, even if it ended with an error.
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

protected:
    void showStep() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void lookAhead();
    void showOutlook();
    void openNoticed(); // the document of the notice with the cursor, in place of the dialog
    QString notListedText(const DocumentList &list) const;

    DocumentPosting m_posting;
    std::unique_ptr<PostingOutlook> m_outlook; // while it is looked ahead, and for what has been found
    const DocumentKind &m_kind;
    QWidget *const m_owner; // of documents that are opened from here: they belong to the window that it belongs to
    std::unique_ptr<Ui::DocumentPostScreen> m_ui;
    bool m_running = false;
    bool m_failed = false;
};

} // namespace Tallymere
