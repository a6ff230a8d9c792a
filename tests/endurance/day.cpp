#include "tests/endurance/day.h"

#include "engine/store/platform.h"
#include "tests/endurance/books.h"
#include "tests/support/files.h"
#include "tests/support/spokenprompts.h"
#include "tests/support/teststore.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/documents/documentlist.h"
#include "transactions/entry/documententry.h"

#include <QProcess>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const QByteArray receipts =
    "VendorNo,WarehouseName,PurchaseOrderNo,ReceiptDate,GLYear,GLPeriod,ItemNo,QtyReceived,"
    "UnitCost\n1,Office,P1,2026-11-02,26,11,A1,10,2\n1,Office,P1,2026-11-02,26,11,B2,4,1.2\n"
    "1,Office,P2,2026-11-03,26,11,A1,5,2\n1,Office,P2,2026-11-03,26,11,B2,5,2\n";
const QByteArray usage = "UsageNo,WarehouseName,GLYear,GLPeriod,InventoryDate,ItemNo,Quantity,UnitCost\n"
                         "U1,Office,26,11,2026-11-04,A1,3,2\nU1,Office,26,11,2026-11-04,B2,0.5,2\n"
                         "U2,Office,26,11,2026-11-05,A1,2,2\n";
const QByteArray adjustments = "AdjDate,GLPeriod,GLYear,AdjDescription,WarehouseName,ItemNo,Quantity\n"
                               "2026-11-06,11,26,Dropped,Office,A1,-1\n2026-11-06,11,26,Dropped,Office,B2,-1\n";

using Work = std::function<void(Engine::Database &, Prompts &)>;

Stage work(const QString &name, const Work &step)
{
    return {name, [step](const QString &folder) {
                TestUser user(u"anna"_s, u"Corvane"_s);
                user.database.directory = folder + u"/books"_s;
                SpokenPrompts prompts;
                step(user.database, prompts);
            }};
}

Stage script(const QString &name, const QString &sql)
{
    return work(name, [sql](Engine::Database &database, Prompts &) { database.connection().execute(sql); });
}

void enterReceipt(Engine::Database &database, Prompts &prompts)
{
    const std::unique_ptr<DocumentEntry> entry = DocumentKinds::find(u"receipts"_s)->entry.make(database, prompts);
    entry->open();
    entry->newDocument(u"R77"_s);
    Engine::Table &header = entry->header();
    entry->chooseByNumber(u"VendorID"_s, u"1"_s);
    header.set(u"WarehouseID"_s, 1);
    header.set(u"ReceiptDate"_s, QDate(2026, 11, 7));
    for (const QString &item : {u"A1"_s, u"B2"_s}) {
        entry->newLine();
        entry->lines().set(u"QtyReceived"_s, 8.0);
        entry->chooseItemByNumber(item);
        entry->lines().set(u"UnitCost"_s, 2.5);
        entry->lines().post();
    }
    entry->save();
}

void removeReceipt(Engine::Database &database, Prompts &prompts)
{
    DocumentList list(database, *DocumentKinds::find(u"receipts"_s));
    list.open();
    list.find(u"R77"_s);
    list.remove(prompts);
}

// The file as the first release has left it, put there by somebody who sees to it that it stays.
void putFormer(const QString &folder)
{
    const QString place = folder + u"/former"_s;
    QDir().mkpath(place);
    QProcess unpack;
    unpack.start(u"gunzip"_s, {u"-c"_s, QStringLiteral(FORMER_DATABASE)});
    unpack.waitForFinished();
    QFile file(place + u"/Corvane.sqlite"_s);
    if (!(file.open(QIODevice::WriteOnly) && file.write(unpack.readAllStandardOutput()) > 0 && file.flush()))
        throw Refusal(1, file.errorString());
    fdatasync(file.handle());
    Engine::syncFolder(place);
    Engine::syncFolder(folder);
}

} // namespace

QString Inputs::file(const QString &name, const QByteArray &content) const
{
    putContent(m_folder.filePath(name), content);
    return m_folder.filePath(name);
}

Stage command(const QString &books, const QStringList &words)
{
    const auto run = [books, words](const QString &folder) {
        QStringList all{u"--data"_s, folder + u'/' + books};
        for (const QString &word : words)
            all << QString(word).replace(u'@', folder);
        const Outcome outcome = runCommand(all);
        // What was cut off at its very end is done already.
        if (outcome.status != 0 && !outcome.errors.contains("already"_L1))
            throw Refusal(outcome.status, outcome.errors);
    };
    return {words.mid(0, 2).join(u' '), run};
}

std::vector<Stage> firstStages(const Inputs &inputs)
{
    const std::pair<QString, QByteArray> files[] = {
        {u"types"_s, "TypeName,Inventory\nBreakfast,true\nLunch,true\nProduce,true\n"},
        {u"items"_s, "ItemNo,ItemDescription,TypeName\nA1,Apples,Produce\nB2,Beans,Produce\n"},
        {u"vendors"_s, "VendorNo,VendorName\n1,Home\n"},
        {u"receipts"_s, receipts}};
    std::vector<Stage> stages{command(u"books"_s, {u"init"_s}),
                              script(u"year"_s, u"UPDATE Company SET FiscalYear = 2026"_s)};
    for (const auto &[kind, csv] : files)
        stages.push_back(command(u"books"_s, {u"import"_s, kind, inputs.file(kind, csv)}));
    stages.push_back(command(u"books"_s, {u"post"_s, u"receipts"_s}));
    return stages;
}

std::vector<Stage> laterStages(const Inputs &inputs)
{
    const auto books = [](const QStringList &words) { return command(u"books"_s, words); };
    std::vector<Stage> stages{work(u"enter"_s, enterReceipt),
                              work(u"delete"_s, removeReceipt),
                              books({u"import"_s, u"usage"_s, inputs.file(u"usage"_s, usage)}),
                              books({u"post"_s, u"usage"_s}),
                              books({u"import"_s, u"adjustments"_s, inputs.file(u"adj"_s, adjustments)}),
                              books({u"post"_s, u"adjustments"_s})};
    stages.front().damages = true; // its lines are there before its header
    const QString count = inputs.file(u"count"_s, "ItemNo,Quantity\nA1,4\nB2,3\n");
    stages.push_back(books({u"count"_s, u"--location"_s, u"1"_s, u"--date"_s,
                            QDate::currentDate().toString(Qt::ISODate), u"--file"_s, count}));
    stages.push_back(hostRows());
    stages.push_back(books({u"sync"_s, u"locations"_s}));
    stages.push_back(books({u"sync"_s, u"items"_s}));
    stages.push_back(script(u"damage"_s, u"UPDATE ItemCtl SET NextInvReceiptID = 10000"_s));
    stages.back().damages = true;
    stages.push_back(books({u"check"_s, u"--repair"_s}));
    stages.push_back(books({u"backup"_s, u"@/backup.sqlite"_s}));
    stages.push_back(command(u"restored"_s, {u"restore"_s, u"@/backup.sqlite"_s}));
    return stages;
}

Stage formerRelease() { return {u"former release"_s, putFormer}; }

Stage hostRows()
{
    return script(u"host"_s,
                  u"INSERT OR IGNORE INTO Locatns (Location_ID, Location) VALUES (7, 'North'); "
                  "INSERT OR IGNORE INTO Items (Item_ID, Meal_Item, Billed_Amount, Meal) "
                  "VALUES (5, 'Soup', 1.5, 'L')"_s);
}
