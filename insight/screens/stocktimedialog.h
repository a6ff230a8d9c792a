#pragma once

#include "controls/screens/dialogscreen.h"
#include "insight/stockasof.h"

#include <memory>
#include <optional>

namespace Ui {
class StockTimeDialog;
}

namespace Tallymere {

// "Stock As Of": the end of a day or of a fiscal period.
class StockTimeDialog final : public DialogScreen
{
    Q_OBJECT

public:
    StockTimeDialog(ScreenContext &context, const StockTime &preset, QWidget *parent);
    ~StockTimeDialog() override;

    const StockTime &time() const { return m_time; } // after OK

    // Shows it; nothing when it is cancelled.
    static std::optional<StockTime> choose(ScreenContext &context, const StockTime &preset, QWidget *parent);

protected:
    QWidget *widgetOfColumn(const QString &column) const override;
    void showStep() override;

private:
    void showWhatCounts();
    void btnOKClick();

    const std::unique_ptr<::Ui::StockTimeDialog> m_ui;
    StockTime m_time;
};

} // namespace Tallymere
