#include "frame/synchronization.h"

#include "controls/windows/barprogress.h"
#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"
#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "data/lookupsdatainv.h"
#include "data/tableactions.h"
#include "frame/commandrunner.h"
#include "frame/commands.h"
#include "frame/texts.h"
#include "frame/tracescope.h"
#include "master/itemsync.h"
#include "master/locationsync.h"

#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Empty before the work and when it is over.
class EmptyAfterwards
{
public:
    explicit EmptyAfterwards(QProgressBar &bar)
        : m_bar(bar)
    {
        empty();
    }
    ~EmptyAfterwards() { empty(); }
    EmptyAfterwards(const EmptyAfterwards &) = delete;
    EmptyAfterwards &operator=(const EmptyAfterwards &) = delete;

private:
    void empty()
    {
        m_bar.setRange(0, 100);
        m_bar.setValue(0);
    }

    QProgressBar &m_bar;
};

// What has come in, for the lists that show it.
struct Lists
{
    QList<Engine::TableReader *> lookups;
    QString screen;
};

template <typename Sync> void synchronize(const CommandSite &site, const Lists &lists)
{
    const EmptyAfterwards bar(site.progress);
    const WaitCursor hourglass;
    BarProgress progress(&site.progress);
    const std::exception_ptr failure =
        Guard::attempt([&] { Sync(site.context.data.databaseTallymere()).run(progress); });
    const std::exception_ptr staleLists = Guard::attempt([&] {
        tables(u"R"_s, lists.lookups);
        site.screens.refresh(lists.screen);
    });
    for (const std::exception_ptr &each : {failure, staleLists}) {
        if (each)
            std::rethrow_exception(each);
    }
    site.context.prompts.inform(FrameTexts::tr("Succesfully completed the synchronization."));
}

} // namespace

void synchronizeLocations(const CommandSite &site)
{
    const TraceScope scope("TFormTallymereSystem.ActionSynchronizeLocationsExecute");
    const QString question = FrameTexts::tr("Insert any Corvane locations into the \nLedgerwick locations table?");
    if (!site.context.prompts.confirm(Question::YesNo, question))
        return;
    synchronize<LocationSync>(
        site, {{&site.context.lookups.tblWarehse(), &site.context.data.tableWarehouse()}, u"frmWarehousesInv"_s});
}

void synchronizeItems(const CommandSite &site)
{
    const TraceScope scope("TFormTallymereSystem.ActionSynchronizeItemsExecute");
    synchronize<ItemSync>(site,
                          {{&site.context.lookups.tblItem(), &site.context.data.tableItemCtl()}, u"frmItemsInv"_s});
}

void synchronizeClients(const CommandSite &) { }

} // namespace Tallymere
