#include "store/schema.h"

#include <algorithm>
#include <array>

#include "store/tables/cost.h"
#include "store/tables/courses.h"
#include "store/tables/games.h"
#include "store/tables/games2.h"
#include "store/tables/golf_bag.h"
#include "store/tables/hand.h"
#include "store/tables/partners.h"
#include "store/tables/putts.h"
#include "store/tables/r_card.h"
#include "store/tables/settings.h"
#include "store/tables/Stat_rounds.h"
#include "store/tables/stat_sticks.h"
#include "store/tables/stats.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array declarations{
    tables::games::table,       tables::games2::table,      tables::cost::table,
    tables::Stat_rounds::table, tables::vrd_fields::table,  tables::field_info::table,
    tables::partners::table,    tables::sticks::table,      tables::sticknames::table,
    tables::settings::table,    tables::stats::table,       tables::s_put1::table,
    tables::s_put2::table,      tables::stat_sticks::table, tables::r_cost::table,
    tables::r_card::table,      tables::hand::table,        tables::Cryst_hand::table,
};

QString text_of(std::u16string_view text)
{
    return QStringView(text).toString();
}

QVariant default_of(const tables::column_group& group)
{
    if (group.initial == default_value::null)
        return {};
    return group.type == column_type::yes_no ? QVariant(false) : QVariant(0);
}

void add_column(std::vector<column>& columns, const tables::column_group& group, const QString& name,
                int place)
{
    columns.push_back({name, group.type, default_of(group), group.characters, group.fixed, place});
}

void add_parts(std::vector<column>& columns, const tables::column_group& group, const QString& name,
               int number)
{
    if (group.parts == 0)
        add_column(columns, group, name, number - 1);
    for (int part = 1; part <= group.parts; ++part)
        add_column(columns, group, QString(name + u'_' + QString::number(part)), number - 1);
}

void add_group(std::vector<column>& columns, const tables::column_group& group)
{
    for (int number = 1; number <= std::max(group.numbers, 1); ++number) {
        const QString suffix = group.numbers == 0 ? QString() : QString::number(number);
        for (int i = 0; i < group.name_count; ++i)
            add_parts(columns, group, text_of(group.names[static_cast<std::size_t>(i)]) + suffix, number);
    }
}

table table_of(const tables::table_declaration& declaration)
{
    table made;
    made.name = text_of(declaration.name);
    for (const tables::column_group& group : declaration.columns)
        add_group(made.columns, group);
    made.fixed_rows = declaration.fixed_rows;
    made.index_name = text_of(declaration.index.name);
    for (const std::u16string_view column : declaration.index.columns) {
        if (!column.empty())
            made.indexed_columns << text_of(column);
    }
    return made;
}

QString engine_type(column_type type)
{
    switch (type) {
    case column_type::count:
        return u"SMALLINT"_s;
    case column_type::amount:
        return u"INTEGER"_s;
    case column_type::real:
        return u"DOUBLE"_s;
    case column_type::yes_no:
        return u"BOOLEAN"_s;
    case column_type::text:
    case column_type::any:
        break;
    }
    return u"TEXT"_s;
}

}  // namespace

const std::vector<table>& schema()
{
    static const std::vector<table> tables = [] {
        std::vector<table> all;
        for (const tables::table_declaration& declaration : declarations)
            all.push_back(table_of(declaration));
        return all;
    }();
    return tables;
}

const table* find_table(QStringView name)
{
    const auto& all = schema();
    const auto found = std::find_if(all.begin(), all.end(), [name](const table& candidate) {
        return candidate.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == all.end() ? nullptr : &*found;
}

QString declared_type(const column& column)
{
    if (column.characters > 0)
        return u"VARCHAR(%1)"_s.arg(column.characters);
    return engine_type(column.type);
}

QString in_back_quotes(const QString& name)
{
    return u'`' + name + u'`';
}

QString columns_of(const table& listed)
{
    QStringList names;
    for (const column& each : listed.columns)
        names += in_back_quotes(each.name);
    return names.join(u',');
}

}  // namespace verdane
