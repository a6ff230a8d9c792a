#include "controls/windows/guard.h"

#include "base/ruleerror.h"
#include "controls/texts.h"
#include "controls/windows/dialogover.h"
#include "controls/windows/fieldmark.h"
#include "controls/windows/messageboxes.h"
#include "engine/values/error.h"

#include <QLoggingCategory>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace Tallymere {

Q_LOGGING_CATEGORY(screens, "tallymere.screens", QtWarningMsg)

namespace {
bool tellingOfTheStore = false;
} // namespace

Guard::Guard(Prompts &prompts, Mover focusColumn, QWidget *window)
    : m_prompts(prompts)
    , m_focusColumn(std::move(focusColumn))
    , m_window(window)
{
}

Guard::Mover Guard::editsOf(QWidget &window)
{
    return [&window](const QString &column) {
        auto *field = column.isEmpty() ? nullptr : window.findChild<QWidget *>(u"edit"_s + column);
        if (field)
            field->setFocus();
        return field;
    };
}

bool Guard::run(const std::function<void()> &handler) const
{
    const BoxesOver over(m_window);
    const std::exception_ptr failure = attempt(handler);
    if (failure)
        report(failure);
    return !failure;
}

bool Guard::runWhenFree(const std::function<void()> &handler) const
{
    return !isHeldByDialog(m_window) && run(handler);
}

std::exception_ptr Guard::attempt(const std::function<void()> &handler)
{
    try {
        handler();
        return {};
    } catch (...) {
        return std::current_exception();
    }
}

void Guard::report(const std::exception_ptr &failure) const
{
    const BoxesOver over(m_window);
    try {
        std::rethrow_exception(failure);
    } catch (const RuleError &error) {
        if (QWidget *field = focus(error.column()))
            FieldMark::refuse(*field);
        m_prompts.error(error.message());
    } catch (const SilentAbort &abort) {
        focus(abort.column());
    } catch (const RuleQuestion &question) {
        focus(question.column());
        if (m_prompts.confirm(Question::Warning, question.question()))
            question.accept();
    } catch (const Engine::EngineError &error) {
        trace(failure);
        const QScopedValueRollback telling(tellingOfTheStore, error.isOfTheStore());
        m_prompts.error(error.text());
    } catch (const std::exception &error) {
        m_prompts.error(QString::fromUtf8(error.what()));
    } catch (...) {
        trace(failure);
        m_prompts.error(
            ControlsTexts::tr("An unexpected failure has stopped this. Nothing is known about its cause."));
    }
}

void Guard::trace(const std::exception_ptr &failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const Engine::EngineError &error) {
        qCDebug(screens) << "engine error" << static_cast<int>(error.code()) << error.driverText();
    } catch (const std::exception &error) {
        qCDebug(screens) << error.what();
    } catch (...) {
        qCDebug(screens) << "a failure of unknown type";
    }
}

bool Guard::isTellingOfTheStore() { return tellingOfTheStore; }

bool Guard::isRefusal(const std::exception_ptr &failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const RuleError &) {
        return true;
    } catch (const Engine::EngineError &error) {
        return !error.isOfTheStore();
    } catch (...) {
        return false;
    }
}

QString Guard::columnOf(const std::exception_ptr &failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const RuleError &error) {
        return error.column();
    } catch (const SilentAbort &abort) {
        return abort.column();
    } catch (const RuleQuestion &question) {
        return question.column();
    } catch (...) {
        return {};
    }
}

QWidget *Guard::focus(const QString &column) const
{
    return m_focusColumn && !column.isEmpty() ? m_focusColumn(column) : nullptr;
}

} // namespace Tallymere
