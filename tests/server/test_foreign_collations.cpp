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
};

QTEST_GUILESS_MAIN(test_foreign_collations)
#include "test_foreign_collations.moc"
