#include "host/aboutbox.h"

#include "base/supportreport.h"
#include "host/company.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Tallymere {

AboutBox::AboutBox(const SettingsStore &settings, bool moduleLoaded, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_moduleLoaded(moduleLoaded)
    , m_told(new QLabel(tr("For those who help you, a report can be copied."), this))
{
    setWindowTitle(tr("About Corvane"));
    QStringList lines{tr("Corvane Client Billing"), tr("Version %1").arg(QLatin1StringView(TALLYMERE_VERSION)),
                      moduleLoaded ? tr("The inventory module is loaded.")
                                   : tr("The inventory module is not loaded.")};
    withCompany(settings, [&lines](Engine::Database &database) {
        lines << tr("Store: %1").arg(storeText(database)) << tr("Data version: %1").arg(dataVersionText(database));
    });
    auto *text = new QLabel(lines.join(u'\n'), this);
    text->setObjectName("labelAbout");
    m_told->setObjectName("labelCopied");
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto *copy = buttons->addButton(tr("Copy &Report"), QDialogButtonBox::ActionRole);
    copy->setObjectName("buttonCopyReport");
    copy->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::accept);
    connect(copy, &QPushButton::clicked, this, &AboutBox::copyReport);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(24, 20, 24, 16);
    layout->setSpacing(16);
    layout->addWidget(text);
    layout->addWidget(m_told);
    layout->addWidget(buttons);
}

void AboutBox::copyReport()
{
    const QString program = u"Corvane " TALLYMERE_VERSION
                            ", the inventory module is %1"_s.arg(m_moduleLoaded ? u"loaded"_s : u"not loaded"_s);
    const QString display = u"%1, %2 dpi"_s.arg(QGuiApplication::platformName()).arg(logicalDpiX());
    withCompany(m_settings, [&](Engine::Database &database) {
        QGuiApplication::clipboard()->setText(supportReport(program, database, display));
    });
    m_told->setText(tr("Copied. The report holds versions, no figures and no names."));
}

} // namespace Tallymere
