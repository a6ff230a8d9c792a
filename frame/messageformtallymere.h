#pragma once

#include "base/prompts.h"

#include <memory>
#include <QWidget>

namespace Tallymere {

namespace Ui {
class TFormMessageInventorySystem;
}

// Shows the progress of a long save. It has no buttons: a save is not interrupted.
class TFormMessageInventorySystem final : public QWidget, public Progress
{
    Q_OBJECT

public:
    explicit TFormMessageInventorySystem(QWidget *parent = nullptr);
    ~TFormMessageInventorySystem() override;

    // Progress. start() shows the window, finish() hides it.
    void start(int steps) override;
    void step() override;
    void finish() override;

private:
    void showCount();

    std::unique_ptr<Ui::TFormMessageInventorySystem> m_ui;
};

// The one that long saves share: made by who first needs it, null until then and after it has gone.
extern TFormMessageInventorySystem *MessageFormTallymere;

} // namespace Tallymere
