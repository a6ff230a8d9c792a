#include "insight/screens/itemcard.h"

#include "base/formats.h"
#include "base/plural.h"
#include "controls/screens/listbuttons.h"
#include "controls/screens/recordopener.h"
#include "controls/windows/factlist.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "insight/screens/costtrailscreen.h"
#include "insight/screens/curveview.h"
#include "master/masterkinds.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/screens/documentscreens.h"

#include <algorithm>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString signedQuantity(double value) { return (value > 0 ? u"+"_s : QString()) + quantityText(value); }

QLabel *head(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QFont font = headFont(label->font());
    font.setCapitalization(QFont::AllUppercase);
    label->setFont(font);
    label->setFixedHeight(scaled(parent, Space::row)); // as those of the facts beside it
    return label;
}

FactList::Tone toneOf(double value, FactList::Tone usual) { return value < 0 ? FactList::Tone::Negative : usual; }

} // namespace

void showItemCard(ScreenContext &context, int item, QWidget *parent)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *open = qobject_cast<TfrmItemCard *>(window);
        if (open && open->isVisible() && open->item() == item)
            return bringToFront(*open);
    }
    const WaitCursor hourglass;
    auto *card = new TfrmItemCard(context, itemCard(context.data.databaseTallymere(), item), parent);
    bringToFront(*card);
}

TfrmItemCard::TfrmItemCard(ScreenContext &context, const ItemCard &card, QWidget *parent)
    : SheetWindow(context, u"frmItemCard"_s, parent)
    , m_card(card)
{
    layOut();
    showCard();
}

void TfrmItemCard::layOut()
{
    m_title = new QLabel(this);
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    m_about = new QLabel(this);
    m_about->setFont(secondFont(m_about->font()));
    m_facts = new FactList(this);
    m_why = new QPushButton(tr("&Why This Cost..."), this);
    m_why->setObjectName(u"btnWhy"_s);
    auto *movements = new QPushButton(tr("&History"), this);
    movements->setObjectName(u"btnHistory"_s);
    auto *items = new QPushButton(tr("Show in &Items"), this);
    items->setObjectName(u"btnItems"_s);
    auto *closing = new QPushButton(tr("&Close"), this);
    closing->setObjectName(u"btnClose"_s);

    m_quantity = new CurveView(CurveView::Tone::Accent, tr("Nothing has been posted."), this);
    m_quantity->setObjectName(u"chartQuantity"_s);
    m_quantity->setAccessibleName(tr("Quantity on hand"));
    m_cost = new CurveView(CurveView::Tone::Notice, tr("Nothing has been received."), this);
    m_cost->setObjectName(u"chartCost"_s);
    m_cost->setAccessibleName(tr("Average cost"));
    m_told = new QLabel(this);
    m_told->setObjectName(u"lblTold"_s);
    m_told->setMinimumHeight(scaled(this, Space::row));

    m_factsBox = new QScrollArea(this); // of many locations
    m_factsBox->setObjectName(u"boxFacts"_s);
    m_factsBox->setAccessibleName(tr("Figures"));
    m_factsBox->setFrameShape(QFrame::NoFrame);
    m_factsBox->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_factsBox->setWidgetResizable(true);
    m_factsBox->setFocusPolicy(Qt::NoFocus); // the window's Page keys scroll it
    m_facts->setContentsMargins(0, 0, scaled(this, Space::cell), 0);
    m_factsBox->setWidget(m_facts);
    auto *curves = new QVBoxLayout;
    curves->setSpacing(0);
    curves->addWidget(head(tr("Quantity"), this));
    curves->addWidget(m_quantity, 1);
    curves->addWidget(head(tr("Average cost"), this));
    curves->addWidget(m_cost, 1);
    curves->addWidget(m_told);
    auto *sides = new QHBoxLayout;
    sides->setSpacing(scaled(this, Space::part));
    sides->addWidget(m_factsBox, 2);
    sides->addLayout(curves, 3);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_why);
    buttons->addWidget(movements);
    buttons->addWidget(items);
    buttons->addStretch();
    buttons->addWidget(closing);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(scaled(this, Space::group), scaled(this, Space::group), scaled(this, Space::group),
                               scaled(this, Space::group));
    layout->addWidget(m_title);
    layout->addWidget(m_about);
    layout->addLayout(sides, 1);
    layout->addLayout(buttons);

    for (const CurveView *curve : {m_quantity, m_cost})
        connect(curve->chart(), &QChart::plotAreaChanged, this, &TfrmItemCard::alignCurves);
    connectGuarded(m_why, &QPushButton::clicked, this, &TfrmItemCard::whyThisCost);
    connectGuarded(movements, &QPushButton::clicked, this, &TfrmItemCard::history);
    connectGuarded(items, &QPushButton::clicked, this, &TfrmItemCard::showInItems);
    connect(closing, &QPushButton::clicked, this, &QWidget::close);
    for (CurveView *curve : {m_quantity, m_cost})
        connect(curve, &CurveView::told, m_told, &QLabel::setText);
    connect(m_quantity, &CurveView::chosen, this, [this](int point) {
        guard().runWhenFree([&] { openMovement(m_card.movements[m_shown[static_cast<size_t>(point)]]); });
    });
    connect(m_cost, &CurveView::chosen, this, [this](int point) {
        guard().runWhenFree([&] {
            const CostPoint &cost = m_card.costs[m_shownCosts[static_cast<size_t>(point)]];
            openDocument(DocumentKinds::receipt(), cost.receipt, cost.description);
        });
    });
}

void TfrmItemCard::readAnew()
{
    const WaitCursor hourglass;
    m_card = itemCard(context().data.databaseTallymere(), m_card.item);
    showCard();
}

void TfrmItemCard::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_PageDown || event->key() == Qt::Key_PageUp)
        QCoreApplication::sendEvent(m_factsBox->verticalScrollBar(), event);
    else
        SheetWindow::keyPressEvent(event);
}

void TfrmItemCard::showCard()
{
    setWindowTitle(tr("Item Card: %1 %2").arg(m_card.itemNo, m_card.description));
    m_title->setText(m_card.itemNo + u"  "_s + m_card.description);
    QStringList about;
    if (!m_card.typeName.isEmpty())
        about << m_card.typeName;
    if (m_card.isSuspended)
        about << tr("suspended");
    if (m_card.isThinned)
        about << tr("of its many movements the last of each day is shown");
    m_about->setText(about.join(u", "_s));
    m_about->setVisible(!about.isEmpty());
    showFacts();
    m_factsBox->setMinimumWidth(m_facts->minimumSizeHint().width()
                                + m_factsBox->verticalScrollBar()->sizeHint().width());
    showCurves();
}

void TfrmItemCard::showFacts()
{
    m_facts->clear();
    m_facts->addHead(tr("On hand"));
    for (const StockAtLocation &place : m_card.stock)
        m_facts->addFact(place.name.isEmpty() ? tr("Location %1").arg(place.location) : place.name,
                         quantityText(place.onHand), toneOf(place.onHand, FactList::Tone::Usual));
    m_facts->addFact(tr("All"), quantityText(m_card.onHand), toneOf(m_card.onHand, FactList::Tone::Total));
    m_facts->addHead(tr("Cost"));
    m_facts->addFact(tr("Average"), currencyText(m_card.averageCost));
    if (m_card.method == CostingMethod::Standard)
        m_facts->addFact(tr("Standard"), currencyText(m_card.standardCost));
    if (m_card.lastCost)
        m_facts->addFact(m_card.lastReceived.isValid() ? tr("Last, %1").arg(dateText(m_card.lastReceived))
                                                       : tr("Last"),
                         currencyText(*m_card.lastCost));
    if (m_card.value)
        m_facts->addFact(tr("Value"), currencyText(*m_card.value), FactList::Tone::Total);
    if (m_card.waiting.empty())
        return;
    m_facts->addHead(tr("Waiting to be posted"));
    for (const WaitingStock &waiting : m_card.waiting)
        m_facts->addFact(u"%1 (%2)"_s.arg(waiting.kind->list.caption, QString::number(waiting.documents)),
                         signedQuantity(waiting.change), toneOf(waiting.change, FactList::Tone::Usual));
}

// What has no date has no place on the curve; it is in what the curve begins with.
std::vector<CurvePoint> TfrmItemCard::quantityPoints()
{
    m_shown.clear();
    std::vector<CurvePoint> points;
    for (size_t i = 0; i < m_card.movements.size(); ++i) {
        const ItemMovement &movement = m_card.movements[i];
        if (!movement.date.isValid())
            continue;
        m_shown.push_back(i);
        points.push_back({movement.date, movement.onHand,
                          tr("%1, %2: %3, then %4 on hand")
                              .arg(dateText(movement.date), movement.description, signedQuantity(movement.change),
                                   quantityText(movement.onHand))});
    }
    return points;
}

std::vector<CurvePoint> TfrmItemCard::costPoints()
{
    m_shownCosts.clear();
    std::vector<CurvePoint> points;
    for (size_t i = 0; i < m_card.costs.size(); ++i) {
        const CostPoint &cost = m_card.costs[i];
        if (!cost.date.isValid())
            continue;
        m_shownCosts.push_back(i);
        points.push_back(
            {cost.date, cost.cost.toDouble(),
             tr("%1, %2: average cost %3").arg(dateText(cost.date), cost.description, currencyText(cost.cost))});
    }
    return points;
}

// One time for both, up to today, so that what stands above each other happened on the same day.
void TfrmItemCard::showCurves()
{
    std::vector<CurvePoint> quantities = quantityPoints();
    std::vector<CurvePoint> costs = costPoints();
    const QDate today = context().data.today();
    CurveTime time{today, today};
    for (const std::vector<CurvePoint> *points : {&quantities, &costs}) {
        if (points->empty())
            continue;
        time = {std::min(time.from, points->front().date), std::max(time.to, points->back().date)};
    }
    m_quantity->setPoints(std::move(quantities), time, tr("%1 on hand").arg(quantityText(m_card.onHand)));
    m_cost->setPoints(std::move(costs), time, m_card.trail.verdict());
    m_why->setEnabled(!m_card.trail.steps.empty());
}

void TfrmItemCard::alignCurves()
{
    const int room = std::max(m_quantity->roomOfFigures(), m_cost->roomOfFigures());
    for (CurveView *curve : {m_quantity, m_cost})
        curve->leaveForFigures(room);
}

void TfrmItemCard::openMovement(const ItemMovement &movement)
{
    if (movement.kind && movement.document > 0)
        openDocument(*movement.kind, movement.document, movement.description);
}

void TfrmItemCard::openDocument(const DocumentKind &kind, int key, const QString &name)
{
    if (key > 0)
        RecordOpener(context(), recordScreens(kind), this).open(key, name);
}

void TfrmItemCard::whyThisCost() { (new TfrmCostTrail(context(), m_card, parentWidget()))->show(); }

void TfrmItemCard::history()
{
    showListFiltered(context(), {u"frmInvHistory"_s, u"InvHistory/Inventory History"_s},
                     {{Fields::ItemID, m_card.item}});
}

void TfrmItemCard::showInItems()
{
    const MasterKind &items = MasterKinds::item();
    showListAt(context(), {items.list.screen, items.command.rights}, m_card.item);
}

} // namespace Tallymere
