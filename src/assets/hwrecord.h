#pragma once

#include <QString>

/// One row of Tbl_HW without its id. The members are in the order of the table's columns;
/// EUCD and Network are yes (any number) or no (0).
struct HWRecord
{
    int HWTypeID = 0;
    QString SerialNumber = {};
    QString AssetNumber = {};
    QString WarrantyNumber = {};
    QString CompanyPropertyNumber = {};
    QString WorkStationName = {};
    QString Supplier = {};
    /// As formatSqlDate() gives it; the store refuses an empty one.
    QString PurchaseDate = {};
    QString Usage = {};
    QString Status = {};
    int EUCD = 0;
    QString Comments = {};
    int Network = 0;
    QString IPAddress = {};
    QString IPSubnet = {};
};
