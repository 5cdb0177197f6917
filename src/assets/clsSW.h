#pragma once

#include "platform/jet/recordset.h"
#include "store/recordclass.h"

#include <QString>
#include <QStringList>

#include <span>

/// All that reads and writes Tbl_SW, the catalogue of software, and the software's side of
/// Tbl_SWHW. A product is known by its type, manufacturer, name and version; the description is
/// no part of that.
///
/// The readers open the caller's recordset; its rows need no store any more. Nothing is
/// escaped. Every method raises the store's error, and what was written before it stays.
class clsSW final : public RecordClass
{
public:
    /// The distinct texts in use, after an id of 0.
    void getManufacturers(const QString &connectionString, jet::Recordset &result);
    /// Raises RuleViolation when there is such a product.
    void Add(const QString &connectionString, const QString &type, const QString &manufacturer,
             const QString &name, const QString &version, const QString &description);
    void getAll(const QString &connectionString, jet::Recordset &result);
    void getDisplayNames(const QString &connectionString, jet::Recordset &result);
    /// The given items become the only ones that carry the software.
    void addHW(const QString &connectionString, int id, std::span<const int> items);
    void getHW(const QString &connectionString, jet::Recordset &result, int id);
    /// The users of the hardware that carries the software, once for each such item.
    void getUsers(const QString &connectionString, jet::Recordset &result, int id);
    void getNotHW(const QString &connectionString, jet::Recordset &result, int id);
    /// Raises RuleViolation when another row is such a product.
    void update(const QString &connectionString, int id, const QString &type, const QString &manufacturer,
                const QString &name, const QString &version, const QString &description);
    /// Reports what fails, see RecordClass::deleteEach.
    [[nodiscard]] Report Delete(const QString &connectionString, std::span<const int> ids,
                                const QStringList &names, Steps &steps);
    void getTypes(const QString &connectionString, jet::Recordset &result);
};
