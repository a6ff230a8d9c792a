#pragma once

#include "engine/values/fieldname.h"

// The fields of the inventory tables. The layouts are built from them, and rules and screens name fields by them. A
// name means one type in every table; it stands under the table that has it first. The names are stored ones,
// except for the last.

namespace Tallymere::Fields {

using enum Engine::FieldType;

// Item
inline constexpr Engine::FieldName<Integer> ItemID{u"ItemID"};
inline constexpr Engine::FieldName<Text> ItemNo{u"ItemNo"};
inline constexpr Engine::FieldName<Text> ItemDescription{u"ItemDescription"};
inline constexpr Engine::FieldName<Integer> SalesGLAccountID{u"SalesGLAccountID"};
inline constexpr Engine::FieldName<Integer> COGSGLAccountID{u"COGSGLAccountID"};
inline constexpr Engine::FieldName<Integer> InventoryGLAccountID{u"InventoryGLAccountID"};
inline constexpr Engine::FieldName<Text> TaxCodes{u"TaxCodes"};
inline constexpr Engine::FieldName<Money> UnitPrice{u"UnitPrice"};
inline constexpr Engine::FieldName<Money> WgtAvgCost{u"WgtAvgCost"};
inline constexpr Engine::FieldName<Money> StandardCost{u"StandardCost"};
inline constexpr Engine::FieldName<Boolean> Suspended{u"Suspended"};
inline constexpr Engine::FieldName<Memo> Notes{u"Notes"};
inline constexpr Engine::FieldName<Integer> ItemTypeID{u"ItemTypeID"};

// IBarcode
inline constexpr Engine::FieldName<Integer> BarcodeID{u"BarcodeID"};
inline constexpr Engine::FieldName<Text> Barcode{u"Barcode"};

// ItemType
inline constexpr Engine::FieldName<Text> TypeName{u"TypeName"};
inline constexpr Engine::FieldName<Boolean> Inventory{u"Inventory"};
inline constexpr Engine::FieldName<SmallInt> CostingMethod{u"CostingMethod"};

// Warehse
inline constexpr Engine::FieldName<Integer> WarehouseID{u"WarehouseID"};
inline constexpr Engine::FieldName<Text> WarehouseName{u"WarehouseName"};
inline constexpr Engine::FieldName<Integer> Location_ID{u"Location_ID"};

// Tax
inline constexpr Engine::FieldName<Integer> TaxID{u"TaxID"};
inline constexpr Engine::FieldName<Text> TaxName{u"TaxName"};
inline constexpr Engine::FieldName<Float> Rate{u"Rate"};
inline constexpr Engine::FieldName<Text> TaxCode{u"TaxCode"};
inline constexpr Engine::FieldName<Text> TaxDescription{u"TaxDescription"};
inline constexpr Engine::FieldName<Integer> TaxGLAccountID{u"TaxGLAccountID"};

// Currency
inline constexpr Engine::FieldName<Integer> CurrencyID{u"CurrencyID"};
inline constexpr Engine::FieldName<Text> CurrencyName{u"CurrencyName"};
inline constexpr Engine::FieldName<Float> ExchangeRate{u"ExchangeRate"};
inline constexpr Engine::FieldName<Integer> GainLossExchangeGLAccntID{u"GainLossExchangeGLAccntID"};
inline constexpr Engine::FieldName<Integer> APGLAccountID{u"APGLAccountID"};
inline constexpr Engine::FieldName<Integer> APDiscGLAccountID{u"APDiscGLAccountID"};
inline constexpr Engine::FieldName<Integer> ARGLAccountID{u"ARGLAccountID"};
inline constexpr Engine::FieldName<Integer> ARDiscGLAccountID{u"ARDiscGLAccountID"};
inline constexpr Engine::FieldName<Integer> DfltWriteOffGLAccountID{u"DfltWriteOffGLAccountID"};

// Bank
inline constexpr Engine::FieldName<Integer> BankID{u"BankID"};
inline constexpr Engine::FieldName<Text> BankName{u"BankName"};
inline constexpr Engine::FieldName<Integer> BankGLAccountID{u"BankGLAccountID"};

// GLAccnt
inline constexpr Engine::FieldName<Integer> GLAccountID{u"GLAccountID"};
inline constexpr Engine::FieldName<Text> GLAccount{u"GLAccount"};
inline constexpr Engine::FieldName<Text> AccountName{u"AccountName"};
inline constexpr Engine::FieldName<SmallInt> AccountType{u"AccountType"};

// Company
inline constexpr Engine::FieldName<SmallInt> CompanyNo{u"CompanyNo"};
inline constexpr Engine::FieldName<Text> CompanyName{u"CompanyName"};
inline constexpr Engine::FieldName<SmallInt> FiscalYear{u"FiscalYear"};
inline constexpr Engine::FieldName<SmallInt> DefaultPeriodYYYY{u"DefaultPeriodYYYY"};
inline constexpr Engine::FieldName<SmallInt> DefaultPeriodPP{u"DefaultPeriodPP"};
inline constexpr Engine::FieldName<SmallInt> WPeriodFromYYYY{u"WPeriodFromYYYY"};
inline constexpr Engine::FieldName<SmallInt> WPeriodFromPP{u"WPeriodFromPP"};
inline constexpr Engine::FieldName<SmallInt> WPeriodToYYYY{u"WPeriodToYYYY"};
inline constexpr Engine::FieldName<SmallInt> WPeriodToPP{u"WPeriodToPP"};
inline constexpr Engine::FieldName<SmallInt> EPeriodFromYYYY{u"EPeriodFromYYYY"};
inline constexpr Engine::FieldName<SmallInt> EPeriodFromPP{u"EPeriodFromPP"};
inline constexpr Engine::FieldName<SmallInt> EPeriodToYYYY{u"EPeriodToYYYY"};
inline constexpr Engine::FieldName<SmallInt> EPeriodToPP{u"EPeriodToPP"};
inline constexpr Engine::FieldName<Integer> DefaultCurrencyID{u"DefaultCurrencyID"};
inline constexpr Engine::FieldName<Boolean> APInvPONumbers{u"APInvPONumbers"};
inline constexpr Engine::FieldName<Boolean> APInvDescriptions{u"APInvDescriptions"};
inline constexpr Engine::FieldName<Integer> DfltSalesGLAccountID{u"DfltSalesGLAccountID"};
inline constexpr Engine::FieldName<Integer> DfltCOGSGLAccountID{u"DfltCOGSGLAccountID"};
inline constexpr Engine::FieldName<Integer> DfltInventoryGLAccountID{u"DfltInventoryGLAccountID"};
inline constexpr Engine::FieldName<Text> AddressLine1{u"AddressLine1"};
inline constexpr Engine::FieldName<Text> AddressLine2{u"AddressLine2"};
inline constexpr Engine::FieldName<Text> AddressLine3{u"AddressLine3"};
inline constexpr Engine::FieldName<Text> Phone{u"Phone"};
inline constexpr Engine::FieldName<Text> TaxNo{u"TaxNo"};
inline constexpr Engine::FieldName<Text> ARInvoiceMessage{u"ARInvoiceMessage"};
inline constexpr Engine::FieldName<SmallInt> ARInvoiceStyle{u"ARInvoiceStyle"};
inline constexpr Engine::FieldName<Boolean> ARInvoiceAustralia{u"ARInvoiceAustralia"};
inline constexpr Engine::FieldName<SmallInt> ARInvoiceCopies{u"ARInvoiceCopies"};
inline constexpr Engine::FieldName<Text> ApplicationVersion{u"ApplicationVersion"};
inline constexpr Engine::FieldName<SmallInt> BackupOnExit{u"BackupOnExit"};
inline constexpr Engine::FieldName<Integer> DefaultNetDays{u"DefaultNetDays"};
inline constexpr Engine::FieldName<Text> ClientInvoiceLineItems{u"ClientInvoiceLineItems"};
inline constexpr Engine::FieldName<Text> FunderInvoiceLineItems{u"FunderInvoiceLineItems"};
inline constexpr Engine::FieldName<Text> FunderInvoiceFormat{u"FunderInvoiceFormat"};
inline constexpr Engine::FieldName<Text> InvoiceFormat{u"InvoiceFormat"};

// vendor contacts and salespeople
inline constexpr Engine::FieldName<Text> LastName{u"LastName"};
inline constexpr Engine::FieldName<Text> FirstName{u"FirstName"};
inline constexpr Engine::FieldName<Text> JobTitle{u"JobTitle"};
inline constexpr Engine::FieldName<Text> BusinessPhone{u"BusinessPhone"};
inline constexpr Engine::FieldName<Text> BusinessPhoneExt{u"BusinessPhoneExt"};
inline constexpr Engine::FieldName<Text> BusinessPhone2{u"BusinessPhone2"};
inline constexpr Engine::FieldName<Text> BusinessPhone2Ext{u"BusinessPhone2Ext"};
inline constexpr Engine::FieldName<Text> HomePhone{u"HomePhone"};
inline constexpr Engine::FieldName<Text> Fax{u"Fax"};
inline constexpr Engine::FieldName<Text> Cellular{u"Cellular"};
inline constexpr Engine::FieldName<Text> Pager{u"Pager"};
inline constexpr Engine::FieldName<Text> EMail{u"EMail"};

// Vendor
inline constexpr Engine::FieldName<Integer> VendorID{u"VendorID"};
inline constexpr Engine::FieldName<Text> VendorNo{u"VendorNo"};
inline constexpr Engine::FieldName<Text> VendorName{u"VendorName"};
inline constexpr Engine::FieldName<Text> City{u"City"};
inline constexpr Engine::FieldName<Text> StateProv{u"StateProv"};
inline constexpr Engine::FieldName<Text> ZipCode{u"ZipCode"};
inline constexpr Engine::FieldName<Text> Country{u"Country"};
inline constexpr Engine::FieldName<Text> Contact{u"Contact"};
inline constexpr Engine::FieldName<Text> WebPage{u"WebPage"};
inline constexpr Engine::FieldName<Text> DefaultInvDescription{u"DefaultInvDescription"};
inline constexpr Engine::FieldName<Float> DiscPC{u"DiscPC"};
inline constexpr Engine::FieldName<SmallInt> DiscDays{u"DiscDays"};
inline constexpr Engine::FieldName<SmallInt> NetDays{u"NetDays"};
inline constexpr Engine::FieldName<SmallInt> DelayDays{u"DelayDays"};

// VContact
inline constexpr Engine::FieldName<AutoInc> ContactID{u"ContactID"};

// Salesman
inline constexpr Engine::FieldName<Integer> SalesmanID{u"SalesmanID"};

// VBalance
inline constexpr Engine::FieldName<Money> Balance{u"Balance"};

// ItemCtl
inline constexpr Engine::FieldName<Integer> NextItemNo{u"NextItemNo"};
inline constexpr Engine::FieldName<Integer> NextItemID{u"NextItemID"};
inline constexpr Engine::FieldName<Integer> NextInvAdjustmentID{u"NextInvAdjustmentID"};
inline constexpr Engine::FieldName<Integer> NextInvReceiptID{u"NextInvReceiptID"};
inline constexpr Engine::FieldName<Integer> NextInvReceiptNo{u"NextInvReceiptNo"};

// VendCtl
inline constexpr Engine::FieldName<Integer> NextVendorNo{u"NextVendorNo"};
inline constexpr Engine::FieldName<Integer> NextVendorID{u"NextVendorID"};

// ARInvCtl
inline constexpr Engine::FieldName<Integer> NextInvoiceID{u"NextInvoiceID"};
inline constexpr Engine::FieldName<Integer> NextInvoiceNo{u"NextInvoiceNo"};

// IReceipt
inline constexpr Engine::FieldName<Integer> ReceiptID{u"ReceiptID"};
inline constexpr Engine::FieldName<Text> ReceiptNo{u"ReceiptNo"};
inline constexpr Engine::FieldName<SmallInt> GLYear{u"GLYear"};
inline constexpr Engine::FieldName<SmallInt> GLPeriod{u"GLPeriod"};
inline constexpr Engine::FieldName<Date> ReceiptDate{u"ReceiptDate"};
inline constexpr Engine::FieldName<Text> PurchaseOrderNo{u"PurchaseOrderNo"};
inline constexpr Engine::FieldName<Boolean> Posted{u"Posted"};

// IRecDet
inline constexpr Engine::FieldName<Integer> Seq{u"Seq"};
inline constexpr Engine::FieldName<Float> QtyReceived{u"QtyReceived"};
inline constexpr Engine::FieldName<Money> UnitCost{u"UnitCost"};

// IUsage
inline constexpr Engine::FieldName<Integer> UsageID{u"UsageID"};
inline constexpr Engine::FieldName<Integer> CustomerID{u"CustomerID"};
inline constexpr Engine::FieldName<Text> UsageNo{u"UsageNo"};
inline constexpr Engine::FieldName<Text> Description{u"Description"};
inline constexpr Engine::FieldName<Date> InventoryDate{u"InventoryDate"};
inline constexpr Engine::FieldName<Money> InvoiceAmount{u"InvoiceAmount"};
inline constexpr Engine::FieldName<Money> PaidAmount{u"PaidAmount"};
inline constexpr Engine::FieldName<Money> DiscTakenAmount{u"DiscTakenAmount"};
inline constexpr Engine::FieldName<Money> WriteOffAmount{u"WriteOffAmount"};
inline constexpr Engine::FieldName<Money> Owing{u"Owing"};
inline constexpr Engine::FieldName<Boolean> Printed{u"Printed"};

// IUsageDet
inline constexpr Engine::FieldName<Float> Quantity{u"Quantity"};
inline constexpr Engine::FieldName<Text> ItemOvDesc{u"ItemOvDesc"};

// IAdjust
inline constexpr Engine::FieldName<Integer> AdjustmentID{u"AdjustmentID"};
inline constexpr Engine::FieldName<Date> AdjDate{u"AdjDate"};
inline constexpr Engine::FieldName<Text> AdjDescription{u"AdjDescription"};

// IHist
inline constexpr Engine::FieldName<AutoInc> IHistID{u"IHistID"};
inline constexpr Engine::FieldName<SmallInt> TransType{u"TransType"};
inline constexpr Engine::FieldName<Date> TransDate{u"TransDate"};
inline constexpr Engine::FieldName<Text> TransDescription{u"TransDescription"};
inline constexpr Engine::FieldName<Integer> ARInvoiceID{u"ARInvoiceID"};

// IBalance
inline constexpr Engine::FieldName<Float> QtyOnHand{u"QtyOnHand"};

// IDocSaved
inline constexpr Engine::FieldName<Integer> DocumentID{u"DocumentID"};
inline constexpr Engine::FieldName<Text> SavedBy{u"SavedBy"};
inline constexpr Engine::FieldName<DateTime> SavedAt{u"SavedAt"};

// ICounted
inline constexpr Engine::FieldName<Date> CountDate{u"CountDate"};

// IBackup
inline constexpr Engine::FieldName<Integer> BackupID{u"BackupID"};

// IDataVersion
inline constexpr Engine::FieldName<Integer> VersionID{u"VersionID"};
inline constexpr Engine::FieldName<Integer> DataVersion{u"DataVersion"};
inline constexpr Engine::FieldName<Text> ProgramVersion{u"ProgramVersion"};

// MemTableARReportParameters
inline constexpr Engine::FieldName<Date> Delivery_Date{u"Delivery_Date"};
inline constexpr Engine::FieldName<Text> Services{u"Services"};
inline constexpr Engine::FieldName<Text> Routes{u"Routes"};

// Calculated for lists, and stored nowhere
inline constexpr Engine::FieldName<Text> FullName{u"FullName"}; // of a person
inline constexpr Engine::FieldName<Text> Periodppyyyy{u"Periodppyyyy"};
inline constexpr Engine::FieldName<Text> TransTypeName{u"TransTypeName"};
inline constexpr Engine::FieldName<Money> ExtAmount{u"ExtAmount"}; // of a line

} // namespace Tallymere::Fields
