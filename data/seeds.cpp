#include "data/seeds.h"

#include "data/fields.h"
#include "engine/values/fieldvalue.h"
#include "engine/values/textsize.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringView>

using namespace Qt::StringLiterals;
using Engine::FieldValue;
using Engine::Table;
using Engine::Value;

namespace Tallymere::Seeds {

namespace {

bool isEmpty(const Value &value) { return value.isNull() || value == Value(u""_s); }

// An unset text of the host leaves a field that is empty as it is: null and "" are the same to everyone.
bool differs(const Value &stored, const Value &wanted)
{
    return !(stored == wanted || (isEmpty(stored) && isEmpty(wanted)));
}

QList<FieldValue> organizationOf(const Table &company, const Table &config)
{
    const auto host = [&](const char16_t *field) { return config.text(QStringView(field)); };
    const auto text = [&](const Engine::FieldName<Engine::FieldType::Text> &field, const QString &value) {
        return FieldValue(field, Engine::firstCharacters(value, company.field(field).size));
    };
    return {
        {Fields::CompanyNo, 1},
        text(Fields::CompanyName, host(u"Organizatn")),
        text(Fields::AddressLine1, host(u"Org_Addr")),
        text(Fields::AddressLine2, host(u"Org_City") + u' ' + host(u"Org_State") + u' ' + host(u"Org_ZIP")),
        text(Fields::Phone, host(u"Org_Phone")),
    };
}

QList<FieldValue> organizationDefaults(QDate today)
{
    return {
        {Fields::FiscalYear, today.year()},       {Fields::DefaultCurrencyID, 1},  {Fields::DefaultNetDays, 30},
        {Fields::ClientInvoiceLineItems, "S"_L1}, {Fields::InvoiceFormat, "S"_L1},
    };
}

QString currencyOf(const QLocale &locale)
{
    const QString code = locale.currencySymbol(QLocale::CurrencyIsoCode);
    return code.isEmpty() ? u"Local $"_s : code;
}

void addFirstRow(Engine::Database &database, const QString &name, const QList<FieldValue> &row)
{
    Table table(database, name);
    table.open();
    if (!table.isEmpty())
        return;
    table.insert();
    for (const FieldValue &assignment : row)
        table.set(assignment.field, assignment.value);
    table.post();
}

} // namespace

void refreshOrganization(Engine::Database &database, const Table &config, QDate today)
{
    Table company(database, u"Company"_s);
    company.open();

    QList<FieldValue> changes;
    for (const FieldValue &wanted : organizationOf(company, config)) {
        if (differs(company.value(wanted.field), wanted.value))
            changes << wanted;
    }
    for (const FieldValue &initial : organizationDefaults(today)) {
        if (isEmpty(company.value(initial.field)))
            changes << initial;
    }
    if (changes.isEmpty())
        return;

    company.edit(); // of an empty table: its first row
    for (const FieldValue &change : changes)
        company.set(change.field, change.value);
    company.post();
}

void presetOrganization(Table &company, const Table &config)
{
    for (const FieldValue &host : organizationOf(company, config))
        company.setDefault(host.field, host.value);
}

void firstLocation(Engine::Database &database)
{
    addFirstRow(database, u"Warehse"_s, {{Fields::WarehouseID, 1}, {Fields::WarehouseName, "Office"_L1}});
}

void firstBank(Engine::Database &database)
{
    addFirstRow(database, u"Bank"_s,
                {{Fields::BankID, 1}, {Fields::BankName, "Meal Preparation Account"_L1}, {Fields::CurrencyID, 1}});
}

void firstCurrency(Engine::Database &database, const Table &config, const QLocale &locale)
{
    static const QHash<QString, QString> names{
        {u"USA"_s, u"US $"_s},
        {u"CAN"_s, u"Canadian $"_s},
        {u"UK "_s, u"Pounds"_s},
    };
    const QString name = names.value(config.text(u"Postal_Format"), currencyOf(locale));
    addFirstRow(database, u"Currency"_s,
                {{Fields::CurrencyID, 1}, {Fields::CurrencyName, name}, {Fields::ExchangeRate, 1.0}});
}

} // namespace Tallymere::Seeds
