#include <QTest>

#include "store/schema.h"
#include "tests/server/foreign_source.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// Tables whose texts the server compares without regard to case, accents or trailing blanks.
class test_foreign_collations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_statement_finds_only_texts_that_are_equal_in_all_characters_data()
    {
        QTest::addColumn<QString>("collation");
        QTest::newRow("case and accents") << u"utf8mb4 collate utf8mb4_general_ci"_s;
        QTest::newRow("trailing blanks") << u"utf8mb4 collate utf8mb4_bin"_s;
        QTest::newRow("another character set") << u"latin1 collate latin1_swedish_ci"_s;
        QTest::newRow("that of the program") << u"utf8mb4 collate utf8mb4_nopad_bin"_s;
    }
    void a_statement_finds_only_texts_that_are_equal_in_all_characters()
    {
        QFETCH(QString, collation);
        foreign_source other;
        other.open();
        for (const table& each : schema())
            other.change(u"alter table %1."_s + each.name + u" convert to character set " + collation);
        other.reopen();
        const QStringList codes{u"abc"_s, u"ABC"_s, u"abc "_s, u"été"_s, u"ete"_s, u"ÉTÉ"_s};
        const auto courses = opened(other, u"select * from vrd_fields"_s);
        for (const QString& code : codes) {
            courses->AddNew();
            courses->Fields(u"code").set(code);
            courses->Update();
        }
        QCOMPARE(opened(other, u"select * from vrd_fields where code = 'ABC'"_s)->RecordCount(), 1);
        other.connection.Execute(u"Delete from vrd_fields where code = 'abc'"_s);
        other.connection.Execute(u"Delete from vrd_fields where code = 'été'"_s);
        courses->Requery();
        QStringList left;
        for (; !courses->eof(); courses->MoveNext())
            left << courses->Fields(u"code").text();
        QCOMPARE(left, (QStringList{u"ABC"_s, u"abc "_s, u"ete"_s, u"ÉTÉ"_s}));
    }

    void tables_that_statements_join_need_keys_of_one_collation_data()
    {
        QTest::addColumn<QStringList>("tables");
        QTest::addColumn<QString>("details");
        const QString first_of = u"%1.date: COLLATE utf8mb4_bin ≠ utf8mb4_nopad_bin (games2.date)"_s;
        QTest::newRow("shots") << QStringList{u"stat_rounds"_s} << first_of.arg(u"stat_rounds");
        QTest::newRow("costs") << QStringList{u"cost"_s} << first_of.arg(u"cost");
        QTest::newRow("rounds") << QStringList{u"games2"_s}
                                << u"cost.date: COLLATE utf8mb4_nopad_bin ≠ utf8mb4_bin (games2.date)"_s;
        QTest::newRow("all that are joined")
            << QStringList{u"games2"_s, u"cost"_s, u"stat_rounds"_s} << QString();
    }
    void tables_that_statements_join_need_keys_of_one_collation()
    {
        QFETCH(QStringList, tables);
        foreign_source other;
        other.open();
        for (const QString& table : tables)
            other.change(u"alter table %1."_s + table +
                         u" modify column date varchar(14) character set utf8mb4 collate utf8mb4_bin");
        QString details;
        try {
            other.reopen();
            const QString shots = u"select count(*) from stat_rounds, games2 where stat_rounds.date = "
                                  "games2.date"_s;
            QCOMPARE(opened(other, shots)->Fields(0).to_double(), 0.0);
        } catch (const run_time_failure& failure) {
            QCOMPARE(failure.kind(), failure_kind::source_type);
            details = failure.details();
        }
        QTEST(details, "details");
    }
};

QTEST_GUILESS_MAIN(test_foreign_collations)
#include "test_foreign_collations.moc"
