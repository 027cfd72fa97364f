#include "tests/records/round_in_store.h"

namespace verdane::testing {

const QString round_in_store::key = QStringLiteral("20030614093000");

namespace {

QStringList card()
{
    QStringList assignments;
    for (int hole = 1; hole <= 18; ++hole)
        assignments += QStringLiteral("par_%1 = %2, yards_%1 = %3, hcp_%1 = %4")
                           .arg(hole)
                           .arg(hole == 3 || hole == 5 ? hole : 4)
                           .arg(300 + hole)
                           .arg(19 - hole);
    return assignments;
}

}  // namespace

round_in_store::round_in_store()
{
    lay_down();
    open(store.rsgames);
    open(store.rsgames2);
    open(store.rscost);
    open(store.rsvrd_fields);
    open(store.rsfield_info);
}

void round_in_store::lay_down() const
{
    const reader outside(folder_.path());
    outside.write({
        QStringLiteral(
            "insert into games (date, field, CODEF) values ('20030614093000', 'Les Pins', 'LES PINS-1')"),
        QStringLiteral(
            "insert into games (date, field, CODEF) values ('20030615093000', 'Les Pins', 'LES PINS-1')"),
        QStringLiteral("insert into games2 (date) values ('20030614093000')"),
        QStringLiteral("insert into games2 (date) values ('20030615093000')"),
        QStringLiteral("insert into cost (date) values ('20030614093000')"),
        QStringLiteral(
            "insert into vrd_fields (code, name, rating, slope) values ('AUTRE-0', 'Autre', 0, 0)"),
        QStringLiteral("insert into vrd_fields (code, name, rating, slope) "
                       "values ('LES PINS-1', 'Les Pins', 70.5, 130)"),
        QStringLiteral("insert into field_info (FIELD_CODE) values ('LES PINS-1')"),
    });
    outside.write(QStringLiteral("update field_info set %1").arg(card().join(u',')));
}

void round_in_store::open(Recordset& recordset)
{
    recordset.Open();
    if (recordset.name() == QStringLiteral("rsvrd_fields"))
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
    return reader(folder_.path())
        .value(QStringLiteral("select %1 from %2 where date = '%3'").arg(column, table, key));
}

}  // namespace verdane::testing
