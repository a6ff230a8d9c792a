#include "controls/fields/fieldbinding.h"

#include "controls/fields/lookupcombobox.h"
#include "controls/fields/maskedentry.h"
#include "controls/fields/memoedit.h"
#include "controls/texts.h"
#include "controls/windows/fieldground.h"
#include "controls/windows/fieldmark.h"
#include "controls/windows/lineentry.h"
#include "engine/values/textsize.h"
#include "engine/values/userlocale.h"

#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyle>
#include <QVariant>

namespace Tallymere {

using Engine::Value;

FieldBinding::FieldBinding(QWidget *widget, Engine::Table &table, int field, Reports reports)
    : m_widget(widget)
    , m_table(table)
    , m_field(field)
    , m_reports(std::move(reports))
{
}

FieldBinding::~FieldBinding() = default;

const Engine::Field &FieldBinding::field() const { return std::as_const(m_table).Engine::DataSet::field(m_field); }

Value FieldBinding::value() const { return m_table.isOpen() ? m_table.value(m_field) : Value(); }

void FieldBinding::show()
{
    m_entered = false;
    display();
}

void FieldBinding::commit()
{
    settle();
    if (!m_entered)
        return;
    if (!m_rule)
        m_table.edit();
    store();
    show();
}

void FieldBinding::storeText(const QString &text)
{
    if (m_rule)
        m_rule(text);
    else
        m_table.setText(field().name, text);
}

void FieldBinding::setActive(bool) { }

void FieldBinding::begin()
{
    if (!m_rule)
        m_reports.begun(*this);
}

void FieldBinding::entered()
{
    keep();
    begin();
}

namespace {

// What can only be read stands without a box on the form around it, with its text in the same place.
void showReadOnly(QLineEdit &edit, bool readOnly)
{
    edit.setReadOnly(readOnly);
    edit.setFrame(!readOnly);
    const int frame = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    edit.setTextMargins(readOnly ? QMargins(frame, frame, frame, frame) : QMargins());
    FieldGround::of(edit).set(readOnly ? QPalette::Window : QPalette::Base);
}

// Shows the display text, and the edit text while it has the cursor.
class LineEditBinding final : public FieldBinding
{
public:
    LineEditBinding(QLineEdit *edit, Engine::Table &table, int number, Reports reports)
        : FieldBinding(edit, table, number, std::move(reports))
        , m_edit(edit)
        , m_alwaysReadOnly(edit->isReadOnly())
    {
        if (const QString mask = edit->property("editMask").toString(); !mask.isEmpty())
            m_mask = std::make_unique<MaskedEntry>(edit, mask);
        showReadOnly(*edit, m_alwaysReadOnly);
        if (!m_mask && !m_alwaysReadOnly)
            takeOneLine(*edit, size(*edit), field().caption(), [this](const QString &text) { tell(text); });
        QObject::connect(edit, &QLineEdit::textEdited, edit, [this](const QString &text) {
            m_typed = text;
            entered();
        });
        // Put there by a program that writes for the user; what is typed, and perhaps refused already, comes by here as well.
        QObject::connect(edit, &QLineEdit::textChanged, edit, [this](const QString &text) {
            if (!m_showing && text != m_typed && text == m_edit->text())
                entered();
        });
    }

    void setReadOnly(bool readOnly) override { showReadOnly(*m_edit, readOnly || m_alwaysReadOnly); }

    void setActive(bool active) override
    {
        const QScopedValueRollback showing(m_showing, true);
        m_active = active && !m_edit->isReadOnly();
        showCursor(active && m_edit->isReadOnly());
        if (hasEntry())
            return;
        if (m_mask)
            m_mask->setActive(m_active);
        show();
        if (m_active)
            m_edit->selectAll();
    }

private:
    // Without a box there is nothing that the style shows the cursor by.
    void showCursor(bool here)
    {
        delete m_cursor;
        m_cursor = here ? new FieldMark(*m_edit, Look::Role::Accent) : nullptr;
    }

    int size(const QLineEdit &edit) const
    {
        const bool limited = field().type == Engine::FieldType::Text && field().size > 0;
        return limited ? std::min(edit.maxLength(), field().size) : edit.maxLength();
    }

    void display() override
    {
        const QScopedValueRollback showing(m_showing, true);
        m_typed.clear();
        const QString text = m_active ? field().editText(value()) : field().displayText(value());
        if (m_edit->text() != text)
            m_edit->setText(text);
        if (!m_active)
            m_edit->setCursorPosition(0);
    }

    void store() override { storeText(m_mask ? m_mask->typedText() : m_edit->text()); }

    QLineEdit *m_edit;
    std::unique_ptr<MaskedEntry> m_mask; // null without one
    QPointer<FieldMark> m_cursor; // which its edit may have taken with it
    bool m_alwaysReadOnly; // by the form, whatever becomes of the record
    bool m_active = false;
    QString m_typed; // at the last key, until the field is shown again
    bool m_showing = false; // the text that changes is the field's
};

class LookupBinding final : public FieldBinding
{
public:
    LookupBinding(LookupComboBox *box, Engine::Table &table, int number, Reports reports)
        : FieldBinding(box, table, number, std::move(reports))
        , m_box(box)
    {
        QObject::connect(box, &LookupComboBox::moved, box, [this] { begin(); });
        QObject::connect(box, &LookupComboBox::chosen, box, [this] { chosen(); });
    }

    void setReadOnly(bool readOnly) override { m_box->setReadOnly(readOnly); }

private:
    void display() override { m_box->setChosenId(value().toInt()); }
    bool isPending() const override { return m_box->isPending(); }

    void settle() override
    {
        const QScopedValueRollback settling(m_settling, true);
        m_box->settle();
    }

    // A choice that commit() itself makes is handed over by it.
    void chosen()
    {
        if (m_settling) {
            keep();
            return;
        }
        entered();
        if (hasEntry())
            completed();
    }

    void store() override
    {
        const int id = m_box->chosenId();
        table().set(field().name, id == 0 ? Value() : Value(id));
    }

    LookupComboBox *m_box;
    bool m_settling = false;
};

// A drop-down list of fixed choices, which stand for the texts in the dynamic property "values".
class ChoiceBinding final : public FieldBinding
{
public:
    ChoiceBinding(QComboBox *box, Engine::Table &table, int number, Reports reports)
        : FieldBinding(box, table, number, std::move(reports))
        , m_box(box)
        , m_values(box->property("values").toStringList())
    {
        QObject::connect(box, &QComboBox::activated, box, [this] {
            if (chosen() == value())
                return;
            entered();
            if (hasEntry())
                completed();
        });
    }

    void setReadOnly(bool readOnly) override { m_box->setDisabled(readOnly); }

private:
    Value chosen() const { return Value(m_values.value(m_box->currentIndex())); }

    // Nothing is chosen for a value that no choice stands for.
    void display() override { m_box->setCurrentIndex(static_cast<int>(m_values.indexOf(value().toText()))); }
    void store() override { table().set(field().name, chosen()); }

    QComboBox *m_box;
    const QStringList m_values;
};

class CheckBinding final : public FieldBinding
{
public:
    CheckBinding(QCheckBox *box, Engine::Table &table, int number, Reports reports)
        : FieldBinding(box, table, number, std::move(reports))
        , m_box(box)
    {
        QObject::connect(box, &QCheckBox::clicked, box, [this] {
            entered();
            if (hasEntry())
                completed();
        });
    }

    void setReadOnly(bool readOnly) override { m_box->setDisabled(readOnly); }

private:
    void display() override { m_box->setChecked(value().toBool()); }
    void store() override { table().set(field().name, Value(m_box->isChecked())); }

    QCheckBox *m_box;
};

// A group of radio buttons, each with the number that it stands for in the dynamic property "value".
class RadioBinding final : public FieldBinding
{
public:
    RadioBinding(QGroupBox *group, Engine::Table &table, int number, Reports reports)
        : FieldBinding(group, table, number, std::move(reports))
        , m_buttons(group->findChildren<QRadioButton *>())
    {
        for (QRadioButton *button : m_buttons) {
            QObject::connect(button, &QRadioButton::clicked, button, [this] {
                entered();
                if (hasEntry())
                    completed();
            });
        }
    }

    void setReadOnly(bool readOnly) override
    {
        for (QRadioButton *button : m_buttons)
            button->setDisabled(readOnly);
    }

private:
    static int numberOf(const QRadioButton *button) { return button->property("value").toInt(); }

    // No button is checked for a value that none stands for.
    void display() override
    {
        for (QRadioButton *button : m_buttons) {
            button->setAutoExclusive(false);
            button->setChecked(!value().isNull() && numberOf(button) == value().toInt());
        }
        for (QRadioButton *button : m_buttons)
            button->setAutoExclusive(true);
    }

    void store() override
    {
        for (const QRadioButton *button : m_buttons) {
            if (button->isChecked())
                table().set(field().name, Value(numberOf(button)));
        }
    }

    const QList<QRadioButton *> m_buttons;
};

class MemoBinding final : public FieldBinding
{
public:
    MemoBinding(QPlainTextEdit *edit, Engine::Table &table, int number, Reports reports)
        : FieldBinding(edit, table, number, std::move(reports))
        , m_edit(edit)
        , m_ground(FieldGround::of(*edit))
    {
        QObject::connect(edit, &QPlainTextEdit::textChanged, edit, [this] { entered(); });
        if (auto *memo = qobject_cast<MemoEdit *>(edit))
            QObject::connect(memo, &MemoEdit::refused, memo, [this] { tellTooLong(); });
    }

    void setReadOnly(bool readOnly) override
    {
        m_edit->setReadOnly(readOnly);
        m_ground.set(readOnly ? QPalette::Window : QPalette::Base);
    }

private:
    void tellTooLong()
    {
        tell(ControlsTexts::tr("'%1' takes no more than %2 characters, in lines of no more than %3. What has been "
                               "put in was left out.")
                 .arg(field().caption(), Engine::groupedCount(Engine::longestText),
                      Engine::groupedCount(MemoEdit::longestLine)));
    }

    void display() override
    {
        const QSignalBlocker blocker(m_edit);
        m_edit->setPlainText(value().toText());
    }

    void store() override
    {
        const QString text = m_edit->toPlainText();
        table().set(field().name, text.isEmpty() ? Value() : Value(text));
    }

    QPlainTextEdit *m_edit;
    FieldGround &m_ground;
};

class LabelBinding final : public FieldBinding
{
public:
    LabelBinding(QLabel *label, Engine::Table &table, int number, Reports reports)
        : FieldBinding(label, table, number, std::move(reports))
        , m_label(label)
    {
        label->setTextFormat(Qt::PlainText);
    }

    void setReadOnly(bool) override { }

private:
    void display() override { m_label->setText(field().displayText(value())); }
    void store() override { }

    QLabel *m_label;
};

} // namespace

std::unique_ptr<FieldBinding> FieldBinding::make(QWidget *widget, Engine::Table &table, int number, Reports reports)
{
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        return std::make_unique<LineEditBinding>(edit, table, number, std::move(reports));
    if (auto *lookup = qobject_cast<LookupComboBox *>(widget))
        return std::make_unique<LookupBinding>(lookup, table, number, std::move(reports));
    if (auto *choice = qobject_cast<QComboBox *>(widget))
        return std::make_unique<ChoiceBinding>(choice, table, number, std::move(reports));
    if (auto *check = qobject_cast<QCheckBox *>(widget))
        return std::make_unique<CheckBinding>(check, table, number, std::move(reports));
    if (auto *memo = qobject_cast<QPlainTextEdit *>(widget))
        return std::make_unique<MemoBinding>(memo, table, number, std::move(reports));
    if (auto *group = qobject_cast<QGroupBox *>(widget))
        return std::make_unique<RadioBinding>(group, table, number, std::move(reports));
    if (auto *label = qobject_cast<QLabel *>(widget))
        return std::make_unique<LabelBinding>(label, table, number, std::move(reports));
    return nullptr;
}

} // namespace Tallymere
