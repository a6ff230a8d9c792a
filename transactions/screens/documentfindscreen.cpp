#include "transactions/screens/documentfindscreen.h"

#include "controls/screens/filternote.h"
#include "controls/screens/listscreen.h"
#include "controls/screens/wordsfinding.h"
#include "transactions/documents/documentlist.h"
#include "ui_documentfindscreen.h"

namespace Tallymere {

DocumentFindScreen::DocumentFindScreen(ScreenContext &context, DocumentList &list, ListScreen &screen)
    : DialogScreen(context, &screen)
    , m_ui(std::make_unique<Ui::DocumentFindScreen>())
    , m_list(list)
{
    const DocumentKind::Find &find = *list.kind().list.find;
    m_ui->setupUi(this);
    setObjectName(find.screen);
    setWindowTitle(find.caption);
    m_ui->lblNumber->setText(find.label);
    m_ui->editNumber->setObjectName(find.box);
    addFilterNote(*this, list.table());
    m_words = new WordsFinding(*this, *m_ui->layoutScreen, *m_ui->editNumber, screen);
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &DocumentFindScreen::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

DocumentFindScreen::~DocumentFindScreen() = default;

void DocumentFindScreen::btnOKClick()
{
    if (m_words->goesOn())
        return m_words->findNext();
    m_words->runOrFind([this] { m_list.find(m_ui->editNumber->text().trimmed()); });
    accept();
}

QWidget *DocumentFindScreen::widgetOfColumn(const QString &) const { return m_ui->editNumber; }

} // namespace Tallymere
