#pragma once

#include "controls/screens/sheetwindow.h"
#include "insight/itemcard.h"

#include <vector>

class QLabel;
class QPushButton;
class QScrollArea;

namespace Tallymere {

class CurveView;
struct CurvePoint;
class FactList;

// The card of an item: where it is, what it costs, what waits to be posted, and the ways of quantity and average cost,
// from whose points the documents behind them are opened.
class TfrmItemCard final : public SheetWindow
{
    Q_OBJECT

public:
    TfrmItemCard(ScreenContext &context, const ItemCard &card, QWidget *parent);

    int item() const { return m_card.item; }
    void whyThisCost();
    void history();
    void showInItems();

protected:
    void readAnew() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void layOut();
    void showCard();
    void showFacts();
    void showCurves();
    void alignCurves();
    std::vector<CurvePoint> quantityPoints();
    std::vector<CurvePoint> costPoints();
    void openMovement(const ItemMovement &movement);
    void openDocument(const DocumentKind &kind, int key, const QString &name);

    ItemCard m_card;
    QLabel *m_title;
    QLabel *m_about;
    FactList *m_facts;
    QScrollArea *m_factsBox;
    CurveView *m_quantity;
    CurveView *m_cost;
    QLabel *m_told;
    QPushButton *m_why;
    std::vector<size_t> m_shown; // movements and costs that the curves have points of
    std::vector<size_t> m_shownCosts;
};

// Brings the card of the item to the front, or opens it, for the main window. Throws RuleError when there is no such item.
void showItemCard(ScreenContext &context, int item, QWidget *parent);

} // namespace Tallymere
