#include "transfer/table_csv.h"

#include <QDir>
#include <QLocale>

#include <cmath>
#include <limits>

#include "base/numbers.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// The text of the infinite number, which a column of real numbers can have.
const QString infinite = u"inf"_s;

QString text_of_number(double value)
{
    if (std::isinf(value))
        return value < 0 ? u'-' + infinite : infinite;
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

bool is_column_of_numbers(const column& tested)
{
    return tested.type != column_type::text && tested.type != column_type::any;
}

/// Nothing if the text is no number.
std::optional<QVariant> number_of_text(const QString& text)
{
    bool is_whole = false;
    const qlonglong whole = text.toLongLong(&is_whole);
    if (is_whole)
        return whole;
    constexpr double beyond = std::numeric_limits<double>::infinity();
    if (text == infinite || text == u'-' + infinite)
        return text == infinite ? beyond : -beyond;
    bool is_real = false;
    const double real = text.toDouble(&is_real);
    return is_real && is_numeric(text) ? std::optional<QVariant>(real) : std::nullopt;
}

/// Null is an invalid value. Nothing if the column cannot have the value.
std::optional<QVariant> stored_value(const csv_value& value, const column& where)
{
    if (value.quoted)
        return value.text;
    if (value.text.isEmpty())
        return QVariant();
    return is_column_of_numbers(where) ? number_of_text(value.text) : value.text;
}

class table_reader {
public:
    table_reader(const table& read, QString path, bad_lines& faults)
        : table_(read), path_(std::move(path)), faults_(faults)
    {
    }

    table_rows read()
    {
        // An empty line is a row without a value if there is only one column.
        const auto lines = table_.columns.size() == 1 ? empty_lines::read : empty_lines::skip;
        const auto records = read_csv_file(path_, faults_, lines);
        if (!records || !has_heads(*records))
            return {};
        for (std::size_t record = 1; record < records->size(); ++record)
            add_row((*records)[record]);
        return std::move(rows_);
    }

private:
    bool has_heads(const std::vector<csv_record>& records)
    {
        QStringList heads;
        if (!records.empty()) {
            for (const csv_value& value : records[0].values)
                heads << value.text;
        }
        QStringList expected;
        for (const column& each : table_.columns)
            expected << each.name;
        if (heads == expected)
            return true;
        add_fault(1, in_language(u"la première ligne n'est pas celle des colonnes de la table %1",
                                 u"the first line is not that of the columns of table %1")
                         .arg(table_.name));
        return false;
    }

    void add_row(const csv_record& record)
    {
        if (record.values.size() != table_.columns.size())
            return add_fault(record.line, in_language(u"%1 valeurs au lieu de %2", u"%1 values instead of %2")
                                              .arg(record.values.size())
                                              .arg(table_.columns.size()));
        std::vector<QVariant> row;
        for (std::size_t place = 0; place < record.values.size(); ++place) {
            const auto value = stored_value(record.values[place], table_.columns[place]);
            if (!value)
                return add_fault(record.line, in_language(u"%1 : ce n'est pas un nombre", u"%1: not a number")
                                                  .arg(table_.columns[place].name));
            row.push_back(*value);
        }
        rows_.push_back(std::move(row));
    }

    void add_fault(int line, const QString& reason) { faults_.push_back({path_, line, reason}); }

    const table& table_;
    QString path_;
    bad_lines& faults_;
    table_rows rows_;
};

}  // namespace

QString csv_name_of(const table& named)
{
    return named.name + u".csv";
}

QString csv_heads_of(const table& written)
{
    QStringList names;
    for (const column& each : written.columns)
        names << each.name;
    return names.join(u',') + u'\n';
}

std::optional<QString> csv_line_of(const std::vector<QVariant>& row)
{
    QStringList values;
    for (const QVariant& value : row) {
        if (value.isNull())
            values << QString();
        else if (value.typeId() == QMetaType::QByteArray)
            return std::nullopt;
        else if (value.typeId() == QMetaType::QString)
            values << csv_quoted(value.toString());
        else if (value.typeId() == QMetaType::Double)
            values << text_of_number(value.toDouble());
        else
            values << QString::number(value.toLongLong());
    }
    return values.join(u',') + u'\n';
}

table_rows read_table(const table& read, const QString& folder, bad_lines& faults)
{
    return table_reader(read, QDir(folder).filePath(csv_name_of(read)), faults).read();
}

}  // namespace verdane
