#pragma once

#include "controls/screens/entryscreen.h"
#include "data/lastchoices.h"
#include "transactions/counting/stockcount.h"

#include <memory>
#include <QPointer>

namespace Ui {
class TFormEnterInventory;
}

namespace Tallymere {

class CountSearch;
class TfrmPhoneCount;

// "Enter Inventory": the stock at a location is counted, and what has been used becomes a usage document.
//
// An item number typed or scanned into the search box leads to the item's quantity, and Enter there to the next one.
// A blind count hides what the books hold until it has been calculated, so that nobody writes that down in place of counting.
// What is counted is kept on this machine until it has been calculated; closing asks whether to keep it.
class TFormEnterInventory final : public EntryScreen
{
    Q_OBJECT

public:
    TFormEnterInventory(ScreenContext &context, QWidget *parent);
    ~TFormEnterInventory() override;

    void bitBtnOKClick();
    void actionCalculateConsumptionExecute();
    void btnDifferencesClick();
    void btnPhoneClick(); // the page for phones is begun, or its window shown again

protected:
    Pending pending() const override;
    void saveChanges() override; // they are kept for later, or it stays open
    void dropChanges() override { m_count.dropDraft(); }
    std::optional<int> savedKey() const override { return std::nullopt; }
    QString caption() const override { return tr("Enter Inventory"); }
    QString recordName() const override { return {}; }
    QString closingQuestion() const override;
    bool focusColumn(const QString &column) override;
    bool takeKey(QKeyEvent *event) override;
    void firstShown() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectControls();
    void showItemCard(); // of the item with the cursor
    void takeScan(const QString &code);
    void fillLocations();
    void closeList();
    void locationChosen(int index);
    bool locationKey(QKeyEvent &key);
    bool openLocation(int index); // true: a kept count goes on
    bool offerDraft();
    void resume(const CountDraft &draft);
    void readAgain();
    void zeroCountsChosen();
    ZeroCounts zeroCountsWanted() const;
    bool mayLoseCounts(const QString &question);

    void sortBy(CountList::Order order);
    void blindChosen();
    bool hidesBooks() const;
    void showBooks(); // or hides them

    void countItem(int item, std::optional<double> quantity);
    void confirmOverPhone(int item, double quantity);
    void countedByPhone(int item);
    void stopPhones();
    QString phonesText() const;
    void dateChosen();
    void askAboutDate(QDate date, QDate before);
    bool hasCountableDate() const;
    bool isReady() const;
    void showReady();
    void showList();
    void showStatus(const QString &said = {});
    QString statusText() const;
    QString cutFiguresText() const;
    QString calculationQuestion() const;
    QString hintText() const;

    const std::unique_ptr<Ui::TFormEnterInventory> m_ui;
    StockCount m_count;
    const LastChoices m_last;
    CountSearch *m_search = nullptr;
    QPointer<TfrmPhoneCount> m_phones; // while the count is served to phones
    std::optional<qint64>
        m_overtaken; // the item under the cursor, if a phone has counted it since the cursor came there
    bool m_calculating = false;
    int m_chosen = -1; // the location of the list, by its place in the box
};

} // namespace Tallymere
