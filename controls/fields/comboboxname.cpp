#include "controls/fields/comboboxname.h"

#include "controls/fields/lookupcombobox.h"
#include "controls/windows/showntext.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>

namespace Tallymere {

namespace {

class NamedComboBox final : public QAccessibleWidget
{
public:
    explicit NamedComboBox(QComboBox *box)
        : QAccessibleWidget(box, QAccessible::ComboBox)
        , m_box(*box)
        , m_text([box] { return box->currentText(); })
    {
        QObject::connect(box, &QComboBox::currentTextChanged, box,
                         [box, last = box->currentText()](const QString &text) mutable {
                             QAccessibleTextUpdateEvent changed(box, 0, last, text);
                             QAccessible::updateAccessibility(&changed);
                             last = text;
                         });
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_box.currentText() : QAccessibleWidget::text(kind);
    }
    // Chooses the entry with that text, as picking it from the list does.
    void setText(QAccessible::Text kind, const QString &text) override
    {
        const int row = kind == QAccessible::Value ? m_box.findText(text, Qt::MatchFixedString) : -1;
        if (row < 0 || !m_box.isEnabled() || state().readOnly)
            return;
        m_box.setFocus();
        m_box.setCurrentIndex(row);
        Q_EMIT m_box.activated(row);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const auto *lookup = qobject_cast<const LookupComboBox *>(&m_box);
        state.readOnly = lookup && lookup->isReadOnly();
        state.expandable = !state.readOnly;
        state.expanded = m_box.view()->isVisible();
        return state;
    }
    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString &name) override
    {
        if (name != showMenuAction() && name != pressAction())
            return;
        if (m_box.view()->isVisible())
            m_box.hidePopup();
        else
            m_box.showPopup();
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(&m_text)
                                                  : QAccessibleWidget::interface_cast(type);
    }

private:
    QComboBox &m_box;
    ShownText m_text; // of the closed box
};

// By the class that it is, or stands in.
bool isOurs(const QWidget *box)
{
    for (; box; box = box->parentWidget())
        if (QByteArrayView(box->metaObject()->className()).startsWith("Tallymere::"))
            return true;
    return false;
}

QAccessibleInterface *makeNamed(const QString &, QObject *object)
{
    auto *box = qobject_cast<QComboBox *>(object);
    return isOurs(box) ? new NamedComboBox(box) : nullptr;
}

} // namespace

void keepComboBoxNames(const QWidget &window)
{
    QAccessible::installFactory(makeNamed); // Qt takes it once
    for (QComboBox *box : window.findChildren<QComboBox *>()) {
        QAccessibleInterface *made = QAccessible::queryAccessibleInterface(box);
        if (!dynamic_cast<NamedComboBox *>(made))
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
    }
}

} // namespace Tallymere
