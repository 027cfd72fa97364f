#pragma once

#include <QString>
#include <QStringList>

namespace verdane::testing {

using namespace Qt::StringLiterals;

/// A text between single quotes, with the quotes inside it doubled.
inline QString quoted_text(QString text)
{
    return u'\'' + text.replace(u'\'', u"''"_s) + u'\'';
}

/// An SQL statement `insert into TABLE (...) values (...)`, built column by column.
class insertion {
public:
    explicit insertion(const QString& table) : table_(table) {}

    /// A null text leaves the column without a value.
    void text(const QString& column, const QString& value)
    {
        if (!value.isNull())
            literal(column, quoted_text(value));
    }
    void number(const QString& column, int value) { literal(column, QString::number(value)); }

    QString statement() const
    {
        return u"insert into %1 (%2) values (%3)"_s.arg(table_, columns_.join(u", "), values_.join(u", "));
    }

private:
    void literal(const QString& column, const QString& value)
    {
        columns_ << column;
        values_ << value;
    }

    QString table_;
    QStringList columns_;
    QStringList values_;
};

}  // namespace verdane::testing
