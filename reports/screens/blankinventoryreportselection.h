#pragma once

#include "controls/screens/dialogscreen.h"
#include "data/lastchoices.h"
#include "reports/blankform.h"
#include "reports/screens/reportways.h"

#include <memory>

namespace Ui {
class TFormBlankInventoryReportSelection;
}

namespace Tallymere {

// "Blank Inventory Form": what the form shows that a count is written on, and its preview, or where it is saved. The
// user's last choices are offered again.
class TFormBlankInventoryReportSelection final : public DialogScreen
{
    Q_OBJECT

public:
    TFormBlankInventoryReportSelection(ScreenContext &context, QWidget *parent);
    ~TFormBlankInventoryReportSelection() override;

    void btnPreviewClick();

protected:
    QWidget *widgetOfColumn(const QString &column) const override;

private:
    void offer(const BlankFormChoices &choices);
    BlankFormChoices choices() const;
    WantedReport wanted() const;
    void keepChoices();

    const LastChoices m_last;
    const std::unique_ptr<Ui::TFormBlankInventoryReportSelection> m_ui;
    std::unique_ptr<ReportWays> m_ways;
};

} // namespace Tallymere
