#include "platform/jet/recordset.h"

#include "base/error.h"
#include "platform/jet/connection.h"
#include "platform/jet/database.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/recordheader.h"
#include "platform/jet/words.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

enum class Storage { Texts, Numbers, Variants };

Storage storageOf(FieldType type)
{
    switch (type) {
    case FieldType::VarChar:
    case FieldType::Text:
    case FieldType::Memo:
        return Storage::Texts;
    case FieldType::Variant:
        return Storage::Variants;
    default:
        return Storage::Numbers;
    }
}

Value variantAt(sqlite3_stmt *statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return qint64(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_NULL:
        return {};
    default:
        return QUtf8StringView(textAt(statement, column)).toString();
    }
}

[[noreturn]] void raiseOpen()
{
    throwError(ObjectOpen, u"Operation is not allowed when the object is open."_s);
}

[[noreturn]] void raiseNotWritable()
{
    raiseError(Failure, notUpdatable);
}

[[noreturn]] void raiseNoItem(const QString &item)
{
    throwError(ItemNotFound,
               "Item cannot be found in the collection corresponding to the requested name or ordinal. ("_L1 +
                   item + u')');
}

void setNumber(std::vector<double> &numbers, std::vector<bool> &set, std::size_t row, double number)
{
    if (row >= numbers.size()) {
        numbers.resize(row + 1);
        set.resize(row + 1, false);
    }
    numbers[row] = number;
    set[row] = true;
}

} // namespace

/// Takes the rows of a statement. Most results of a batch are empty: their fields cost nothing
/// until a row comes.
class Recordset::Filler final : public RowSink
{
public:
    explicit Filler(Recordset &target) : m_target(target) {}

    void takeHeader(const HeaderPtr &header) override
    {
        m_target.m_header = header;
        m_target.m_columns.resize(header->size());
    }

    void takeRow(sqlite3_stmt *row) override
    {
        if (m_storage.empty())
            prepare();
        for (std::size_t i = 0; i < m_storage.size(); ++i) {
            const int column = static_cast<int>(i);
            Column &values = m_target.m_columns[i];
            if (m_storage[i] == Storage::Variants)
                values.variants.push_back(variantAt(row, column));
            else if (sqlite3_column_type(row, column) == SQLITE_NULL)
                continue;
            else if (m_storage[i] == Storage::Texts)
                values.texts.set(m_target.m_rows, textAt(row, column));
            else
                setNumber(values.numbers, values.set, m_target.m_rows, sqlite3_column_double(row, column));
        }
        ++m_target.m_rows;
    }

private:
    void prepare()
    {
        m_storage.reserve(m_target.m_header->size());
        for (const HeaderField &field : *m_target.m_header)
            m_storage.push_back(storageOf(field.type));
    }

    Recordset &m_target;
    std::vector<Storage> m_storage;
};

Recordset::Recordset() = default;
Recordset::~Recordset() = default;

void Recordset::requireOpen() const
{
    if (!m_open)
        throwError(ObjectClosed, u"Operation is not allowed when the object is closed."_s);
}

void Recordset::requireRecord() const
{
    requireOpen();
    if (m_current >= m_rows)
        throwError(NoCurrentRecord,
                   u"Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                   "requires a current record."_s);
}

void Recordset::clearRows()
{
    m_rows = 0;
    m_current = 0;
    for (Column &column : m_columns) {
        column.texts.clear();
        column.numbers.clear();
        column.set.clear();
        column.variants.clear();
    }
}

void Recordset::open(const QString &sql, Connection &connection)
{
    if (m_open)
        raiseOpen();
    Filler filler(*this);
    try {
        m_open = connection.database().run(sql, filler);
    } catch (...) {
        clearRows();
        throw;
    }
    m_writable = false;
}

void Recordset::open()
{
    if (m_open)
        raiseOpen();
    m_open = true;
    m_writable = true;
}

void Recordset::close()
{
    requireOpen();
    m_open = false;
    if (m_rows > 0)
        clearRows();
}

bool Recordset::eof() const
{
    requireOpen();
    return m_current >= m_rows;
}

int Recordset::recordCount() const
{
    requireOpen();
    return static_cast<int>(m_rows);
}

void Recordset::moveFirst()
{
    requireOpen();
    m_current = 0;
    requireRecord();
}

void Recordset::moveNext()
{
    requireRecord();
    ++m_current;
}

void Recordset::moveLast()
{
    requireOpen();
    m_current = m_rows == 0 ? 0 : m_rows - 1;
    requireRecord();
}

void Recordset::addNew()
{
    requireOpen();
    if (!m_writable)
        raiseNotWritable();
    m_current = m_rows++;
}

int Recordset::indexOf(QStringView name) const
{
    for (std::size_t i = 0; m_header && i < m_header->size(); ++i) {
        if (name.compare((*m_header)[i].name, Qt::CaseInsensitive) == 0)
            return int(i);
    }
    return -1;
}

std::size_t Recordset::place(int index) const
{
    if (index < 0 || !m_header || std::size_t(index) >= m_header->size())
        raiseNoItem("item "_L1 + QString::number(index));
    return std::size_t(index);
}

std::size_t Recordset::place(QStringView name) const
{
    const int index = indexOf(name);
    if (index < 0)
        raiseNoItem(u'\'' + name + u'\'');
    return std::size_t(index);
}

Value Recordset::value(QStringView name) const
{
    return currentValue(place(name));
}

Value Recordset::value(int index) const
{
    return currentValue(place(index));
}

Value Recordset::currentValue(std::size_t column) const
{
    requireRecord();
    return valueAt(m_current, column);
}

const TextColumn *Recordset::texts(int index) const
{
    requireOpen();
    const std::size_t column = place(index);
    return storageOf((*m_header)[column].type) == Storage::Texts ? &m_columns[column].texts : nullptr;
}

Value Recordset::valueAt(std::size_t row, std::size_t column) const
{
    const Column &values = m_columns[column];
    const FieldType type = (*m_header)[column].type;
    switch (storageOf(type)) {
    case Storage::Texts:
        return values.texts.isNull(row) ? Value() : Value(values.texts.text(row));
    case Storage::Variants:
        return row < values.variants.size() ? values.variants[row] : Value();
    case Storage::Numbers:
        break;
    }
    if (row >= values.set.size() || !values.set[row])
        return {};
    const double number = values.numbers[row];
    switch (type) {
    case FieldType::Boolean:
        return number != 0;
    case FieldType::Date:
        return OleDate{number};
    case FieldType::Byte:
    case FieldType::Short:
    case FieldType::Long:
        return qint64(number);
    default:
        return number;
    }
}

void Recordset::setValueAt(std::size_t row, std::size_t column, const Value &value)
{
    Column &values = m_columns[column];
    const HeaderField &field = (*m_header)[column];
    switch (storageOf(field.type)) {
    case Storage::Texts:
        if (value.isNull())
            values.texts.setNull(row);
        else
            values.texts.set(row, QStringView(value.toText()));
        return;
    case Storage::Variants:
        if (row >= values.variants.size())
            values.variants.resize(row + 1);
        values.variants[row] = value;
        return;
    case Storage::Numbers:
        break;
    }
    if (!value.isNull())
        setNumber(values.numbers, values.set, row, value.toDouble());
    else if (row < values.set.size())
        values.set[row] = false;
}

const QString &Field::name() const
{
    return (*m_recordset->m_header)[m_index].name;
}

FieldType Field::type() const
{
    return (*m_recordset->m_header)[m_index].type;
}

int Field::definedSize() const
{
    return (*m_recordset->m_header)[m_index].definedSize;
}

Value Field::value() const
{
    return m_recordset->currentValue(m_index);
}

void Field::setValue(const Value &value)
{
    m_recordset->requireRecord();
    if (!m_recordset->m_writable)
        raiseNotWritable();
    m_recordset->setValueAt(m_recordset->m_current, m_index, value);
}

int Fields::count() const
{
    return m_recordset->m_header ? static_cast<int>(m_recordset->m_header->size()) : 0;
}

int Fields::indexOf(QStringView name) const
{
    return m_recordset->indexOf(name);
}

Field Fields::item(int index) const
{
    return Field(m_recordset, m_recordset->place(index));
}

Field Fields::item(QStringView name) const
{
    return Field(m_recordset, m_recordset->place(name));
}

void Fields::clear()
{
    if (m_recordset->m_open)
        raiseOpen();
    m_recordset->m_header.reset();
    m_recordset->m_columns.clear();
}

void Fields::append(const QString &name, FieldType type, int size)
{
    if (m_recordset->m_open)
        raiseOpen();
    auto header = std::make_shared<std::vector<HeaderField>>();
    if (m_recordset->m_header)
        *header = *m_recordset->m_header;
    header->push_back({name, type, size});
    m_recordset->m_header = std::move(header);
    m_recordset->m_columns.resize(m_recordset->m_header->size());
}

} // namespace jet
