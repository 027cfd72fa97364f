#include "transfer/csv_file.h"

#include <QFile>

#include <utility>

#include "transfer/console.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString reason_of(csv_fault fault)
{
    switch (fault) {
    case csv_fault::encoding:
        return in_language(u"le texte n'est pas en UTF-8", u"the text is not in UTF-8");
    case csv_fault::quote_in_value:
        return in_language(u"un guillemet au milieu d'une valeur qui ne commence pas par un guillemet",
                           u"a quotation mark within a value that does not begin with one");
    case csv_fault::text_after_quote:
        return in_language(u"du texte entre le guillemet fermant et la virgule",
                           u"text between the closing quotation mark and the comma");
    case csv_fault::open_quote:
        return in_language(u"un guillemet n'est pas fermé", u"a quotation mark is not closed");
    case csv_fault::none:
        break;
    }
    return {};
}

/// An empty value without quotes is all that an empty line has.
bool is_empty_line(const csv_record& record)
{
    return record.values == std::vector<csv_value>{csv_value{}};
}

}  // namespace

std::optional<QByteArray> read_file(const QString& path, bad_lines& faults)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        QByteArray bytes = file.readAll();
        if (file.error() == QFile::NoError)
            return bytes;
    }
    faults.push_back({path, 0, file.errorString()});
    return std::nullopt;
}

std::optional<std::vector<csv_record>> records_of(const QByteArray& bytes, const QString& path,
                                                  bad_lines& faults, empty_lines empty)
{
    csv_content content = read_csv(bytes);
    if (content.fault != csv_fault::none) {
        faults.push_back({path, content.line, reason_of(content.fault)});
        return std::nullopt;
    }
    if (empty == empty_lines::skip)
        std::erase_if(content.records, is_empty_line);
    return std::move(content.records);
}

std::optional<std::vector<csv_record>> read_csv_file(const QString& path, bad_lines& faults)
{
    const auto bytes = read_file(path, faults);
    return bytes ? records_of(*bytes, path, faults) : std::nullopt;
}

exit_status refuse_lines(const bad_lines& faults)
{
    for (const bad_line& fault : faults) {
        const QString place =
            fault.line == 0
                ? fault.file
                : in_language(u"%1, ligne %2", u"%1, line %2").arg(fault.file, QString::number(fault.line));
        refuse(exit_status::bad_file, place + in_language(u" : ", u": ") + fault.reason);
    }
    return refuse(exit_status::bad_file, in_language(u"Rien n'a été modifié.", u"Nothing was changed."));
}

}  // namespace verdane
