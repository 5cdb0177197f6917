#pragma once

#include "store/statement.h"

/// A row of one of the two catalogues, Tbl_HWType and Tbl_SW, without its id.
struct CatalogueRow
{
    QString type;
    QString manufacturer;
    QString name;    ///< Model of a device
    QString version; ///< TypeNumber of a device
    QString description;
};

/// The text with the row in the place of {type}, {manufacturer}, {name}, {version} and
/// {description}, and the id in that of {id}.
[[nodiscard]] inline QString joined(QLatin1StringView text, const CatalogueRow &row, int id = 0)
{
    const QString idText = QString::number(id);
    using namespace Qt::StringLiterals;
    return joined(text, {{"type"_L1, row.type},
                         {"manufacturer"_L1, row.manufacturer},
                         {"name"_L1, row.name},
                         {"version"_L1, row.version},
                         {"description"_L1, row.description},
                         {"id"_L1, idText}});
}
