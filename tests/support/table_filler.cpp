#include "tests/support/table_filler.h"

#include "tests/support/insertion.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int rows_of_a_statement = 200;

QString literal(const QVariant& value)
{
    if (value.isNull())
        return u"null"_s;
    if (value.typeId() == QMetaType::QString)
        return quoted_text(value.toString());
    return value.typeId() == QMetaType::Bool ? QString::number(value.toInt()) : value.toString();
}

}  // namespace

void in_one_transaction(const store_location& store,
                        const std::function<void(const outside_connection&)>& work)
{
    const outside_connection connection(store);
    connection.run(u"begin"_s);
    work(connection);
    connection.run(u"commit"_s);
}

table_filler::table_filler(const outside_connection& store, const QString& table, const QStringList& columns)
    : store_(store), insertion_(u"insert into %1 (`%2`) values "_s.arg(table, columns.join(u"`, `"_s)))
{
}

table_filler::~table_filler()
{
    write_rows();
}

void table_filler::add(const QVariantList& values)
{
    QStringList literals;
    for (const QVariant& value : values)
        literals << literal(value);
    rows_ << u'(' + literals.join(u", "_s) + u')';
    if (rows_.size() == rows_of_a_statement)
        write_rows();
}

void table_filler::write_rows()
{
    if (!rows_.isEmpty())
        store_.run_unchanged(insertion_ + rows_.join(u",\n"_s));
    rows_.clear();
}

}  // namespace verdane::testing
