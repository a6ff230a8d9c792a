#pragma once

#include "controls/dialogscreen.h"
#include "transactions/documentposting.h"

#include <memory>

namespace Ui {
class DocumentPostScreen;
}

namespace Tallymere {

// The posting dialog of one kind of document. It shows how many documents there are and runs the posting; accepted
// when the run took place, even if it ended with an error.
class DocumentPostScreen final : public DialogScreen
{
    Q_OBJECT

public:
    DocumentPostScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent);
    ~DocumentPostScreen() override;

    const DocumentPosting &posting() const { return m_posting; }
    bool hasFailed() const { return m_failed; } // how many were posted is not certain then
    void btnOKClick();
    void reject() override; // not while the run goes on

private:
    DocumentPosting m_posting;
    std::unique_ptr<Ui::DocumentPostScreen> m_ui;
    bool m_running = false;
    bool m_failed = false;
};

} // namespace Tallymere
