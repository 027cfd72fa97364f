#include "tests/records/round_in_store.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

const QString round_in_store::key = u"20030614093000"_s;

namespace {

QStringList card()
{
    QStringList assignments;
    for (int hole = 1; hole <= 18; ++hole)
        assignments += u"par_%1 = %2, yards_%1 = %3, hcp_%1 = %4"_s.arg(hole)
                           .arg(hole == 3 || hole == 5 ? hole : 4)
                           .arg(300 + hole)
                           .arg(19 - hole);
    return assignments;
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
    const reader outside(folder_.path());
    outside.write({
        u"insert into games (date, field, CODEF) values ('20030614093000', 'Les Pins', 'LES PINS-1')"_s,
        u"insert into games (date, field, CODEF) values ('20030615093000', 'Les Pins', 'LES PINS-1')"_s,
        u"insert into games2 (date) values ('20030614093000')"_s,
        u"insert into games2 (date) values ('20030615093000')"_s,
        u"insert into cost (date) values ('20030614093000')"_s,
        u"insert into vrd_fields (code, name, rating, slope) values ('AUTRE-0', 'Autre', 0, 0)"_s,
        u"insert into vrd_fields (code, name, rating, slope) "
        u"values ('LES PINS-1', 'Les Pins', 70.5, 130)"_s,
        u"insert into field_info (FIELD_CODE) values ('LES PINS-1')"_s,
    });
    outside.write(u"update field_info set %1"_s.arg(card().join(u',')));
}

void round_in_store::open(Recordset& recordset)
{
    recordset.Open();
    if (recordset.name() == u"rsvrd_fields"_s)
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
    return reader(folder_.path()).value(u"select %1 from %2 where date = '%3'"_s.arg(column, table, key));
}

}  // namespace verdane::testing
