#include "controls/fields/fieldbinder.h"

#include "base/ruleerror.h"
#include "controls/fields/fieldbinding.h"
#include "controls/windows/fieldmark.h"
#include "controls/windows/leaving.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "engine/values/error.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QScopedValueRollback>
#include <QVariant>
#include <QWidget>
#include <utility>

namespace Tallymere {

namespace {

constexpr auto fieldProperty = "dataField";
constexpr auto sourceProperty = "dataSource";

// The next key replaces what stands there.
void selectText(QWidget *widget)
{
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        edit->selectAll();
}

template <typename Failure> bool isA(const std::exception_ptr &failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const Failure &) {
        return true;
    } catch (...) {
        return false;
    }
}

// What would change the widget if its record were not for reading only.
bool triesToChange(const QEvent &event, const QWidget &widget)
{
    const bool isBox = qobject_cast<const QComboBox *>(&widget);
    if (event.type() == QEvent::MouseButtonPress)
        return isBox;
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    const bool steps = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down || key.key() == Qt::Key_F4;
    const bool deletes = key.key() == Qt::Key_Delete || key.key() == Qt::Key_Backspace;
    return isTyped(key) || deletes || (isBox && steps) || key.matches(QKeySequence::Paste)
        || key.matches(QKeySequence::Cut);
}

} // namespace

FieldBinder::FieldBinder(QWidget *form, const Guard &guard)
    : m_form(form)
    , m_guard(guard)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { focusMoved(now); });
}

FieldBinder::~FieldBinder() = default;

void FieldBinder::bind(Engine::Table &table, const QString &source)
{
    const FieldBinding::Reports reports{
        [this](FieldBinding &binding) { startEdit(binding); }, [this](FieldBinding &binding) { leave(binding); },
        [this](const QString &text) { m_guard.run([&] { m_guard.prompts().warn(text); }); }};
    const QList<QWidget *> widgets = m_form->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QString name = widget->property(fieldProperty).toString();
        if (name.isEmpty() || widget->property(sourceProperty).toString() != source)
            continue;
        const int number = table.fieldIndex(name);
        auto binding = number < 0 ? nullptr : FieldBinding::make(widget, table, number, reports);
        if (!binding)
            throw Engine::EngineError(
                Engine::ErrorCode::NoSuchField,
                tr("%1 cannot show field %2 of table %3.").arg(widget->objectName(), name, table.name()));
        widget->installEventFilter(this);
        binding->show();
        m_bindings.push_back(std::move(binding));
    }
    watch(table);
}

void FieldBinder::watch(Engine::Table &table)
{
    connect(&table, &Engine::DataSet::fieldChanged, this, &FieldBinder::refresh);
    connect(&table, &Engine::DataSet::currentChanged, this, &FieldBinder::refresh);
    connect(&table, &Engine::DataSet::closed, this, &FieldBinder::refresh);
    connect(&table, &Engine::DataSet::stateChanged, this, [this, &table] {
        if (table.isEditing())
            setInUse(false);
    });
}

void FieldBinder::setEntryRule(const QString &field, std::function<void(const QString &)> rule)
{
    if (FieldBinding *binding = bindingOf(widgetFor(field)))
        binding->setEntryRule(std::move(rule));
}

QList<Engine::Table *> FieldBinder::tables() const
{
    QList<Engine::Table *> tables;
    for (const auto &binding : m_bindings) {
        if (!tables.contains(&binding->table()))
            tables << &binding->table();
    }
    return tables;
}

// The pages of a tabbed form are not among its children in the order in which the user sees them.
QWidget *FieldBinder::firstWidget() const
{
    for (QWidget *widget = m_form->nextInFocusChain(); widget != m_form; widget = widget->nextInFocusChain()) {
        if (widget->focusPolicy() & Qt::TabFocus && bindingOf(widget))
            return widget;
    }
    return nullptr;
}

QWidget *FieldBinder::widgetFor(const QString &column) const
{
    for (const auto &binding : m_bindings) {
        if (binding->field().name.compare(column, Qt::CaseInsensitive) == 0)
            return binding->widget();
    }
    return nullptr;
}

int FieldBinder::keyIn(const QString &field)
{
    commit();
    const FieldBinding *binding = bindingOf(widgetFor(field));
    return binding ? binding->table().integer(field) : 0;
}

FieldBinding *FieldBinder::bindingOf(const QObject *widget) const
{
    for (const auto &binding : m_bindings) {
        if (binding->widget() == widget)
            return binding.get();
    }
    return nullptr;
}

void FieldBinder::commit()
{
    if (m_refusing)
        throw SilentAbort();
    m_asked = nullptr; // by this
    for (const auto &binding : m_bindings)
        handOver(*binding);
}

// Outside of events, so that a question about the entry can be put.
void FieldBinder::handOver(FieldBinding &binding)
{
    try {
        binding.commit();
    } catch (const RuleQuestion &question) {
        if (!m_guard.prompts().confirm(Question::Warning, question.question()))
            throw SilentAbort(question.column());
        question.accept();
        binding.commit();
    }
}

bool FieldBinder::hasEntry() const
{
    return std::any_of(m_bindings.begin(), m_bindings.end(),
                       [](const auto &binding) { return binding->hasEntry(); });
}

bool FieldBinder::revert(QWidget *widget)
{
    FieldBinding *binding = bindingOf(widget);
    if (!binding || !binding->hasEntry())
        return false;
    binding->show();
    selectText(widget);
    return true;
}

void FieldBinder::setReadOnly(bool readOnly)
{
    const bool before = isReadOnly();
    m_readOnly = readOnly;
    showReadOnly(before);
}

void FieldBinder::setInUse(bool inUse)
{
    const bool before = isReadOnly();
    m_inUse = inUse && !hasEntry() && !isBeingEdited();
    showReadOnly(before);
}

// The widget with the cursor takes it anew: what it shows then is for editing or is not.
void FieldBinder::showReadOnly(bool before)
{
    if (isReadOnly() == before)
        return;
    for (const auto &binding : m_bindings)
        binding->setReadOnly(!before);
    if (FieldBinding *binding = bindingOf(m_form->focusWidget()))
        binding->setActive(binding->widget()->hasFocus());
    Q_EMIT readOnlyChanged(!before);
}

bool FieldBinder::isBeingEdited() const
{
    return std::any_of(m_bindings.begin(), m_bindings.end(),
                       [](const auto &binding) { return binding->table().isEditing(); });
}

void FieldBinder::refresh()
{
    for (const auto &binding : m_bindings) {
        if (!binding->hasEntry())
            binding->show();
    }
}

// The first key typed locks the record, which is read anew with that. Where it is refused, or what the key was typed into
// is not what is stored any more, the widget shows what there is.
void FieldBinder::startEdit(FieldBinding &binding)
{
    Engine::Table &table = binding.table();
    if (table.isEditing())
        return;
    const QString field = binding.field().name;
    const Engine::Value shown = table.value(field);
    std::exception_ptr failure = Guard::attempt([&] { table.edit(); });
    if (!failure && table.value(field) == shown)
        return;
    if (!failure)
        failure = std::make_exception_ptr(
            RuleError(tr("Another user has changed this since it was shown. Here is what it is now."), field));
    binding.show();
    selectText(binding.widget());
    reportLater(failure);
}

// The box opens once the event that led to it is over.
void FieldBinder::reportLater(const std::exception_ptr &failure)
{
    m_refusing = true;
    QMetaObject::invokeMethod(
        this,
        [this, failure] {
            m_guard.report(failure);
            m_refusing = false;
        },
        Qt::QueuedConnection);
}

// Once the event is over the cursor comes back to the entry that is asked about, and goes on when it is taken.
void FieldBinder::askLater(FieldBinding &binding)
{
    m_asked = &binding;
    QMetaObject::invokeMethod(
        this,
        [this, asked = &binding] {
            if (m_asked != asked)
                return;
            m_asked = nullptr;
            const QScopedValueRollback refusing(m_refusing, true);
            const QPointer<QWidget> next = QApplication::focusWidget();
            asked->widget()->setFocus();
            if (!m_guard.run([&] { handOver(*asked); }))
                selectText(asked->widget());
            else if (next)
                next->setFocus();
        },
        Qt::QueuedConnection);
}

// The cursor comes back first, then the box opens.
void FieldBinder::leave(FieldBinding &binding)
{
    const std::exception_ptr failure = Guard::attempt([&] { binding.commit(); });
    if (!failure)
        return;
    if (isA<RuleQuestion>(failure))
        return askLater(binding);
    m_refusing = true;
    QWidget *widget = binding.widget();
    const QString column = binding.field().name;
    // A choice is refused as a whole, and so is what nothing will come of, as in a posted document; any other typed text
    // stays to be mended, typed over or tried again.
    const bool stays = widget->inherits("QLineEdit") && !isA<SilentAbort>(failure);
    QMetaObject::invokeMethod(
        this,
        [this, widget, column, failure, stays] {
            {
                const TakingBack takingBack;
                m_guard.focus(column); // on a page that may be behind others by now
                widget->setFocus();
            }
            if (Guard::isRefusal(failure))
                FieldMark::refuse(*widget);
            m_guard.report(failure);
            m_refusing = false;
            if (stays)
                selectText(widget);
            else
                revert(widget);
        },
        Qt::QueuedConnection);
}

// From the widget that kept an entry, or from another window, the cursor has gone on: back to the entry, or to where it
// would have been refused.
void FieldBinder::focusMoved(QWidget *now)
{
    if (!m_kept || !now || keepsEntry(now) || !m_form->isAncestorOf(now))
        return;
    FieldBinding &kept = *std::exchange(m_kept, nullptr);
    if (kept.widget() == now)
        return;
    leave(kept);
    kept.setActive(false);
}

bool FieldBinder::eventFilter(QObject *watched, QEvent *event)
{
    FieldBinding *binding = bindingOf(watched);
    if (!binding)
        return false;
    if (event->type() == QEvent::FocusIn) {
        binding->setActive(true);
    } else if (event->type() == QEvent::FocusOut) {
        if (handsEntryOver(*static_cast<QFocusEvent *>(event))) {
            m_kept = nullptr;
            leave(*binding);
            binding->setActive(false);
        } else if (TakingBack::isOn()) {
            binding->setActive(false);
        } else {
            m_kept = binding;
        }
    } else if (event->type() == QEvent::Wheel && qobject_cast<QComboBox *>(watched)) {
        event->ignore(); // a turn of the wheel over a form must not change what it holds
        return true;
    } else if (isReadOnly() && triesToChange(*event, *binding->widget())) {
        startEdit(*binding);
        return isReadOnly();
    }
    return false;
}

} // namespace Tallymere
