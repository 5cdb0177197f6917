#pragma once

#include "platform/jet/recordset.h"
#include "store/recordclass.h"

#include <QString>
#include <QStringList>

#include <span>

/// All that reads and writes Tbl_HWType, the catalogue of devices. A type is known by its type,
/// manufacturer, model and type number; the description is no part of that.
///
/// The readers open the caller's recordset; its rows need no store any more. Nothing is
/// escaped. Every method raises the store's error, and what was written before it stays.
class clsHWType final : public RecordClass
{
public:
    /// Raises RuleViolation when there is such a type.
    void Add(const QString &connectionString, const QString &type, const QString &manufacturer,
             const QString &model, const QString &typeNumber, const QString &description);
    void getAll(const QString &connectionString, jet::Recordset &result);
    /// The types that contain the three texts. One with a Null in such a field is never found.
    void Find(const QString &connectionString, jet::Recordset &result, const QString &type,
              const QString &manufacturer, const QString &model);
    /// The id and the text under which hardware shows its type: four fields, a blank between them.
    void getDisplayList(const QString &connectionString, jet::Recordset &result);
    /// The distinct texts in use, after an id of 0.
    void getTypes(const QString &connectionString, jet::Recordset &result);
    void getManufacturers(const QString &connectionString, jet::Recordset &result);
    /// How many items are of the types.
    [[nodiscard]] int countItems(const QString &connectionString, std::span<const int> types);
    /// Raises RuleViolation when another row is such a type.
    void update(const QString &connectionString, int id, const QString &type, const QString &manufacturer,
                const QString &model, const QString &typeNumber, const QString &description);
    /// Hardware of the type stays, without one. Reports what fails, see RecordClass::deleteEach.
    [[nodiscard]] Report Delete(const QString &connectionString, std::span<const int> ids,
                                const QStringList &names, Steps &steps);
};
