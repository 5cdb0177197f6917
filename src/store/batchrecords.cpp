#include "store/batchrecords.h"

#include "base/error.h"
#include "platform/jet/errors.h"

using namespace Qt::StringLiterals;

BatchRecords::BatchRecords(jet::Recordset &records, std::span<const QLatin1StringView> fields)
    : m_records(records)
{
    if (records.recordCount() == 0)
        return;
    m_places.reserve(fields.size());
    for (const QLatin1StringView field : fields) {
        const int place = records.fields().indexOf(QString(field));
        if (place < 0)
            throwError(jet::ItemNotFound, "The records of the batch have no field '"_L1 + field + "'."_L1);
        m_places.push_back(place);
    }
}

bool BatchRecords::last()
{
    if (m_records.recordCount() == 0)
        return false;
    m_records.moveLast();
    return true;
}

bool BatchRecords::next()
{
    if (m_records.recordCount() == 0)
        return false;
    if (m_started)
        m_records.moveNext();
    else
        m_records.moveFirst();
    m_started = true;
    return !m_records.eof();
}

QString BatchRecords::text(std::size_t field) const
{
    return m_records.value(m_places[field]).toText();
}
