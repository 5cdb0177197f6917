#pragma once

#include "base/textcolumn.h"
#include "base/value.h"
#include "platform/jet/fieldtype.h"
#include "platform/jet/state.h"

#include <QString>

#include <memory>
#include <vector>

namespace jet {

class Connection;
class Recordset;
struct HeaderField;

/// One field of a recordset and its value in the current record. A light reference: valid until the recordset
/// gets other fields, by being opened anew or by Fields::clear().
class Field final
{
public:
    [[nodiscard]] const QString &name() const;
    [[nodiscard]] FieldType type() const;
    [[nodiscard]] int definedSize() const;
    /// Raises NoCurrentRecord (3021) at the beginning or the end.
    [[nodiscard]] Value value() const;
    /// Only in recordsets made in memory; others raise Failure.
    void setValue(const Value &value);

private:
    friend class Fields;
    Field(Recordset *recordset, std::size_t index) : m_recordset(recordset), m_index(index) {}
    Recordset *m_recordset;
    std::size_t m_index;
};

/// The fields of a recordset, by name without regard to case or by index from 0.
/// A name or index that is not there raises ItemNotFound (3265). A name is looked for in all fields.
class Fields final
{
public:
    [[nodiscard]] int count() const;
    [[nodiscard]] Field item(int index) const;
    [[nodiscard]] Field item(QStringView name) const;
    /// The index of a name, or -1.
    [[nodiscard]] int indexOf(QStringView name) const;
    /// Adds a field to a closed recordset that is being made in memory.
    void append(const QString &name, FieldType type, int size);
    /// Drops the fields of a closed recordset.
    void clear();

private:
    friend class Recordset;
    explicit Fields(Recordset *recordset) : m_recordset(recordset) {}
    Recordset *m_recordset;
};

/// Rows that live without a connection. Opened on a statement it holds all of its rows,
/// typed column by column, and stands on the first; made in memory (append fields, open(),
/// addNew) it is written by its owner. Walking it is O(1) a step.
class Recordset final
{
public:
    Recordset();
    ~Recordset();
    Recordset(const Recordset &) = delete;
    Recordset &operator=(const Recordset &) = delete;

    /// Runs the statement and takes all of its rows. Raises ObjectOpen (3705) when open,
    /// ConnectionClosed (3709), or the statement's error. A statement that returns no
    /// rows at all leaves the recordset closed.
    void open(const QString &sql, Connection &connection);
    /// Opens a recordset made in memory, without rows.
    void open();
    /// Raises ObjectClosed (3704) when not open.
    void close();
    [[nodiscard]] int state() const { return m_open ? StateOpen : StateClosed; }

    [[nodiscard]] bool eof() const;
    [[nodiscard]] int recordCount() const;
    /// The moves raise NoCurrentRecord (3021) where there is no record to move from.
    void moveFirst();
    void moveNext();
    void moveLast();
    /// Appends a record of Nulls and makes it the current one.
    void addNew();

    [[nodiscard]] Fields fields() { return Fields(this); }
    /// Short for fields().item(name).value().
    [[nodiscard]] Value value(QStringView name) const;
    /// Short for fields().item(index).value().
    [[nodiscard]] Value value(int index) const;
    /// The texts of all records of a text field, Null as Null; null for a field of another type. Valid
    /// until the recordset is written, opened or closed.
    [[nodiscard]] const TextColumn *texts(int index) const;

private:
    friend class Field;
    friend class Fields;

    /// The values of one field; only what its type needs is filled.
    struct Column
    {
        TextColumn texts;
        // Whole numbers of a table are exact in a double; calculated ones of more than 53 bits are rounded.
        std::vector<double> numbers;
        std::vector<bool> set; ///< false where a number is Null
        std::vector<Value> variants;
    };

    class Filler;

    void requireOpen() const;
    void requireRecord() const;
    [[nodiscard]] int indexOf(QStringView name) const;
    [[nodiscard]] std::size_t place(int index) const;
    [[nodiscard]] std::size_t place(QStringView name) const;
    [[nodiscard]] Value currentValue(std::size_t column) const;
    [[nodiscard]] Value valueAt(std::size_t row, std::size_t column) const;
    void setValueAt(std::size_t row, std::size_t column, const Value &value);
    void clearRows();

    bool m_open = false;
    bool m_writable = false;
    std::size_t m_rows = 0;
    std::size_t m_current = 0; // m_rows is the end
    std::shared_ptr<const std::vector<HeaderField>> m_header;
    std::vector<Column> m_columns;
};

} // namespace jet
