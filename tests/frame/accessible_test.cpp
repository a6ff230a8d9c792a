#include "tests/frame/hoststub.h"
#include "tests/support/teststore.h"

#include <QAccessible>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Accessible = QAccessibleInterface;

namespace {

Accessible *findIn(Accessible *root, QAccessible::Role role, const QString &name)
{
    if (!root || root->state().invisible)
        return nullptr;
    if (root->role() == role && root->text(QAccessible::Name) == name)
        return root;
    if (root->tableInterface()) // its cells are asked for by row and column
        return nullptr;
    for (int i = 0; i < root->childCount(); ++i)
        if (Accessible *found = findIn(root->child(i), role, name))
            return found;
    return nullptr;
}

// Driven as those do who cannot see it: through the accessibility tree alone. Controls are found by their role and their
// name, and used by the actions, texts and values that they offer there. What it does not have makes the test fail.
class Window
{
public:
    // By the beginning of its title when it comes, which may become another one.
    explicit Window(const QString &title)
    {
        EXPECT_TRUE(comesTrue([&] {
            Accessible *program = QAccessible::queryAccessibleInterface(qApp);
            for (int i = 0; i < program->childCount() && !m_window; ++i)
                if (Accessible *window = program->child(i);
                    window && !window->state().invisible && window->text(QAccessible::Name).startsWith(title))
                    m_window = window->object();
            return !m_window.isNull();
        })) << qPrintable(title);
    }

    void expectGone() const
    {
        EXPECT_TRUE(comesTrue([this] { return !m_window || root()->state().invisible; }));
    }
    // What a button does comes a moment after it.
    void press(const QString &button) const
    {
        Accessible *found = find(QAccessible::PushButton, button);
        ASSERT_TRUE(found && !found->state().disabled) << qPrintable(button);
        found->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    void fill(const QString &field, const QString &text) const
    {
        put(find(QAccessible::EditableText, field), text);
    }
    void choose(const QString &box, const QString &text) const { put(find(QAccessible::ComboBox, box), text); }

    // Cells by the titles of their columns.
    QAccessibleTableInterface &table(const QString &name) const
    {
        return *find(QAccessible::Table, name)->tableInterface();
    }
    Accessible *cell(const QString &name, int row, const QString &title) const
    {
        QAccessibleTableInterface &cells = table(name);
        int column = 0;
        while (column < cells.columnCount() && cells.columnDescription(column) != title)
            ++column;
        EXPECT_LT(column, cells.columnCount()) << qPrintable(title);
        return cells.cellAt(row, column);
    }
    QString textAt(const QString &name, int row, const QString &title) const
    {
        return cell(name, row, title)->text(QAccessible::Name);
    }
    void enter(const QString &name, int row, const QString &title, const QString &text) const
    {
        put(cell(name, row, title), text);
    }

private:
    Accessible *root() const { return QAccessible::queryAccessibleInterface(m_window); }
    Accessible *find(QAccessible::Role role, const QString &name) const
    {
        Accessible *found = findIn(root(), role, name);
        EXPECT_NE(found, nullptr) << qPrintable(name);
        return found;
    }
    static void put(Accessible *control, const QString &text)
    {
        if (control)
            control->setText(QAccessible::Value, text);
        QCoreApplication::processEvents();
    }

    QPointer<QObject> m_window;
};

void receiveAndPost(SpokenPrompts &prompts)
{
    const Window main(u"Corvane Tallymere"_s);
    main.press(u"Receive Inventory"_s);
    const Window receipts(u"Inventory Receipts"_s);
    receipts.press(u"New"_s);
    const Window receipt(u"New Inventory Receipt"_s);
    receipt.choose(u"Vendor name"_s, u"North Mill"_s);
    receipt.choose(u"Warehouse"_s, u"Cellar"_s);
    receipt.fill(u"Purchase Order no."_s, u"PO 77"_s);
    const QStringList lines[] = {{u"12"_s, u"A10"_s, u"1.25"_s}, {u"3"_s, u"B1"_s, u"2"_s}};
    for (int row = 0; row < 2; ++row) {
        receipt.press(u"New Line"_s);
        ASSERT_TRUE(comesTrue([&] { return receipt.table(u"Lines"_s).rowCount() == row + 1; }));
        receipt.enter(u"Lines"_s, row, u"Quantity"_s, lines[row][0]);
        receipt.enter(u"Lines"_s, row, u"Item no."_s, lines[row][1]);
        receipt.enter(u"Lines"_s, row, u"Unit Cost"_s, lines[row][2]);
    }
    EXPECT_EQ(receipt.textAt(u"Lines"_s, 0, u"Description"_s), u"Apples"_s);
    EXPECT_EQ(receipt.textAt(u"Lines"_s, 0, u"After"_s), u"12"_s);
    receipt.enter(u"Lines"_s, 1, u"Item no."_s, u"none such"_s); // is refused, and said
    EXPECT_FALSE(prompts.take().isEmpty());
    receipt.enter(u"Lines"_s, 1, u"Item no."_s, u"B1"_s);
    receipt.press(u"OK"_s);
    receipt.expectGone();
    EXPECT_EQ(receipts.textAt(u"Inventory Receipts"_s, 0, u"PO"_s), u"PO 77"_s);

    bool isDone = false;
    const auto post = [&] {
        main.press(u"Post Receipts"_s);
        EXPECT_TRUE(comesTrue([&] { return isDone; }));
    };
    EXPECT_TRUE(whileOpen<QDialog>(post, [&](QDialog &) {
        const Window posting(u"Post Inventory Receipts"_s);
        posting.press(u"OK"_s);
        posting.expectGone();
        isDone = true;
    }));
}

} // namespace

// The product as its host opens it, over a company with two vendors and two items.
TEST(AccessibleTest, ADaysReceivingNeedsNoEyes)
{
    QAccessible::setActive(true);
    TestContext over;
    over.fill();
    HostStub host;
    const ScreenRegistry screens = productScreens();
    TFormTallymereSystem system({over.company.settings, over.company.prompts, screens});
    system.init(&host);
    QTimer::singleShot(0, &system, [&] {
        receiveAndPost(over.company.prompts);
        system.close();
    });
    system.formTallymereSystemShowModal();
    QAccessible::setActive(false);
    EXPECT_EQ(over.company.prompts.take(), QStringList());
    const auto rows = [&](const QString &sql) { return rowsOf(over.data.databaseTallymere(), sql); };
    EXPECT_EQ(rows(u"SELECT VendorID, WarehouseID, PurchaseOrderNo, Posted FROM IReceipt"_s),
              QStringList{u"2|7|PO 77|true"_s});
    EXPECT_EQ(rows(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance ORDER BY ItemID"_s),
              (QStringList{u"1|7|12"_s, u"2|7|3"_s}));
}
