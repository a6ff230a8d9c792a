#include "master/barcodes.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "engine/values/error.h"
#include "engine/values/linetext.h"
#include "master/masterkinds.h"
#include "master/recordnumber.h"
#include "master/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Engine::Value;

namespace Tallymere {

namespace {

bool isDigits(const QString &code)
{
    return std::ranges::all_of(code, [](QChar letter) { return letter >= u'0' && letter <= u'9'; });
}

// The other way to write the same product code; the code itself where there is none.
QString otherForm(const QString &code)
{
    if (!isDigits(code))
        return code;
    if (code.size() == 12)
        return u'0' + code;
    return code.size() == 13 && code.startsWith(u'0') ? code.mid(1) : code;
}

QString itemName(Engine::Database &database, int itemId)
{
    return Engine::singleValue(database, u"SELECT ItemDescription FROM Item WHERE ItemID = ?"_s, {itemId}).toText();
}

void requireCode(const QString &code)
{
    if (code.isEmpty())
        throw RuleError(MasterTexts::tr("Scan or type the code first."), Fields::Barcode);
    if (code.size() > barcodeSize)
        throw RuleError(MasterTexts::tr("A code has %1 letters at most.").arg(barcodeSize), Fields::Barcode);
}

// False where the item has the code already.
bool isNewOf(Engine::Database &database, int itemId, const QString &code)
{
    const std::optional<int> numbered = findByNumber(database, MasterKinds::item(), code);
    if (numbered && *numbered != itemId)
        throw RuleError(MasterTexts::tr("'%1' is the item no. of '%2'.")
                            .arg(Engine::excerpt(code), itemName(database, *numbered)),
                        Fields::Barcode);
    const std::optional<int> coded = itemOfBarcode(database, code);
    if (coded && *coded != itemId)
        throw RuleError(MasterTexts::tr("'%1' is a code of '%2'. Take it out there first.")
                            .arg(Engine::excerpt(code), itemName(database, *coded)),
                        Fields::Barcode);
    return !coded;
}

// The key comes from the highest one, so that of two who add at once on a server one is refused by it.
void insert(Engine::Database &database, int itemId, const QString &code)
{
    if (!Engine::hasRow(database, u"Item"_s, Fields::ItemID, itemId))
        throw RuleError(MasterTexts::tr("The item is not there any more."), Fields::Barcode);
    if (!isNewOf(database, itemId, code))
        return;
    const int highest = Engine::singleValue(database, u"SELECT max(BarcodeID) FROM IBarcode"_s).toInt();
    const Engine::StatementPtr row =
        database.connection().prepare(u"INSERT INTO IBarcode (BarcodeID, ItemID, Barcode) VALUES (?, ?, ?)"_s);
    row->bindInt(0, highest + 1);
    row->bindInt(1, itemId);
    row->bindText(2, code);
    row->execute();
}

} // namespace

std::optional<int> itemOfBarcode(Engine::Database &database, const QString &code)
{
    const Value item = Engine::singleValue(database,
                                           u"SELECT I.ItemID FROM IBarcode B JOIN Item I ON I.ItemID = B.ItemID "
                                           "WHERE B.Barcode IN (?, ?) ORDER BY B.BarcodeID LIMIT 1"_s,
                                           {code, otherForm(code)});
    return item.isNull() ? std::nullopt : std::optional(item.toInt());
}

std::optional<int> itemOfCode(Engine::Database &database, const QString &code)
{
    const std::optional<int> numbered = findByNumber(database, MasterKinds::item(), code);
    return numbered ? numbered : itemOfBarcode(database, code);
}

std::optional<int> itemOfExactCode(Engine::Database &database, const QString &code)
{
    const Value numbered =
        Engine::singleValue(database, u"SELECT min(ItemID) FROM Item WHERE ItemNo = ?"_s, {Value(code)});
    return numbered.isNull() ? itemOfBarcode(database, code) : std::optional(numbered.toInt());
}

QString nameOfCode(Engine::Database &database, const QString &code)
{
    const std::optional<int> item = itemOfCode(database, code);
    return item ? itemName(database, *item) : QString();
}

QStringList barcodesOf(Engine::Database &database, int itemId)
{
    QStringList codes;
    const Engine::StatementPtr row =
        database.connection().prepare(u"SELECT Barcode FROM IBarcode WHERE ItemID = ? ORDER BY BarcodeID"_s);
    row->bindInt(0, itemId);
    while (row->next())
        codes << row->textAt(0);
    return codes;
}

QHash<qint64, QStringList> barcodesOfAll(Engine::Database &database)
{
    QHash<qint64, QStringList> codes;
    const Engine::StatementPtr row =
        database.connection().prepare(u"SELECT ItemID, Barcode FROM IBarcode ORDER BY BarcodeID"_s);
    while (row->next())
        codes[row->intAt(0)] << row->textAt(1);
    return codes;
}

void addBarcode(Engine::Database &database, int itemId, const QString &code)
{
    const QString trimmed = code.trimmed();
    requireCode(trimmed);
    try {
        database.change([&] { insert(database, itemId, trimmed); });
    } catch (const Engine::EngineError &error) {
        if (error.code() != Engine::ErrorCode::KeyViolation)
            throw;
        throw RuleError(MasterTexts::tr("Another user has added a code at the same moment. Try again."),
                        Fields::Barcode);
    }
}

void removeBarcode(Engine::Database &database, int itemId, const QString &code)
{
    database.change([&] {
        const Engine::StatementPtr row =
            database.connection().prepare(u"DELETE FROM IBarcode WHERE ItemID = ? AND Barcode = ?"_s);
        row->bindInt(0, itemId);
        row->bindText(1, code);
        row->execute();
    });
}

} // namespace Tallymere
