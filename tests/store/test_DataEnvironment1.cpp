#include "store/DataEnvironment1.h"

#include <QTest>

#include "tests/store/store_fixture.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::reader;

namespace {

struct expected {
    const char* name;
    const char* source;
    const char* settings;
};

// Cursor, lock, location, cache rows, time-out in seconds.
constexpr expected nineteen[] = {
    {"rsgames", "select *  from games order by date", "dynamic optimistic server 100 30"},
    {"rsvrd_fields", "select * from vrd_fields", "dynamic optimistic server 100 30"},
    {"rsfield_info", "select * from field_info", "dynamic optimistic server 100 30"},
    {"rsgames2", "select * from games2 order by date", "static optimistic server 100 30"},
    {"rspartners", "select * from partners order by name", "static batch client 100 30"},
    {"rssticks", "select * from sticks", "static optimistic client 400 30"},
    {"rss_put1", "select * from s_put1", "static batch client 400 30"},
    {"rss_put2", "select * from s_put2", "static batch client 400 30"},
    {"rsr_card", "select * from r_card", "static optimistic client 400 30"},
    {"rsStat_rounds", "select * from Stat_rounds", "static optimistic server 100 30"},
    {"rssticknames", "select * from sticknames", "static optimistic server 100 30"},
    {"rsstat_sticks", "select * from stat_sticks", "static optimistic client 400 30"},
    {"rsbuffer", "select * from stat_rounds", "static optimistic server 100 30"},
    {"rsstats", "select * from stats", "static optimistic client 400 30"},
    {"rssettings", "select * from settings", "static optimistic server 100 30"},
    {"rshand", "select hnd from HAND ", "static batch client 100 30"},
    {"rscryst_hand", "select * from Cryst_hand", "static optimistic server 100 30"},
    {"rsr_cost", "select * from r_cost", "dynamic optimistic server 10 30"},
    {"rscost", "select * from cost", "static optimistic client 400 30"},
};

QString described(const recordset_settings& s)
{
    const QStringList words{s.cursor == cursor_type::dynamic ? u"dynamic"_s : u"static"_s,
                            s.lock == lock_type::optimistic ? u"optimistic"_s : u"batch"_s,
                            s.location == cursor_location::server ? u"server"_s : u"client"_s,
                            QString::number(s.cache_rows), QString::number(s.time_out_s)};
    return words.join(u' ');
}

}  // namespace

class test_DataEnvironment1 : public QObject {
    Q_OBJECT

private:
    testing::test_store place_;

private Q_SLOTS:
    // The place is removed before the application object is destroyed.
    void cleanupTestCase() { data_environment().abandon(); }

    void initTestCase() { data_environment().connection.Open(place_.location()); }

    void a_recordset_has_the_settings_of_the_catalogue_and_opens_data()
    {
        QTest::addColumn<int>("index");
        for (std::size_t i = 0; i < std::size(nineteen); ++i)
            QTest::addRow("%s", nineteen[i].name) << static_cast<int>(i);
    }

    void a_recordset_has_the_settings_of_the_catalogue_and_opens()
    {
        QFETCH(int, index);
        const auto at = static_cast<std::size_t>(index);
        Recordset& recordset = data_environment().recordsets()[at];
        QCOMPARE(recordset.name(), QString::fromLatin1(nineteen[at].name));
        QCOMPARE(recordset.Source(), QString::fromLatin1(nineteen[at].source));
        QCOMPARE(described(recordset.settings()), QString::fromLatin1(nineteen[at].settings));
        recordset.Open();
        recordset.Requery();
        recordset.Close();
        recordset.Open();
        recordset.Close();
    }

    void the_catalogue_has_nineteen_recordsets()
    {
        QCOMPARE(data_environment().recordsets().size(), std::size(nineteen));
    }

    void the_members_are_the_recordsets_of_their_names()
    {
        DataEnvironment1& environment = data_environment();
        QCOMPARE(environment.rsStat_rounds.name(), u"rsStat_rounds"_s);
        QCOMPARE(environment.rscryst_hand.name(), u"rscryst_hand"_s);
        QCOMPARE(&environment.rscost, &environment.recordsets()[18].get());
        QCOMPARE(&data_environment(), &environment);
    }

    void the_connection_string_names_the_data_source()
    {
        QCOMPARE(Connection1::connection_string(),
                 u"Provider=MSDASQL.1;Persist Security Info=False;Data Source=Verdbase;"
                 u"Mode=ReadWrite;"_s);
    }

    void abandoning_drops_what_is_pending_and_closes_everything()
    {
        DataEnvironment1& environment = data_environment();
        const reader store(place_.location());
        environment.rsgames.set_Source(u"Select * from games"_s);
        environment.rsgames.Open();
        environment.rsgames.AddNew();
        environment.rspartners.Open();
        environment.rspartners.AddNew();
        environment.abandon();
        QVERIFY(!environment.connection.is_open());
        QVERIFY(!environment.rsgames.is_open());
        QCOMPARE(environment.rsgames.Source(), u"select *  from games order by date"_s);
        QCOMPARE(store.number(u"select count(*) from games"_s), 0);
        QCOMPARE(store.number(u"select count(*) from partners"_s), 0);
        environment.abandon();
        environment.connection.Open(place_.location());
        environment.rsgames.Open();
        QVERIFY(environment.rsgames.empty());
        environment.rsgames.Close();
    }
};

QTEST_GUILESS_MAIN(test_DataEnvironment1)
#include "test_DataEnvironment1.moc"
