#include "frame/aboutform.h"

#include "base/supportreport.h"
#include "ui_aboutform.h"

#include <QClipboard>

using namespace Qt::StringLiterals;

namespace Tallymere {

TFormAboutTallymereSystem::TFormAboutTallymereSystem(Engine::Database &database, QWidget *parent)
    : QDialog(parent)
    , m_database(database)
    , m_ui(std::make_unique<Ui::TFormAboutTallymereSystem>())
{
    m_ui->setupUi(this);
    m_ui->LabelVersion->setText(tr("Version %1").arg(QLatin1StringView(TALLYMERE_VERSION)));
    m_ui->LabelStore->setText(tr("Store: %1").arg(storeText(database)));
    m_ui->LabelData->setText(tr("Data version: %1").arg(dataVersionText(database)));
    connect(m_ui->ButtonCopyReport, &QPushButton::clicked, this, &TFormAboutTallymereSystem::copyReport);
}

TFormAboutTallymereSystem::~TFormAboutTallymereSystem() = default;

void TFormAboutTallymereSystem::copyReport()
{
    const QString display = u"%1, %2 dpi"_s.arg(QGuiApplication::platformName()).arg(logicalDpiX());
    QGuiApplication::clipboard()->setText(
        supportReport(QStringLiteral("Tallymere " TALLYMERE_VERSION), m_database, display));
    m_ui->LabelCopied->setText(tr("Copied. The report holds versions, no figures and no names."));
}

} // namespace Tallymere
