#include "host/aboutbox.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace Tallymere {

AboutBox::AboutBox(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("About Corvane"));
    auto *text =
        new QLabel(tr("Corvane Client Billing\nVersion %1").arg(QLatin1StringView(TALLYMERE_VERSION)), this);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::accept);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(24, 20, 24, 16);
    layout->setSpacing(16);
    layout->addWidget(text);
    layout->addWidget(buttons);
}

} // namespace Tallymere
