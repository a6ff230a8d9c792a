#pragma once

#include "controls/screens/dialogscreen.h"

#include <memory>
#include <optional>
#include <QDate>

namespace Ui {
class DateDialog;
}

namespace Tallymere {

// "Select a Date": the calendar of a month to choose a day from.
class DateDialog final : public DialogScreen
{
    Q_OBJECT

public:
    DateDialog(ScreenContext &context, QDate preset, QWidget *parent);
    ~DateDialog() override;

    QDate date() const;

    // Shows it; nothing when it is cancelled.
    static std::optional<QDate> choose(ScreenContext &context, QDate preset, QWidget *parent);

private:
    std::unique_ptr<Ui::DateDialog> m_ui;
};

} // namespace Tallymere
