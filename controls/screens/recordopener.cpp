#include "controls/screens/recordopener.h"

#include "base/ruleerror.h"
#include "controls/screens/listscreen.h"
#include "controls/windows/screenmetrics.h"
#include "data/recordlist.h"
#include "engine/store/recordlock.h"
#include "engine/values/error.h"

#include <QApplication>
#include <QPointer>

namespace Tallymere {

namespace {

void showSaved(const QString &listScreen, int key)
{
    if (auto *list = findScreen<ListScreen>(listScreen)) {
        list->refreshList();
        list->moveToKey(key);
    }
}

} // namespace

RecordOpener::RecordOpener(ScreenContext &context, RecordScreens screens, QWidget *owner)
    : QObject(owner)
    , m_context(context)
    , m_screens(std::move(screens))
    , m_owner(owner)
{
}

std::unique_ptr<RecordScreen> RecordOpener::make()
{
    std::unique_ptr<RecordScreen> screen(m_screens.make(m_context, m_owner->parentWidget()));
    connect(screen.get(), &EntryScreen::saved, screen.get(),
            [opener = QPointer(this), list = m_screens.list](int key) {
                if (opener)
                    opener->follow(key);
                else
                    showSaved(list, key);
            });
    // Work goes on in the window that the record was opened from, not in the main window that both belong to. At once: by
    // the time the screen is gone another one may be asking about its changes.
    connect(screen.get(), &EntryScreen::closed, this, [this] {
        if (m_owner->isVisible())
            m_owner->activateWindow();
    });
    return screen;
}

void RecordOpener::follow(int key) { showSaved(m_screens.list, key); }

RecordScreen *RecordOpener::openScreenOf(int key) const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *record = qobject_cast<RecordScreen *>(window);
        if (record && record->objectName() == m_screens.record && record->isVisible() && record->storedKey() == key)
            return record;
    }
    return nullptr;
}

void RecordOpener::openNew()
{
    std::unique_ptr<RecordScreen> screen = make();
    screen->newRecord();
    screen.release()->show();
}

RecordScreen &RecordOpener::open(int key, const QString &name)
{
    if (RecordScreen *open = openScreenOf(key)) {
        bringToFront(*open);
        return *open;
    }
    const WaitCursor hourglass;
    std::unique_ptr<RecordScreen> screen = make();
    if (!screen->openRecord(key))
        throw RuleError(Engine::recordGoneText(u'\'' + name + u'\''));
    screen->show();
    return *screen.release();
}

void RecordOpener::closeScreensOf(const QList<int> &keys)
{
    for (const int key : keys) {
        if (RecordScreen *open = openScreenOf(key))
            open->btnCancelClick();
    }
}

ListRecordOpener::ListRecordOpener(ScreenContext &context, RecordScreens screens, RecordList &list, QWidget *owner)
    : RecordOpener(context, std::move(screens), owner)
    , m_list(list)
{
}

void ListRecordOpener::follow(int key)
{
    m_list.table().refresh();
    m_list.moveTo(key);
}

void ListRecordOpener::openCurrent()
{
    if (m_list.table().isEmpty()) {
        openNew();
        return;
    }
    try {
        open(m_list.currentKey(), m_list.currentName());
    } catch (const RuleError &) {
        readAnew();
        throw;
    }
}

// After a refusal, which must be told even where reading fails as well.
void ListRecordOpener::readAnew()
{
    if (const std::exception_ptr failure = Guard::attempt([this] { m_list.table().refresh(); }))
        Guard::trace(failure);
}

void ListRecordOpener::removeCurrent()
{
    const int key = m_list.currentKey();
    try {
        m_list.remove(context().prompts);
    } catch (const RuleError &) {
        readAnew();
        throw;
    } catch (const Engine::EngineError &error) {
        if (error.code() == Engine::ErrorCode::RecordGone)
            readAnew();
        throw;
    }
    closeScreensOf({key});
}

} // namespace Tallymere
