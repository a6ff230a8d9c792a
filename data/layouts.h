#pragma once

#include "engine/values/layout.h"

#include <QList>

// The layouts of the inventory tables, as data. The names of tables and fields are the ones stored statements,
// lists and reports use.

namespace Tallymere::Layouts {

const Engine::TableLayout &item();
const Engine::TableLayout &itemCtl(); // counters: one row, no key
const Engine::TableLayout &itemType();
const Engine::TableLayout &company(); // one row, CompanyNo 1
const Engine::TableLayout &tax();
const Engine::TableLayout &salesman();
const Engine::TableLayout &iAdjDet();
const Engine::TableLayout &iAdjust();
const Engine::TableLayout &iHist();
const Engine::TableLayout &iRecDet();
const Engine::TableLayout &iReceipt();
const Engine::TableLayout &iBalance();
const Engine::TableLayout &warehse(); // the locations
const Engine::TableLayout &vendor();
const Engine::TableLayout &vBalance();
const Engine::TableLayout &vContact();
const Engine::TableLayout &vendCtl(); // counters: one row, no key
const Engine::TableLayout &iUsage();
const Engine::TableLayout &iUsageDet();
const Engine::TableLayout &arInvCtl(); // counters: one row, no key
const Engine::TableLayout &bank();
const Engine::TableLayout &currency();
const Engine::TableLayout &glAccnt();
const Engine::TableLayout &iBarcode(); // further codes of items, as makers print them
const Engine::TableLayout &iDocSaved(); // who has saved a document last, by its type in the history and its key
const Engine::TableLayout &iCounted(); // when an item has been counted last at a location
const Engine::TableLayout &iBackup(); // when the last backup was made, and by whom: one row
const Engine::TableLayout &
iDataVersion(); // which release has brought the tables up to date (base/dataversion): one row
const Engine::TableLayout &
iBegun(); // new documents whose header is not stored yet: who enters them, and what it holds

// The host's table of usage lines: described here, never created or altered.
const Engine::TableLayout &usage();

// The one row of parameters that reports print in their headings, in the in-memory database.
const Engine::TableLayout &reportParameters();

// The tables that belong to the inventory system, in the order in which they are brought up to date.
const QList<const Engine::TableLayout *> &applied();

// By table name, without regard to case; nullptr when it is none of applied().
const Engine::TableLayout *find(QStringView table);

// What messages call a table: "Receipts" for "IReceipt". A name that is unknown stands for itself.
QString titleOf(const QString &table);

} // namespace Tallymere::Layouts
