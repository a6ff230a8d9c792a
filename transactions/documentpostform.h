#pragma once

#include "controls/dialogscreen.h"
#include "transactions/documentposting.h"

namespace Ui {
class DocumentPostScreen;
}

namespace Tallymere {

// The posting dialog of one kind of document. It shows how many documents there are and runs the posting; accepted
// when the run took place, even if it ended with an error.
class DocumentPostScreen : public DialogScreen
{
    Q_OBJECT

public:
    ~DocumentPostScreen() override;

    int count() const { return m_posting->count(); } // documents to be posted
    void btnOKClick();
    void reject() override; // not while the run goes on

protected:
    // The posting is refused while a window named entryScreen is open.
    DocumentPostScreen(ScreenContext &context, std::unique_ptr<DocumentPosting> posting, const QString &name,
                       const QString &caption, const QString &entryScreen, QWidget *parent);

private:
    std::unique_ptr<DocumentPosting> m_posting;
    std::unique_ptr<Ui::DocumentPostScreen> m_ui;
    bool m_running = false;
};

// "Post Inventory Receipts"
class TfrmInvReceiptsPost final : public DocumentPostScreen
{
    Q_OBJECT

public:
    TfrmInvReceiptsPost(ScreenContext &context, QWidget *parent);
};

} // namespace Tallymere
