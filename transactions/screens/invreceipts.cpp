#include "transactions/screens/invreceipts.h"

#include "transactions/documents/documentkinds.h"
#include "transactions/screens/documentpostscreen.h"

#include <QCloseEvent>

namespace Tallymere {

TfrmInvReceipts::TfrmInvReceipts(ScreenContext &context, QWidget *parent)
    : DocumentListScreen(context, DocumentKinds::receipt(), parent)
{
    buildList();
}

void TfrmInvReceipts::closeEvent(QCloseEvent *event)
{
    guard().run([this] {
        DocumentPostScreen dialog(context(), list().kind(), this, &list());
        if (dialog.posting().count() > 0)
            post(dialog);
    });
    event->accept();
}

} // namespace Tallymere
