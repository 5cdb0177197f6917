#include "assets/assetstatements.h"

#include "store/statement.h"

using namespace Qt::StringLiterals;

namespace {

/// The last of the fillings is the id: without one no text may ask for it.
template <std::size_t count>
QString joinedWithId(QLatin1StringView text, const Filling (&fillings)[count], bool hasId)
{
    return joined(text, std::span(fillings).first(hasId ? count : count - 1));
}

QString textOf(std::optional<int> id)
{
    return id ? QString::number(*id) : QString();
}

} // namespace

QString joined(QLatin1StringView text, const CatalogueRow &row, std::optional<int> id)
{
    const QString idText = textOf(id);
    return joinedWithId(text,
                        {{"type"_L1, row.type},
                         {"manufacturer"_L1, row.manufacturer},
                         {"name"_L1, row.name},
                         {"version"_L1, row.version},
                         {"description"_L1, row.description},
                         {"id"_L1, idText}},
                        id.has_value());
}

QString joined(QLatin1StringView text, const HWRecord &item, std::optional<int> id)
{
    const QString idText = textOf(id);
    const QString type = QString::number(item.HWTypeID);
    const QString eucd = QString::number(item.EUCD);
    const QString network = QString::number(item.Network);
    return joinedWithId(text,
                        {{"type"_L1, type},
                         {"serial"_L1, item.SerialNumber},
                         {"asset"_L1, item.AssetNumber},
                         {"warranty"_L1, item.WarrantyNumber},
                         {"property"_L1, item.CompanyPropertyNumber},
                         {"workstation"_L1, item.WorkStationName},
                         {"supplier"_L1, item.Supplier},
                         {"date"_L1, item.PurchaseDate},
                         {"usage"_L1, item.Usage},
                         {"status"_L1, item.Status},
                         {"eucd"_L1, eucd},
                         {"comments"_L1, item.Comments},
                         {"network"_L1, network},
                         {"ip"_L1, item.IPAddress},
                         {"subnet"_L1, item.IPSubnet},
                         {"id"_L1, idText}},
                        id.has_value());
}

// clang-format off
QString insertHWType(const CatalogueRow &device)
{
    return joined("INSERT INTO Tbl_HWType ([Type],[Manufacturer],[Model],[TypeNumber],[Description]) VALUES ('{type}','{manufacturer}','{name}','{version}','{description}')"_L1, device);
}

QString insertSW(const CatalogueRow &product)
{
    return joined("INSERT INTO Tbl_SW ([Type],[Manufacturer],[Name],[Version],[Description]) VALUES ('{type}','{manufacturer}','{name}','{version}','{description}')"_L1, product);
}

QString insertHW(const HWRecord &item)
{
    return joined(
        "INSERT INTO Tbl_HW ([HWTypeID],[SerialNumber],[AssetNumber],[WarrantyNumber],[CompanyPropertyNumber],[WorkStationName],[Supplier],[PurchaseDate],[Usage],[Status],[EUCD],[Comments],[Network],[IPAddress],[IPSubnet]) "
        "VALUES ({type},'{serial}','{asset}','{warranty}','{property}','{workstation}','{supplier}',#{date}#,'{usage}','{status}',{eucd},'{comments}',{network},'{ip}','{subnet}')"_L1, item);
}
// clang-format on

QString insertRoom(const QString &number, const QString &description)
{
    return joined("INSERT INTO Tbl_Rooms (RoomNumber,Description) VALUES ('{number}','{description}')"_L1,
                  {{"number"_L1, number}, {"description"_L1, description}});
}
