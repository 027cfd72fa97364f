#pragma once

#include <QString>
#include <QVariant>

#include "base/counts.h"

namespace verdane {

class row_editor;

/// One field of the current row of a recordset. Reading it at `eof()`, or on a row that was deleted, fails
/// with `misuse`.
class Field {
public:
    QVariant value() const;
    bool is_null() const;

    /// The value as text, not trimmed. Null fails with `invalid_null`.
    QString text() const;
    /// The same, with Null read as the empty text.
    QString text_or_empty() const;
    /// The value trimmed of blanks, with Null read as the empty text.
    QString trimmed() const;

    /// The value as a count. Null fails with `invalid_null`, a value outside 16 bits with `overflow`.
    int16 to_int16() const;
    /// The same, with Null or an empty text read as 0.
    int16 int16_or_zero() const;
    int32 to_int32() const;
    int32 int32_or_zero() const;
    /// The leading number of the value. Null fails with `invalid_null`.
    double to_double() const;
    double double_or_zero() const;
    /// A yes/no value; Null is no.
    bool yes() const;

    /// Writes the field of the current row, converted to the column's type; an invalid QVariant is Null. The
    /// row is then pending until it is committed or its changes are dropped. Fails with `misuse` on a
    /// read-only recordset.
    void set(const QVariant& value);
    void set(int16 value);
    void set(int32 value);
    void set(const QString& value) { set(QVariant(value)); }
    void set(int value) { set(QVariant(value)); }
    void set(double value) { set(QVariant(value)); }
    void set(bool value) { set(QVariant(value)); }

    /// Of the column, from 0.
    int ordinal() const { return ordinal_; }

private:
    friend class Recordset;
    Field(row_editor& rows, int ordinal) : rows_(rows), ordinal_(ordinal) {}
    const QVariant& cell() const;
    const QVariant& cell_with_value() const;
    row_editor& rows_;
    int ordinal_;
};

}  // namespace verdane
