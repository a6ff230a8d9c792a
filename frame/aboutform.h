#pragma once

#include <memory>
#include <QDialog>

namespace Engine {
class Database;
}

namespace Tallymere {

namespace Ui {
class TFormAboutTallymereSystem;
}

class TFormAboutTallymereSystem final : public QDialog
{
    Q_OBJECT

public:
    TFormAboutTallymereSystem(Engine::Database &database, QWidget *parent);
    ~TFormAboutTallymereSystem() override;

private:
    void copyReport();

    Engine::Database &m_database;
    std::unique_ptr<Ui::TFormAboutTallymereSystem> m_ui;
};

} // namespace Tallymere
