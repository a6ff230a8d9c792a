#include "transactions/screens/invadjustment.h"

#include "transactions/documents/documentkinds.h"
#include "transactions/kinds/adjustmententry.h"
#include "ui_invadjustment.h"

#include <QKeyEvent>

namespace Tallymere {

TfrmInvAdjustment::TfrmInvAdjustment(ScreenContext &context, QWidget *parent)
    : DocumentScreen(context, DocumentKinds::adjustment(), parent)
    , m_ui(std::make_unique<Ui::TfrmInvAdjustment>())
{
    m_ui->setupUi(this);
    buildDocument({.searchOnEntering = true, .backToStart = true});
    m_ui->editAdjDate->installEventFilter(this); // after its mask, which takes no signs
}

TfrmInvAdjustment::~TfrmInvAdjustment() = default;

AdjustmentEntry &TfrmInvAdjustment::adjustment() const { return static_cast<AdjustmentEntry &>(entry()); }

bool TfrmInvAdjustment::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_ui->editAdjDate || event->type() != QEvent::KeyPress)
        return DocumentScreen::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Plus && key != Qt::Key_Minus)
        return DocumentScreen::eventFilter(watched, event);
    guard().run([this, key] {
        binder().commit(); // a date that is being typed, or has just been cleared, is the one to step from
        adjustment().stepDate(key == Qt::Key_Plus ? 1 : -1);
    });
    return true;
}

} // namespace Tallymere
