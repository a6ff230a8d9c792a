#pragma once

#include "controls/screens/dialogscreen.h"
#include "transactions/counting/countdifferences.h"

#include <memory>

namespace Ui {
class TfrmCountDifferences;
}

namespace Tallymere {

// "Count Differences": where the money is that a count differs by, the largest first. Accepted when the user wants to look
// at an item in the count once more.
class TfrmCountDifferences final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmCountDifferences(ScreenContext &context, const CountList &list, QWidget *parent);
    ~TfrmCountDifferences() override;

    qint64 chosenItem() const;

protected:
    void showStep() override;

private:
    QString sumsText() const;
    QString notesText() const;

    const CountDifferences m_differences;
    const int m_notCounted;
    const std::unique_ptr<::Ui::TfrmCountDifferences> m_ui;
};

} // namespace Tallymere
