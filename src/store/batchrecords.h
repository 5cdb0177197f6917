#pragma once

#include "platform/jet/recordset.h"

#include <QLatin1StringView>
#include <QString>

#include <initializer_list>
#include <span>
#include <vector>

/// The walk of a batch over the records it is given, from the first, with the places of the
/// fields looked up once:
///
///     for (BatchRecords batch(records, {"Name"_L1, "Server"_L1}); batch.next();)
///         use(batch.text(0), batch.text(1));
///
/// The records must outlive the walk, stand on the one that next() has come to and are left
/// at their end. text() is of that record.
class BatchRecords final
{
public:
    /// Raises jet::ItemNotFound for a field that the records do not have; records without a
    /// single row need none.
    BatchRecords(jet::Recordset &records, std::span<const QLatin1StringView> fields);
    BatchRecords(jet::Recordset &records, std::initializer_list<QLatin1StringView> fields)
        : BatchRecords(records, std::span(fields.begin(), fields.size()))
    {
    }

    [[nodiscard]] int count() const { return m_records.recordCount(); }
    /// Goes to the last record. To be called before the first next().
    [[nodiscard]] bool last();
    [[nodiscard]] bool next();
    /// The value of a field, by its place in the list given; Null is the empty text.
    [[nodiscard]] QString text(std::size_t field) const;

private:
    jet::Recordset &m_records;
    std::vector<int> m_places;
    bool m_started = false;
};
