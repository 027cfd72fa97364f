#include "transfer/table_list.h"

#include <QCryptographicHash>
#include <QDir>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

const QStringList heads{u"table"_s, u"rows"_s, u"sha256"_s};

QStringList texts_of(const csv_record& record)
{
    QStringList texts;
    for (const csv_value& value : record.values)
        texts << value.text;
    return texts;
}

QString wrong_line()
{
    return in_language(u"il faut le nom d'une table, le nombre de ses lignes et la somme de contrôle",
                       u"the name of a table, the number of its rows and the checksum are needed");
}

class list_reader {
public:
    list_reader(QString path, bad_lines& faults) : path_(std::move(path)), faults_(faults) {}

    table_list read(const std::vector<csv_record>& records)
    {
        if (records.empty() || texts_of(records[0]) != heads) {
            add_fault(1, in_language(u"la première ligne n'est pas %1", u"the first line is not %1")
                             .arg(heads.join(u',')));
            return {};
        }
        for (std::size_t record = 1; record < records.size(); ++record)
            add(records[record].line, texts_of(records[record]));
        for (const table& each : schema()) {
            if (!tables_.contains(each.name))
                add_fault(0, in_language(u"la table %1 manque", u"table %1 is missing").arg(each.name));
        }
        return std::move(tables_);
    }

private:
    void add(int line, const QStringList& texts)
    {
        bool is_number = false;
        const int rows = texts.value(1).toInt(&is_number);
        const table* const named = find_table(texts.value(0));
        if (texts.size() != heads.size() || named == nullptr || !is_number)
            return add_fault(line, wrong_line());
        tables_[named->name] = {line, rows, texts[2]};
    }

    void add_fault(int line, const QString& reason) { faults_.push_back({path_, line, reason}); }

    QString path_;
    bad_lines& faults_;
    table_list tables_;
};

}  // namespace

QString path_of_list(const QString& folder)
{
    return QDir(folder).filePath(u"tables.csv"_s);
}

QString heads_of_list()
{
    return heads.join(u',') + u'\n';
}

QString line_of_list(const table& listed, int rows, const QByteArray& file)
{
    return csv_quoted(listed.name) + u',' + QString::number(rows) + u',' + csv_quoted(checksum_of(file)) +
           u'\n';
}

QString checksum_of(const QByteArray& file)
{
    return QString::fromLatin1(QCryptographicHash::hash(file, QCryptographicHash::Sha256).toHex());
}

table_list read_list(const QString& folder, bad_lines& faults)
{
    const QString path = path_of_list(folder);
    const auto records = read_csv_file(path, faults);
    return records ? list_reader(path, faults).read(*records) : table_list();
}

}  // namespace verdane
