#include "master/recordopenerform.h"

#include "controls/listscreen.h"
#include "controls/screencontext.h"
#include "controls/screenmetrics.h"
#include "engine/error.h"
#include "frame/shared/ruleerror.h"
#include "master/masterrecordform.h"

#include <QApplication>
#include <QPointer>

namespace Tallymere {

namespace {

void showSaved(ListScreen &list, int key)
{
    list.refreshList();
    list.moveToKey(key);
}

} // namespace

RecordOpener::RecordOpener(ScreenContext &context, MasterList &list, MakeRecord makeRecord, QWidget *owner)
    : QObject(owner)
    , m_context(context)
    , m_list(list)
    , m_makeRecord(std::move(makeRecord))
    , m_owner(owner)
{
}

std::unique_ptr<MasterRecordScreen> RecordOpener::make()
{
    std::unique_ptr<MasterRecordScreen> screen(m_makeRecord(m_context, m_owner->parentWidget()));
    connect(screen.get(), &MasterRecordScreen::saved, screen.get(),
            [opener = QPointer(this), listName = m_list.kind().listScreen](int key) {
                if (opener)
                    opener->show(key);
                else if (auto *list = findScreen<ListScreen>(listName))
                    showSaved(*list, key);
            });
    // Work goes on in the list, not in the main window that both belong to.
    connect(screen.get(), &QObject::destroyed, this, [this] {
        if (m_owner->isVisible())
            m_owner->activateWindow();
    });
    return screen;
}

void RecordOpener::show(int key)
{
    m_list.table().refresh();
    m_list.moveTo(key);
}

MasterRecordScreen *RecordOpener::openScreenOf(int key) const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *record = qobject_cast<MasterRecordScreen *>(window);
        if (record && record->objectName() == m_list.kind().screen && record->isVisible() && !record->isNew()
            && record->key() == key)
            return record;
    }
    return nullptr;
}

void RecordOpener::openNew()
{
    std::unique_ptr<MasterRecordScreen> screen = make();
    screen->newRecord();
    screen.release()->show();
}

void RecordOpener::openCurrent()
{
    Engine::Table &table = m_list.table();
    if (table.isEmpty()) {
        openNew();
        return;
    }
    if (MasterRecordScreen *open = openScreenOf(m_list.currentKey())) {
        bringToFront(*open);
        return;
    }
    const WaitCursor hourglass;
    std::unique_ptr<MasterRecordScreen> screen = make();
    if (screen->openRecord(m_list.currentKey())) {
        screen.release()->show();
        return;
    }
    const QString name = m_list.kind().recordName(table);
    table.refresh();
    throw RuleError(tr("'%1' was deleted by another user.").arg(name));
}

void RecordOpener::openCopy()
{
    if (m_list.table().isEmpty())
        return;
    std::unique_ptr<MasterRecordScreen> screen = make();
    screen->newCopy(m_list.table());
    screen.release()->show();
}

void RecordOpener::removeCurrent()
{
    const int key = m_list.currentKey();
    try {
        m_list.remove(m_context.prompts);
    } catch (const Engine::EngineError &error) {
        if (error.code() == Engine::ErrorCode::RecordGone)
            m_list.table().refresh();
        throw;
    }
    if (MasterRecordScreen *open = openScreenOf(key))
        open->close(); // it has no changes, or the record would not have gone
}

} // namespace Tallymere
