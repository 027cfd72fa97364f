#include <QTest>

#include "records/round_columns.h"
#include "store/DataEnvironment1.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace at = round_columns;

/// The arithmetic of the columns against a store as the program lays it down.
class test_round_columns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (Recordset* recordset : opened())
            recordset->Open();
    }

    void a_column_stands_where_its_name_says_data()
    {
        QTest::addColumn<QString>("recordset");
        QTest::addColumn<int>("ordinal");
        QTest::addColumn<QString>("name");
        for (const int h : {1, 2, 9, 18})
            add_hole_columns(h);
        QTest::newRow("weather") << "games2" << at::conditionM << "conditionM";
        QTest::newRow("partners") << "games2" << at::partners << "PARTNERS";
        QTest::newRow("temperature") << "games2" << at::temperature << "temperature";
        QTest::newRow("course in games2") << "games2" << at::fc << "FC";
        QTest::newRow("course in games") << "games" << at::codef << "CODEF";
        QTest::newRow("course name in games") << "games" << at::field << "field";
        QTest::newRow("rating") << "vrd_fields" << at::rating << "rating";
        QTest::newRow("slope") << "vrd_fields" << at::slope << "slope";
        QTest::newRow("course code") << "vrd_fields" << at::code << "code";
        QTest::newRow("course name") << "vrd_fields" << at::name << "name";
        QTest::newRow("first amount") << "cost" << at::first_amount << "fg";
        QTest::newRow("last amount") << "cost" << at::last_amount << "au";
    }

    void a_column_stands_where_its_name_says()
    {
        QFETCH(QString, recordset);
        QFETCH(int, ordinal);
        QTEST(recordset_of(recordset).field_name(ordinal), "name");
    }

private:
    static void add_hole_columns(int h)
    {
        const auto add = [h](const char* recordset, int ordinal, const char* name) {
            QTest::addRow("%s%d", name, h)
                << recordset << ordinal << QString::fromLatin1(name) + QString::number(h);
        };
        add("games", at::long_h(h), "long_");
        add("games", at::approach_h(h), "approach_");
        add("games", at::putt_h(h), "putt_");
        add("games", at::pen_rule_h(h), "pen_rule_");
        add("games", at::pen_water_h(h), "pen_water_");
        add("games", at::pen_bounds_h(h), "pen_bounds_");
        add("games", at::pen_lost_h(h), "pen_lost_");
        add("games", at::missed_h(h), "missed_");
        add("games2", at::sand_h(h), "sand_");
        add("games2", at::recovery_h(h), "recovery_");
        add("games2", at::fairway_h(h), "fairway_");
        add("field_info", at::yards_h(h), "yards_");
        add("field_info", at::hcp_h(h), "hcp_");
        add("field_info", at::par_h(h), "par_");
        for (const int putt : {1, 6})
            QTest::addRow("putt %d of %d", putt, h)
                << "games2" << at::putt_len(h, putt) << u"putt_len_%1_%2"_s.arg(h).arg(putt);
    }

    static Recordset& recordset_of(const QString& table)
    {
        for (Recordset* recordset : opened()) {
            if (recordset->name() == u"rs" + table)
                return *recordset;
        }
        qFatal("no such recordset");
    }

    static std::array<Recordset*, 5> opened()
    {
        DataEnvironment1& store = data_environment();
        return {&store.rsgames, &store.rsgames2, &store.rscost, &store.rsvrd_fields, &store.rsfield_info};
    }

    testing::store_folder folder_;
};

QTEST_GUILESS_MAIN(test_round_columns)
#include "test_round_columns.moc"
