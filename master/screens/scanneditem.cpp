#include "master/screens/scanneditem.h"

#include "base/rights.h"
#include "controls/windows/screencontext.h"
#include "data/datamodule.h"
#include "engine/records/query.h"
#include "engine/values/linetext.h"
#include "master/barcodes.h"
#include "master/masterkinds.h"
#include "master/screens/itemsearchinv.h"
#include "master/texts.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int fewestOfBarcode = 8; // letters: EAN-8

void offerToKeep(ScreenContext &context, int itemId, const QString &code)
{
    Engine::Database &database = context.data.databaseTallymere();
    const QString name =
        Engine::singleValue(database, u"SELECT ItemDescription FROM Item WHERE ItemID = ?"_s, {itemId}).toText();
    const QString question = MasterTexts::tr("Keep the code '%1' for '%2', so that it is known from now on?")
                                 .arg(Engine::excerpt(code), name);
    const Rights rights = rightsOf(MasterKinds::item().command.rights);
    if (context.prompts.confirm(Question::YesNo, question) && context.allows(rights.key, rights.name))
        addBarcode(database, itemId, code);
}

std::optional<int> search(ScreenContext &context, QWidget *window, const QString &code, int warehouseId)
{
    QApplication::beep(); // who scans looks at the goods
    const QString question = MasterTexts::tr("No item has the code '%1'. Do you want to look for the item?");
    if (!context.prompts.confirm(Question::YesNo, question.arg(Engine::excerpt(code))))
        return std::nullopt;
    const int itemId = TfrmItemSearchInv::choose(context, window, {.typed = code, .warehouseId = warehouseId});
    return itemId == 0 ? std::nullopt : std::optional(itemId);
}

} // namespace

bool isItemCode(ScreenContext &context, const QString &text)
{
    return text.size() >= fewestOfBarcode || itemOfExactCode(context.data.databaseTallymere(), text);
}

std::optional<int> scannedItem(ScreenContext &context, QWidget *window, const QString &code, int warehouseId)
{
    if (const std::optional<int> known = itemOfCode(context.data.databaseTallymere(), code))
        return known;
    const std::optional<int> found = search(context, window, code, warehouseId);
    if (found)
        offerToKeep(context, *found, code);
    return found;
}

} // namespace Tallymere
