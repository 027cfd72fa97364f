#include "transfer/store_argument.h"

#include <QFileInfo>

#include <filesystem>
#include <system_error>

#include "store/Connection1.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

const QString file_prefix = u"file:"_s;
const QString source_prefix = u"source:"_s;
const QString source_of_program = u"Verdbase"_s;

}  // namespace

std::optional<store_location> store_of_argument(const QString& argument)
{
    if (argument == u"file")
        return store_location::file(Connection1::default_path());
    if (argument == u"source")
        return store_location::source(source_of_program);
    if (argument.startsWith(file_prefix) && argument.size() > file_prefix.size())
        return store_location::file(QFileInfo(argument.sliced(file_prefix.size())).absoluteFilePath());
    if (argument.startsWith(source_prefix) && argument.size() > source_prefix.size())
        return store_location::source(argument.sliced(source_prefix.size()));
    return std::nullopt;
}

bool are_one_store(const store_location& left, const store_location& right)
{
    std::error_code ignored;
    return left == right ||
           (left.where == store_location::place::file && left.where == right.where &&
            std::filesystem::equivalent(left.name.toStdU16String(), right.name.toStdU16String(), ignored));
}

QString argument_of_store(const store_location& store)
{
    return (store.where == store_location::place::file ? file_prefix : source_prefix) + store.name;
}

}  // namespace verdane
