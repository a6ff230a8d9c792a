#include "frame/aboutform.h"

#include "ui_aboutform.h"

namespace Tallymere {

TFormAboutTallymereSystem::TFormAboutTallymereSystem(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::TFormAboutTallymereSystem>())
{
    m_ui->setupUi(this);
    m_ui->LabelVersion->setText(tr("Version %1").arg(QLatin1StringView(TALLYMERE_VERSION)));
}

TFormAboutTallymereSystem::~TFormAboutTallymereSystem() = default;

} // namespace Tallymere
