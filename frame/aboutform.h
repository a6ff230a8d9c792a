#pragma once

#include <memory>
#include <QDialog>

namespace Tallymere {

namespace Ui {
class TFormAboutTallymereSystem;
}

class TFormAboutTallymereSystem final : public QDialog
{
    Q_OBJECT

public:
    explicit TFormAboutTallymereSystem(QWidget *parent = nullptr);
    ~TFormAboutTallymereSystem() override;

private:
    std::unique_ptr<Ui::TFormAboutTallymereSystem> m_ui;
};

} // namespace Tallymere
