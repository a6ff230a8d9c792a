#pragma once

#include "care/screens/findingslist.h"
#include "controls/grids/windowmemory.h"
#include "controls/screens/dialogscreen.h"
#include "reports/screens/reportways.h"

#include <memory>

namespace Ui {
class TfrmCheckBooks;
}

namespace Tallymere {

// "Check Books": what is not as it should be in the books, each finding with what it does to the figures and what mends it,
// and the repair of what has one right answer. It checks when it is opened. Not modal; it frees itself when it is closed.
class TfrmCheckBooks final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmCheckBooks(ScreenContext &context, QWidget *parent);
    ~TfrmCheckBooks() override;

    void check();

Q_SIGNALS:
    void checked();

protected:
    void showStep() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void connectControls();
    void btnRepairClick();
    void btnPrintClick();
    void showFindings(FindingsList findings, const QString &origin = {});
    void showFinding();

    const std::unique_ptr<::Ui::TfrmCheckBooks> m_ui;
    WindowMemory m_memory;
    FindingsList m_findings;
    std::unique_ptr<ReportWays> m_ways;
    bool m_shown = false;
};

} // namespace Tallymere
