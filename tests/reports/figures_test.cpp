#include "data/layouts.h"
#include "data/transtypes.h"
#include "reports/reportlist.h"
#include "tests/reports/reportcsvof.h"
#include "tests/support/bothstores.h"
#include "tests/support/chance.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Quantities are counted in eighths and costs in units of 0.0001, so that everything here is whole numbers.
struct Item
{
    int type = 0; // 0: none
    int account = 0;
    qint64 standard = 0;
    qint64 average = 0;
};
struct Balance
{
    int item, location;
    qint64 eighths;
};
struct Entry
{
    int item, location, type, year, period, day;
    qint64 eighths;
    QString about;
};

QString number(double value) { return QString::number(value + 0.0, 'g', 12); }
QString cost(qint64 units) { return number(static_cast<double>(units) / 1e4); }
QString quantity(qint64 eighths) { return number(static_cast<double>(eighths) / 8); }

QString nameOf(QChar letter, int key, int known)
{
    return key >= 1 && key <= known ? letter + QString::number(99 - key) : QString();
}
QString itemNo(int item) { return nameOf(u'N', item, 10); } // 11 and 12 are gone
QString locationName(int location) { return nameOf(u'L', location, 3); } // 4 is gone

// Stock and history as chance would have it, in a store and here.
class Books : public TestStore
{
public:
    Books(Store store, unsigned seed)
        : TestStore(store)
        , m_random(seed)
    {
        for (const Engine::TableLayout *layout : Layouts::applied())
            database().createTable(*layout);
        execute(u"INSERT INTO ItemType (ItemTypeID, TypeName, CostingMethod) "
                "VALUES (1, 'T98', 1), (2, 'T97', 2), (3, 'T96', NULL), (4, NULL, 1);"
                "INSERT INTO GLAccnt (GLAccountID, GLAccount) VALUES (1, 'A98'), (2, 'A97');"
                "INSERT INTO Warehse (WarehouseID, WarehouseName) VALUES (1, 'L98'), (2, 'L97'), (3, 'L96')"_s);
        QStringList rows;
        for (int key = 1; key <= 12; ++key) {
            Item &item = items[key];
            if (key > 10)
                continue;
            item = {oneOf({0, 1, 2, 3, 4, 9}), oneOf({0, 1, 2, 7}), below(90'000), below(90'000)};
            if (key == 1)
                item = {1, 1, 5, 10'050}; // three of these are worth 3.015, and so 3.02
            rows += filledIn(u"(%1, '%2', %3, %4, %5, %6)"_s, key, itemNo(key), orNull(item.type),
                             orNull(item.account), cost(item.standard), cost(item.average));
        }
        insert(u"Item (ItemID, ItemNo, ItemTypeID, InventoryGLAccountID, StandardCost, WgtAvgCost)"_s, rows);
        addBalances();
        addEntries();
    }

    std::map<int, Item> items;
    std::vector<Balance> balances;
    std::vector<Entry> entries; // in the order of time

    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }

private:
    int oneOf(const std::vector<int> &values) { return values[m_random() % values.size()]; }
    static QString orNull(int key) { return key ? QString::number(key) : u"NULL"_s; }
    void insert(const QString &into, const QStringList &rows)
    {
        execute(u"INSERT INTO "_s + into + " VALUES "_L1 + rows.join(u','));
    }

    void addBalances()
    {
        balances.push_back({1, 1, 24});
        for (int item = 1; item <= 12; ++item)
            for (int location = 1; location <= 4; ++location)
                if (item + location > 2 && below(3) > 0)
                    balances.push_back({item, location, below(800) - 250});
        QStringList rows;
        for (const Balance &balance : balances)
            rows += u"(%1, %2, %3)"_s.arg(balance.item).arg(balance.location).arg(quantity(balance.eighths));
        insert(u"IBalance (ItemID, WarehouseID, QtyOnHand)"_s, rows);
    }

    void addEntries()
    {
        QStringList rows;
        for (int i = 0; i < 500; ++i) {
            entries.push_back({1 + below(13), 1 + below(4), below(6), 2025 + below(2), 1 + below(12), 1 + below(5),
                               below(300) - 80, u"M%1"_s.arg(i)});
            const Entry &entry = entries.back();
            rows += filledIn(u"(%1, %2, %3, %4, %5, '2026-03-0%6', %7, '%8')"_s, entry.item, entry.location,
                             entry.type, entry.year, entry.period, entry.day, quantity(entry.eighths), entry.about);
        }
        insert(u"IHist (ItemID, WarehouseID, TransType, GLYear, GLPeriod, TransDate, Quantity, TransDescription)"_s,
               rows);
        std::ranges::stable_sort(
            entries, {}, [](const Entry &entry) { return std::tuple(entry.year, entry.period, entry.day); });
    }

    std::mt19937 m_random;
};

// What a report's name says of it.
struct Shape
{
    QString name;
    bool isValue = name.startsWith("Value"_L1);
    bool isSummary = name.startsWith("Perpetual Summary"_L1);
    bool byLocation = name.contains("/Location"_L1);
    QString outer = name.contains("by Type"_L1) ? u"TypeName"_s
        : name.contains("by GL Account"_L1)     ? u"GLAccount"_s
                                                : QString(); // what the items are grouped by
};

// The figures of a shape in the order of its columns.
QStringList figureFields(const Shape &shape)
{
    if (shape.isSummary)
        return {u"OpeningBalance"_s, u"Receipts"_s, u"Adjustments"_s, u"Sales"_s, u"ClosingBalance"_s};
    if (!shape.isValue)
        return {u"Quantity"_s, u"Balance"_s};
    return shape.byLocation ? QStringList{u"QtyOnHand"_s, u"UnitCost"_s, u"ItemWhseValue"_s}
                            : QStringList{u"ItemQtyOnHand"_s, u"UnitCost"_s, u"ItemValue"_s};
}

// The lines of a report as texts "band|outer|item|location|type|about|figures", computed from the books here.
class Expected
{
public:
    Expected(const Books &books, const Shape &shape, const ReportSelection &selection)
        : m_books(books)
        , m_shape(shape)
        , m_selection(selection)
    {
        const Account *last = nullptr;
        const std::vector<Account> accounts = chosenAccounts();
        for (const Account &account : accounts) {
            if (last)
                endGroups(*last, account.outerKey != last->outerKey, account.item != last->item);
            shape.isValue ? addValue(account) : shape.isSummary ? addSummary(account) : addMovements(account);
            last = &account;
        }
        if (last)
            endGroups(*last, true, true);
        if (shape.isValue)
            total(u"report total"_s, {}, {}, m_report);
    }

    QStringList lines;

private:
    struct Account
    {
        QString outer;
        int outerKey = 0;
        int item = 0;
        int location = 0;
        qint64 onHand = 0;
    };
    using Sums = std::array<qint64, 5>; // by column; values in cents

    std::vector<Account> chosenAccounts() const
    {
        std::vector<Account> accounts;
        for (const Balance &balance : m_books.balances) {
            const Item &item = m_books.items.at(balance.item);
            if ((m_selection.warehouseId > 0 && balance.location != m_selection.warehouseId)
                || (m_selection.itemTypeId > 0 && item.type != m_selection.itemTypeId))
                continue;
            Account account{{}, 0, balance.item, m_shape.byLocation ? balance.location : 0, balance.eighths};
            if (m_shape.outer == "TypeName"_L1)
                account.outer = nameOf(u'T', account.outerKey = item.type, 3); // 4 has no name, 9 is gone
            if (m_shape.outer == "GLAccount"_L1)
                account.outer = nameOf(u'A', account.outerKey = item.account, 2); // 7 is gone
            const auto same = std::ranges::find_if(accounts, [&account](const Account &other) {
                return other.item == account.item && other.location == account.location;
            });
            if (same == accounts.end())
                accounts.push_back(account);
            else
                same->onHand += balance.eighths;
        }
        std::ranges::sort(accounts, {}, [](const Account &account) {
            return std::tuple(account.outer, account.outerKey, itemNo(account.item), account.item,
                              locationName(account.location));
        });
        const bool types = m_shape.outer == "TypeName"_L1;
        for (Account &account : accounts)
            if (!m_shape.outer.isEmpty() && account.outer.isEmpty())
                account.outer = account.outerKey == 0
                    ? (types ? u"No type"_s : u"No account"_s)
                    : (types ? u"Type %1"_s : u"Account %1"_s).arg(account.outerKey);
        return accounts;
    }

    std::vector<Entry> entriesOf(const Account &account) const
    {
        std::vector<Entry> own;
        std::ranges::copy_if(m_books.entries, std::back_inserter(own), [&](const Entry &entry) {
            return entry.item == account.item && (!account.location || entry.location == account.location)
                && (m_selection.warehouseId <= 0 || entry.location == m_selection.warehouseId)
                && std::tuple(entry.year, entry.period) >= std::tuple(m_selection.year, m_selection.period);
        });
        return own;
    }

    static qint64 change(const Entry &entry)
    {
        return entry.type == 2 || entry.type == 5 ? -entry.eighths : entry.eighths;
    }

    void addValue(const Account &account)
    {
        const Item &item = m_books.items.at(account.item);
        const qint64 unitCost = item.type == 2 ? item.standard : item.average;
        const qint64 worth = account.onHand * unitCost; // in 1/80000
        const qint64 cents = (std::abs(worth) + 400) / 800 * (worth < 0 ? -1 : 1);
        if (m_shape.name != "Value by Type"_L1)
            add(u"detail"_s, account.outer, itemNo(account.item), locationName(account.location), {},
                {quantity(account.onHand), cost(unitCost), money(cents)});
        sumUp({account.onHand, 0, cents});
    }

    void addMovements(const Account &account)
    {
        const std::vector<Entry> own = entriesOf(account);
        qint64 balance = account.onHand;
        for (const Entry &entry : own)
            balance -= change(entry);
        const QString location = locationName(account.location);
        add(u"opening"_s, account.outer, itemNo(account.item), location, {}, {{}, quantity(balance)});
        for (const Entry &entry : own) {
            balance += change(entry);
            add(u"detail"_s, account.outer, itemNo(account.item), location,
                transTypeText(entry.type) + u'|' + entry.about, {quantity(entry.eighths), quantity(balance)});
        }
        sumUp({0, balance});
    }

    void addSummary(const Account &account)
    {
        qint64 receipts = 0, adjustments = 0, sales = 0, closing = account.onHand;
        for (const Entry &entry : entriesOf(account)) {
            const bool within = entry.year == m_selection.year && entry.period == m_selection.period;
            if (!within)
                closing -= change(entry);
            else if (entry.type == 1)
                adjustments += entry.eighths;
            else if (entry.type == 3)
                receipts += entry.eighths;
            else if (entry.type == 2 || entry.type == 5)
                sales += entry.eighths;
        }
        const Sums figures{closing - receipts - adjustments + sales, receipts, adjustments, sales, closing};
        QStringList texts;
        std::ranges::transform(figures, std::back_inserter(texts), quantity);
        add(u"detail"_s, account.outer, itemNo(account.item), {}, {}, texts);
        sumUp(figures);
    }

    void endGroups(const Account &last, bool outerEnds, bool itemEnds)
    {
        if ((itemEnds || outerEnds) && m_shape.byLocation)
            total(u"group total"_s, last.outer, itemNo(last.item), m_item);
        m_item = itemEnds || outerEnds ? Sums() : m_item;
        if (!outerEnds || m_shape.outer.isEmpty())
            return;
        total(u"group total"_s, last.outer, {}, m_outer);
        m_outer = Sums();
    }

    void total(const QString &band, const QString &outer, const QString &item, const Sums &sums)
    {
        QStringList figures;
        // Pieces and kilograms of different items do not add up.
        const bool withQuantity = m_shape.byLocation && m_shape.outer.isEmpty() && band == "group total"_L1;
        if (m_shape.isValue)
            figures = {withQuantity ? quantity(sums[0]) : QString(), QString(), money(sums[2])};
        else if (!m_shape.isSummary)
            figures = {QString(), quantity(sums[1])};
        else
            std::ranges::transform(sums, std::back_inserter(figures), quantity);
        add(band, outer, item, {}, {}, figures);
    }

    void sumUp(const Sums &figures)
    {
        for (Sums *sums : {&m_item, &m_outer, &m_report})
            for (size_t i = 0; i < figures.size(); ++i)
                (*sums)[i] += figures[i];
    }

    static QString money(qint64 cents) { return number(static_cast<double>(cents) / 100); }

    void add(const QString &band, const QString &outer, const QString &item, const QString &location,
             const QString &about, const QStringList &figures)
    {
        lines +=
            QStringList{band, outer, item, location, about.isEmpty() ? u"|"_s : about, figures.join(u'|')}.join(
                u'|');
    }

    const Books &m_books;
    const Shape &m_shape;
    const ReportSelection &m_selection;
    Sums m_item{}, m_outer{}, m_report{};
};

// What the program makes, as Expected has the lines.
QStringList linesOf(Books &books, const Shape &shape, const ReportDescription &report,
                    const ReportSelection &selection)
{
    QList<QStringList> rows = csvRows(csvOf({report.layout, report.rows(books.database(), report, selection)}));
    const QStringList header = rows.takeFirst();
    QStringList lines;
    for (const QStringList &row : rows) {
        QStringList line;
        for (const QString &name :
             {u"Band"_s, shape.outer, u"ItemNo"_s, u"WarehouseName"_s, u"TransTypeName"_s, u"TransDescription"_s})
            line += row.value(header.indexOf(name));
        for (const QString &name : figureFields(shape)) {
            const QString text = row.value(header.indexOf(name));
            line += text.isEmpty() ? text : number(text.toDouble());
        }
        lines += line.join(u'|');
    }
    return lines;
}

// The numbers on its pages: "(1,234.50)" is -1234.5.
QSet<QString> printedFigures(Books &books, const ReportDescription &report, const ReportSelection &selection)
{
    Printing::ReportRun run({report.layout, report.rows(books.database(), report, selection)}, QPageSize::A4, {});
    run.makePages();
    QSet<QString> figures;
    for (int i = 0; i < run.pageCount(); ++i)
        for (const Printing::TextItem &item : run.page(i).texts) {
            bool isNumber = false;
            QString text = item.text;
            const double value = text.remove(u',').replace(u'(', u'-').remove(u')').toDouble(&isNumber);
            figures << (isNumber ? number(value) : QString());
        }
    return figures;
}

std::vector<ReportSelection> selectionsFor(const ReportDescription &report, Books &books)
{
    std::vector<ReportSelection> selections{{.period = 1, .year = 2025}, {.year = 2027}}; // all history, and none
    for (int location = 0; location <= (report.parameters.location ? 4 : 0); ++location)
        for (const int type : report.parameters.itemType ? std::vector{0, 1, 2, 9} : std::vector{0})
            selections.push_back({.warehouseId = location,
                                  .itemTypeId = type,
                                  .period = 1 + books.below(12),
                                  .year = 2025 + books.below(2)});
    return selections;
}

using Figures = testing::TestWithParam<Store>;
ON_BOTH_STORES(Figures);

TEST_P(Figures, EqualASecondComputationAndArePrinted)
{
    const unsigned seed = chanceSeed();
    SCOPED_TRACE(testing::Message() << "TALLYMERE_TEST_SEED=" << seed);
    Books books(GetParam(), seed);
    for (const ReportDescription &report : ReportList::valueReports() + ReportList::perpetualReports()) {
        if (!report.rows)
            continue;
        SCOPED_TRACE(qPrintable(report.listText));
        const Shape shape{report.listText};
        for (const ReportSelection &selection : selectionsFor(report, books)) {
            const QStringList expected = Expected(books, shape, selection).lines;
            ASSERT_EQ(linesOf(books, shape, report, selection), expected)
                << "location " << selection.warehouseId << ", type " << selection.itemTypeId << ", period "
                << selection.period << '/' << selection.year;
            const QSet<QString> printed = printedFigures(books, report, selection);
            for (const QString &line : expected.filter(QRegularExpression(u"^(detail|report total)"_s)))
                for (const QString &figure : line.split(u'|').mid(6))
                    ASSERT_TRUE(figure.isEmpty() || printed.contains(figure)) << qPrintable(line);
        }
    }
}

} // namespace
