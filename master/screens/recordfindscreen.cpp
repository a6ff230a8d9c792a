#include "master/screens/recordfindscreen.h"

#include "controls/screens/filternote.h"
#include "controls/screens/listscreen.h"
#include "controls/screens/wordsfinding.h"
#include "master/recordnumber.h"
#include "master/screens/recordpair.h"
#include "ui_recordfindscreen.h"

namespace Tallymere {

RecordFindScreen::RecordFindScreen(ScreenContext &context, const FindDialogKind &dialog, const MasterKind &kind,
                                   Engine::TableReader &records, ListScreen &list)
    : DialogScreen(context, &list)
    , m_ui(std::make_unique<Ui::RecordFindScreen>())
    , m_kind(kind)
    , m_list(list)
{
    m_ui->setupUi(this);
    setObjectName(dialog.name);
    setWindowTitle(dialog.caption);
    m_ui->editNumber->setObjectName(dialog.numberBox);
    m_ui->lblNumber->setText(dialog.numberLabel);
    m_ui->cboName->setObjectName(dialog.nameBox);
    m_ui->lblName->setText(dialog.nameLabel);

    addFilterNote(*this, list.dataSet());

    m_record = new RecordPair(m_ui->editNumber, m_ui->cboName, kind, records, guard());
    m_words = new WordsFinding(*this, *m_ui->layoutScreen, *m_ui->editNumber, list);
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &RecordFindScreen::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

RecordFindScreen::~RecordFindScreen() = default;

void RecordFindScreen::btnOKClick()
{
    if (m_words->goesOn())
        return m_words->findNext();
    int key = 0;
    m_words->runOrFind([&] { key = m_record->settle(); });
    if (key != 0)
        moveToRecord(m_list.dataSet(), m_kind, key, m_record->text());
    accept();
}

QWidget *RecordFindScreen::widgetOfColumn(const QString &) const { return m_record->numberBox(); }

} // namespace Tallymere
