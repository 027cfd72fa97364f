#include "tests/statistics/report_rows.h"

#include "reports/query/report_snapshot.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

level_rounds::level_rounds(int days, bool french) : stored_diary(french)
{
    set_report_store(location());
    const diary_course course = flat_course(u"PINS-0"_s, 4, u"70"_s, u"113"_s);
    book.add(course);
    book.add_days(course, days);
}

QList<QStringList> table_rows(const reader& store, const QString& table)
{
    QList<QStringList> texts;
    for (const auto& row : store.rows(u"select * from " + table + u" order by rowid")) {
        QStringList cells;
        for (const QVariant& cell : row)
            cells << cell.toString();
        texts << cells;
    }
    return texts;
}

void put_putts(const reader& store, const QString& key, int hole, const QList<int>& lengths)
{
    QStringList assignments;
    for (int i = 0; i < lengths.size(); ++i)
        assignments << u"putt_len_%1_%2 = %3"_s.arg(hole).arg(i + 1).arg(lengths[i]);
    store.write(u"update games2 set " + assignments.join(u", ") + u" where date = '" + key + u'\'');
}

void put_costs(const reader& store, const QString& key, int unit)
{
    QStringList amounts;
    for (int amount = 1; amount <= 12; ++amount)
        amounts << QString::number(amount * unit);
    store.write(u"insert into cost values ('" + key + u"'," + amounts.join(u',') + u')');
}

void put_shot(const reader& store, const QString& key, int club, const QString& columns,
              const QString& values)
{
    store.write(u"insert into Stat_rounds (date, hole, shot, stickval, %1) values ('%2', 1, 1, %3, "_s
                    .arg(columns, key)
                    .arg(club) +
                values + u')');
}

selection_arguments open_selection(const QString& from_key, const QString& to_key)
{
    selection_arguments chosen;
    chosen.from_key = from_key;
    chosen.to_key = to_key;
    chosen.partner_text = u"ALL PARTNERS"_s;
    chosen.course_text = u"ALL COURSES"_s;
    chosen.weather_text = u"ALL"_s;
    return chosen;
}

selection_arguments open_putt_selection(const QString& from_key, const QString& to_key)
{
    selection_arguments chosen = open_selection(from_key, to_key);
    chosen.partner_clause = u" true"_s;
    chosen.course_clause = u"true"_s;
    chosen.weather_clause = u" true "_s;
    return chosen;
}

}  // namespace verdane::testing
