#pragma once

#include "controls/grids/windowmemory.h"
#include "controls/screens/dialogscreen.h"
#include "reports/reportlist.h"
#include "reports/reportmemory.h"
#include "reports/screens/reportways.h"

#include <memory>

namespace Ui {
class TfrmInvReports;
}

namespace Tallymere {

// "Inventory Reports": first a report is chosen, then what it is to be about, and then its preview is shown, or it is
// saved. What a user has had last is offered again. Not modal; it frees itself when it is closed.
class TfrmInvReports final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmInvReports(ScreenContext &context, QWidget *parent);
    ~TfrmInvReports() override;

    // What is chosen, whether or not the report takes it. 0: no location, no type.
    int GetWarehouseID() const;
    void SetWarehouseID(int warehouseId);
    int GetItemTypeID() const;
    void SetItemTypeID(int itemTypeId);
    int GetGLPeriod() const { return m_period; }
    void SetGLPeriod(int period);
    int GetGLYear() const { return m_year; }
    void SetGLYear(int year);

    void btnBackClick();
    void btnNextClick();

protected:
    QWidget *widgetOfColumn(const QString &column) const override;
    void showStep() override;

private:
    void connectControls();
    void offer(const ReportChoice &choice);
    ReportSelection selection() const;
    const ReportDescription &chosen() const;
    bool isAskingForOptions() const;
    void showPage(QWidget *page);
    void showOptions();
    void placeOptions(const ReportDescription &report);
    void takeOverPeriod();
    void takeOverYear();
    std::optional<WantedReport> wanted();
    void preview();
    void keepChoice();

    const std::unique_ptr<Ui::TfrmInvReports> m_ui;
    ReportMemory m_memory;
    WindowMemory m_place;
    std::unique_ptr<ReportWays> m_ways;
    int m_period = 0;
    int m_year = 0;
};

} // namespace Tallymere
