#pragma once

#include "engine/records/table.h"

#include <functional>
#include <memory>

class QWidget;

namespace Tallymere {

// One widget tied to one field.
class FieldBinding
{
public:
    // What a binding reports to the form: that the user has begun an entry, that one is complete, and what to tell him.
    struct Reports
    {
        std::function<void(FieldBinding &)> begun;
        std::function<void(FieldBinding &)> complete;
        std::function<void(const QString &)> tell;
    };

    // The binding for the widget's kind; null for a widget that cannot show a field.
    static std::unique_ptr<FieldBinding> make(QWidget *widget, Engine::Table &table, int field, Reports reports);

    virtual ~FieldBinding();

    QWidget *widget() const { return m_widget; }
    Engine::Table &table() const { return m_table; }
    const Engine::Field &field() const;
    void setEntryRule(std::function<void(const QString &text)> rule) { m_rule = std::move(rule); }
    bool hasEntry() const { return m_entered || isPending(); }

    void show(); // the field's value; drops an entry
    // Hands an entry to the table, which it puts into edit if need be; throws what refuses it, and the entry stays. An
    // entry rule does both itself.
    void commit();
    virtual void setReadOnly(bool readOnly) = 0;
    virtual void setActive(bool active); // the cursor comes and goes

protected:
    FieldBinding(QWidget *widget, Engine::Table &table, int field, Reports reports);

    virtual bool isPending() const { return false; } // the widget shows a choice that has not been made yet
    virtual void settle() { } // makes it
    virtual void display() = 0;
    virtual void store() = 0;
    Engine::Value value() const;
    void begin(); // the user is about to change the widget
    void entered(); // he has changed it
    void keep() { m_entered = true; } // what the widget shows, until it is handed over
    void completed() { m_reports.complete(*this); }
    void tell(const QString &text) const { m_reports.tell(text); }
    void storeText(const QString &text); // through the entry rule, or the field's own parsing

private:
    QWidget *m_widget;
    Engine::Table &m_table;
    int m_field;
    Reports m_reports;
    std::function<void(const QString &text)> m_rule;
    bool m_entered = false;
};

} // namespace Tallymere
