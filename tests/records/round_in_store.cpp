#include "tests/records/round_in_store.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

const QString round_in_store::key = u"20030614093000"_s;

namespace {

diary_course les_pins()
{
    diary_course course = course_of_pars(u"443454444444444444"_s);
    course.code = u"LES PINS-1"_s;
    course.name = u"Les Pins"_s;
    for (int& yards : course.yards)
        yards += 200;
    return course;
}

}  // namespace

round_in_store::round_in_store()
{
    add_rows();
    open(store.rsgames);
    open(store.rsgames2);
    open(store.rscost);
    open(store.rsvrd_fields);
    open(store.rsfield_info);
}

void round_in_store::add_rows() const
{
    const diary_course course = les_pins();
    diary_.book.add(flat_course(u"AUTRE-0"_s, 0, u"0"_s, u"0"_s));
    diary_.book.add(course);
    diary_.book.add(blank_round{key, course.code, course.name});
    diary_.book.add(blank_round{u"20030615093000"_s, course.code, course.name});
}

void round_in_store::open(Recordset& recordset)
{
    recordset.Open();
    // The round is played on the second course.
    if (recordset.name() == u"rsvrd_fields"_s || recordset.name() == u"rsfield_info"_s)
        recordset.MoveNext();
}

void round_in_store::commit()
{
    store.rsgames.Update();
    store.rsgames2.Update();
    store.rscost.Update();
}

void round_in_store::set_strokes(int hole, int long_shots, int approach, int putts)
{
    const QString number = QString::number(hole);
    store.rsgames.Fields(QString(u"long_" + number)).set(long_shots);
    store.rsgames.Fields(QString(u"approach_" + number)).set(approach);
    store.rsgames.Fields(QString(u"putt_" + number)).set(putts);
}

QVariant round_in_store::stored(const QString& table, const QString& column) const
{
    return diary_.store.value(u"select %1 from %2 where date = '%3'"_s.arg(column, table, key));
}

}  // namespace verdane::testing
