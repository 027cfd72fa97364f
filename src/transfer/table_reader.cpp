#include "transfer/table_reader.h"

#include <QDir>
#include <QSet>

#include "scoring/limits.h"
#include "store/tables/games.h"
#include "transfer/console.h"
#include "transfer/table_csv.h"
#include "transfer/table_values.h"

namespace verdane {

namespace {

QString counted_lines(std::size_t rows)
{
    return counted(static_cast<int>(rows), {u"ligne", u"row"}, {u"lignes", u"rows"});
}

class table_reader {
public:
    table_reader(const table& read, QString path, bad_lines& faults)
        : table_(read), path_(std::move(path)), faults_(faults)
    {
    }

    /// `checksum` is that of the file that was exported.
    table_rows read(const QString& checksum)
    {
        const auto bytes = read_file(path_, faults_);
        if (!bytes)
            return {};
        is_edited_ = checksum_of(*bytes) != checksum;
        // An empty line is a row without a value if there is only one column.
        const auto lines = table_.columns.size() == 1 ? empty_lines::read : empty_lines::skip;
        const auto records = records_of(*bytes, path_, faults_, lines);
        if (!records || !has_heads(*records))
            return {};
        for (std::size_t record = 1; record < records->size(); ++record)
            add_row((*records)[record]);
        if (!bytes->endsWith('\n'))
            add_fault(static_cast<int>(bytes->count('\n')) + 1,
                      in_language(u"la ligne n'a pas de fin : le fichier est coupé",
                                  u"the line has no end: the file is cut"));
        if (is_edited_)
            check_fixed_rows(*records);
        return std::move(rows_);
    }

    bool is_edited() const { return is_edited_; }

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
            const column& where = table_.columns[place];
            const csv_value& read = record.values[place];
            const value_of_file value =
                is_edited_ ? edited_value(read, table_, where) : exported_value(read, where);
            if (!value.fault.isEmpty())
                return add_fault(record.line, where.name + in_language(u" : ", u": ") + value.fault);
            row.push_back(value.value);
        }
        if (is_edited_ && is_games())
            check_round(record.line, row[tables::games::date].toString());
        rows_.push_back(std::move(row));
    }

    bool is_games() const { return table_.name == QStringView(tables::games::table.name); }

    /// The row of the round is not yet in `rows_`.
    void check_round(int line, const QString& key)
    {
        if (keys_.contains(key))
            add_fault(line, in_language(u"la ronde %1 est déjà sur une ligne précédente",
                                        u"the round %1 is on an earlier line, too")
                                .arg(key));
        else if (rows_.size() == most_rounds)
            add_fault(line, in_language(u"un journal a %1 rondes au plus", u"a diary has %1 rounds at most")
                                .arg(most_rounds));
        keys_ << key;
    }

    void check_fixed_rows(const std::vector<csv_record>& records)
    {
        // The first record has the heads.
        const std::size_t rows = records.size() - 1;
        const auto expected = static_cast<std::size_t>(table_.fixed_rows);
        if (expected > 0 && rows != expected)
            add_fault(rows > expected ? records[expected + 1].line : 0,
                      in_language(u"%1 au lieu de %2", u"%1 instead of %2")
                          .arg(counted_lines(rows), QString::number(expected)));
    }

    void add_fault(int line, const QString& reason) { faults_.push_back({path_, line, reason}); }

    const table& table_;
    QString path_;
    bad_lines& faults_;
    bool is_edited_ = false;
    QSet<QString> keys_;
    table_rows rows_;
};

/// The rows are those of the file if it has no fault.
void check_number(const table_rows& rows, const QString& folder, const table& read,
                  const listed_table& listed, bad_lines& faults)
{
    if (rows.size() == static_cast<std::size_t>(listed.rows))
        return;
    const QString words =
        in_language(u"%1 dans le fichier %2 ; si vous avez ajouté ou enlevé des lignes, écrivez ici leur "
                    u"nombre, sinon le fichier est coupé",
                    u"%1 in the file %2; if you added or removed rows, write their number here, otherwise "
                    u"the file is cut");
    faults.push_back(
        {path_of_list(folder), listed.line, words.arg(counted_lines(rows.size()), csv_name_of(read))});
}

}  // namespace

table_rows read_table(const table& read, const QString& folder, const table_list& list, bad_lines& faults,
                      QStringList& edited)
{
    const auto listed = list.find(read.name);
    const std::size_t faults_before = faults.size();
    table_reader reader(read, QDir(folder).filePath(csv_name_of(read)), faults);
    table_rows rows = reader.read(listed == list.end() ? QString() : listed->second.checksum);
    if (reader.is_edited())
        edited << csv_name_of(read);
    if (listed != list.end() && faults.size() == faults_before)
        check_number(rows, folder, read, listed->second, faults);
    return rows;
}

}  // namespace verdane
