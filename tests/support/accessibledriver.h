#pragma once

#include "tests/support/screendriver.h"

#include <QAccessible>

// Drives screens as those do who cannot see them: through the accessibility tree alone. Controls are found by their role and
// their name, and used by the actions, texts and values that they offer there.
namespace Accessible {

inline QAccessibleInterface *findIn(QAccessibleInterface *root, QAccessible::Role role, const QString &name)
{
    if (!root || root->state().invisible)
        return nullptr;
    if (root->role() == role && root->text(QAccessible::Name) == name)
        return root;
    if (root->tableInterface()) // its cells are asked for by row and column
        return nullptr;
    for (int i = 0; i < root->childCount(); ++i) {
        if (QAccessibleInterface *found = findIn(root->child(i), role, name))
            return found;
    }
    return nullptr;
}

// A window by the beginning of its title when it comes. What it does not have makes the test fail.
class Window
{
public:
    explicit Window(QString title)
        : m_title(std::move(title))
    {
    }

    bool isOpen() const { return root() != nullptr; }
    const Window &whenOpen() const
    {
        EXPECT_TRUE(comesTrue([this] { return isOpen(); })) << qPrintable(m_title);
        return *this;
    }
    void expectGone() const
    {
        EXPECT_TRUE(comesTrue([this] { return !isOpen(); })) << qPrintable(m_title);
    }

    // What a button does comes a moment after it.
    void press(const QString &button) const
    {
        QAccessibleInterface *found = find(QAccessible::PushButton, button);
        if (found && !found->state().disabled)
            found->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        else
            ADD_FAILURE() << qPrintable(button);
    }
    // Presses a button that opens a dialog, and does something there. It ends with the dialog.
    void press(const QString &button, const QString &dialog, const std::function<void(const Window &)> &step) const
    {
        const Window opened(dialog);
        bool came = false;
        QTimer watch;
        watch.callOnTimeout([&] {
            if (came || !opened.isOpen())
                return;
            came = true;
            step(opened);
        });
        watch.start(0);
        press(button);
        EXPECT_TRUE(comesTrue([&] { return came && !opened.isOpen(); })) << qPrintable(dialog);
    }
    void fill(const QString &field, const QString &text) const
    {
        put(find(QAccessible::EditableText, field), text);
    }
    void choose(const QString &box, const QString &text) const { put(find(QAccessible::ComboBox, box), text); }

    int rowsOf(const QString &table) const { return tableOf(table)->rowCount(); }
    // Cells by the titles of their columns.
    QString textAt(const QString &table, int row, const QString &title) const
    {
        return cell(table, row, title)->text(QAccessible::Name);
    }
    void enter(const QString &table, int row, const QString &title, const QString &text) const
    {
        put(cell(table, row, title), text);
    }

private:
    QAccessibleInterface *root() const
    {
        if (m_window) {
            QAccessibleInterface *window = QAccessible::queryAccessibleInterface(m_window);
            return window->state().invisible ? nullptr : window;
        }
        QAccessibleInterface *program = QAccessible::queryAccessibleInterface(qApp);
        for (int i = 0; i < program->childCount(); ++i) {
            QAccessibleInterface *window = program->child(i);
            if (window && !window->state().invisible && window->text(QAccessible::Name).startsWith(m_title)) {
                m_window = window->object();
                return window;
            }
        }
        return nullptr;
    }
    QAccessibleInterface *find(QAccessible::Role role, const QString &name) const
    {
        QAccessibleInterface *found = findIn(root(), role, name);
        EXPECT_NE(found, nullptr) << qPrintable(m_title) << " has no " << qPrintable(name);
        return found;
    }
    QAccessibleTableInterface *tableOf(const QString &name) const
    {
        return find(QAccessible::Table, name)->tableInterface();
    }
    QAccessibleInterface *cell(const QString &table, int row, const QString &title) const
    {
        QAccessibleTableInterface *cells = tableOf(table);
        int column = 0;
        while (column < cells->columnCount() && cells->columnDescription(column) != title)
            ++column;
        EXPECT_LT(column, cells->columnCount()) << qPrintable(title);
        return cells->cellAt(row, column);
    }
    static void put(QAccessibleInterface *control, const QString &text)
    {
        if (control)
            control->setText(QAccessible::Value, text);
        QCoreApplication::processEvents();
    }

    QString m_title;
    mutable QPointer<QObject> m_window; // once it has been found: its title may become another one
};

} // namespace Accessible
