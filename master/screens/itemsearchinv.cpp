#include "master/screens/itemsearchinv.h"

#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "data/lookupsdatainv.h"
#include "master/barcodes.h"
#include "ui_itemsearchinv.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmItemSearchInv::TfrmItemSearchInv(ScreenContext &context, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmItemSearchInv>())
    , m_search(context.data.databaseTallymere())
{
    m_ui->setupUi(this);
    resize(scaled(this, 660), scaled(this, 420));
    m_search.open();
    m_ui->DBGrid1->setDataSet(m_search.items(),
                              {{Fields::ItemNo, tr("Item no."), 110},
                               {Fields::ItemDescription, tr("Description"), 270},
                               {Fields::TypeName, tr("Item Type"), 150},
                               {.field = ItemSearch::OnHand,
                                .title = tr("On hand"),
                                .width = 80,
                                .alignment = Qt::AlignRight,
                                .setOff = true,
                                .warnsBelowZero = true}},
                              guard());
    m_ui->cboItemType->setList(context.lookups.tblItemType(), {{Fields::TypeName, tr("Item Type"), 180}}, guard());

    connect(m_ui->editFindItemNo, &QLineEdit::textEdited, this, &TfrmItemSearchInv::typeItemNo);
    connect(m_ui->editFindItemDescription, &QLineEdit::textEdited, this, &TfrmItemSearchInv::typeDescription);
    connect(m_ui->cboItemType, &LookupComboBox::chosen, this,
            [this](int type) { guard().run([&] { m_search.setItemType(type); }); });
    connect(m_ui->DBGrid1, &ListGrid::chosen, this, &QDialog::accept);
    connect(m_ui->DBGrid1->search(), &ListSearch::changed, this, [this] {
        if (m_ui->DBGrid1->search()->isFound())
            m_missed = false;
    });
    connect(m_ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    m_ui->editFindItemNo->installEventFilter(this);
    m_ui->editFindItemDescription->installEventFilter(this);
    m_ui->cboItemType->installEventFilter(this);
}

TfrmItemSearchInv::~TfrmItemSearchInv() = default;

int TfrmItemSearchInv::choose(ScreenContext &context, QWidget *window, const Begin &begin)
{
    const QString name = u"frmItemSearch"_s;
    auto *search = findScreen<TfrmItemSearchInv>(name);
    if (!search) {
        search = new TfrmItemSearchInv(context, window->parentWidget());
        search->setObjectName(name);
    }
    // While it is open it belongs to the window, so that this is what comes back to the front.
    search->setParent(window, search->windowFlags());
    search->m_search.setLocation(begin.warehouseId);
    search->SetItemID(begin.itemId);
    search->m_typed = begin.typed;
    const bool accepted = search->exec() == QDialog::Accepted;
    search->setParent(window->parentWidget(), search->windowFlags());
    window->activateWindow();
    return accepted ? search->GetItemID() : 0;
}

void TfrmItemSearchInv::SetItemID(int itemId)
{
    m_search.open();
    m_search.reset();
    m_search.setItemId(itemId);
}

int TfrmItemSearchInv::GetItemID() const { return m_search.itemId(); }

void TfrmItemSearchInv::showStep()
{
    const int itemId = m_search.itemId();
    m_ui->cboItemType->setChosenId(0);
    m_search.reset();
    m_search.setItemId(itemId);
    m_ui->editFindItemNo->setText(m_typed);
    m_ui->editFindItemDescription->clear();
    m_ui->editFindItemNo->setFocus();
    m_erases = false;
    m_missed = !m_typed.isEmpty(); // until it is found
    if (m_missed)
        typeItemNo(m_typed);
}

// A box that gets the cursor selects its text. Typing goes on behind what was typed before, though.
void TfrmItemSearchInv::continueTyping()
{
    if (!std::exchange(m_typed, {}).isEmpty())
        m_ui->editFindItemNo->end(false);
}

void TfrmItemSearchInv::typeItemNo(const QString &text)
{
    if (std::exchange(m_erases, false))
        m_missed = m_missed && !m_search.items().text(Fields::ItemNo).startsWith(text);
    else
        guard().run([&] { noteFound(m_search.typeItemNo(text)); });
}

void TfrmItemSearchInv::typeDescription(const QString &text)
{
    if (std::exchange(m_erases, false))
        m_missed = m_missed && !m_search.items().text(Fields::ItemDescription).startsWith(text);
    else
        guard().run([&] { noteFound(m_search.typeDescription(text)); });
}

void TfrmItemSearchInv::noteFound(bool found)
{
    m_missed = !found;
    if (m_missed)
        QApplication::beep();
}

// The next item that has the words of the box anywhere, of whatever case.
void TfrmItemSearchInv::findAnywhere()
{
    auto *box = qobject_cast<QLineEdit *>(focusWidget());
    if (box && !box->text().trimmed().isEmpty())
        m_ui->DBGrid1->search()->findNext(box->text());
}

// As a scanner has sent it into the box.
void TfrmItemSearchInv::findByBarcode()
{
    const std::optional<int> item =
        itemOfBarcode(context().data.databaseTallymere(), m_ui->editFindItemNo->text().trimmed());
    if (!item)
        return;
    m_search.reset();
    m_search.setItemId(*item);
    m_missed = false;
}

bool TfrmItemSearchInv::eventFilter(QObject *watched, QEvent *event)
{
    // By then the dialog has shown itself, and given its box the cursor.
    if (event->type() == QEvent::Paint || event->type() == QEvent::KeyPress)
        continueTyping();
    if (event->type() != QEvent::KeyPress)
        return false;
    auto *key = static_cast<QKeyEvent *>(event);
    return watched == m_ui->cboItemType ? takeTypeKey(*key) : takeSearchKey(*key);
}

// Enter narrows the list to the type first. Pressing OK with it would choose an item that nobody has seen.
bool TfrmItemSearchInv::takeTypeKey(const QKeyEvent &key)
{
    if (!isEnter(key) || !m_ui->cboItemType->isPending())
        return false;
    m_ui->cboItemType->settle();
    return true;
}

// From a search box the arrow keys move in the list. Taking characters away moves nothing. Enter does not choose a row
// that what is typed has not led to: only a beep has told of it.
bool TfrmItemSearchInv::takeSearchKey(QKeyEvent &key)
{
    m_erases = key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Delete || key.matches(QKeySequence::Cut);
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        m_missed = false;
        QCoreApplication::sendEvent(m_ui->DBGrid1, &key);
        return true;
    case Qt::Key_F3:
        findAnywhere();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_missed)
            guard().run([this] { findByBarcode(); });
        if (m_missed)
            context().prompts.error(tr("Item not found. F3 looks for the words anywhere."));
        return m_missed;
    default:
        return false;
    }
}

} // namespace Tallymere
