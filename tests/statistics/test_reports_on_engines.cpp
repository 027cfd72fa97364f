#include <QTemporaryDir>
#include <QTest>

#include "store/Connection1.h"
#include "store/recovery/diary_copy.h"
#include "tests/statistics/drawn_reports.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/full_diary.h"
#include "tests/support/reader.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 24;

/// Moves the rows of every second round after the others: the order in which they were entered is not that of
/// their dates.
void enter_rounds_out_of_order(const store_location& file)
{
    QStringList statements{u"create table late as select date from games where rowid % 2 = 0"_s};
    for (const QString& name : {u"games"_s, u"games2"_s, u"Stat_rounds"_s, u"cost"_s}) {
        const QString rows = u" from %1 where date in (select date from late)"_s.arg(name);
        statements << u"create table moved as select *"_s + rows + u" order by rowid" << u"delete"_s + rows
                   << u"insert into %1 select * from moved"_s.arg(name) << u"drop table moved"_s;
    }
    reader(file).write(statements << u"drop table late"_s);
}

void copy(const store_location& from, const store_location& to)
{
    Connection1 source;
    source.Open(from);
    Connection1 target;
    target.Open(to);
    copy_diary(source, target, [](const counted_table&) {});
}

}  // namespace

/// The reports of one diary, in a file and on the engine of the tests.
class test_reports_on_engines : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QTemporaryDir other_folder_;
    store_location file_;
    store_location other_;

private Q_SLOTS:
    void initTestCase()
    {
        file_ = store_location::file(folder_.filePath(u"file/Verdbase.db"_s));
        create_diary(file_, rounds, true);
        clear_sixth_putts(file_);
        enter_rounds_out_of_order(file_);
        other_ = new_store_place(other_folder_.path());
        copy(file_, other_);
    }

    void cleanupTestCase() { remove_store_place(other_); }

    void the_pages_are_identical_pixel_by_pixel_data()
    {
        QTest::addColumn<bool>("french");
        QTest::newRow("French") << true;
        QTest::newRow("English") << false;
    }

    void the_pages_are_identical_pixel_by_pixel()
    {
        QFETCH(bool, french);
        const auto of_file = drawn_reports(file_, rounds, french);
        const auto of_other = drawn_reports(other_, rounds, french);
        QVERIFY(of_file.size() >= static_cast<std::size_t>(names_of_reports().size()));
        QVERIFY(of_file.contains(u"Stat_rounds 3"_s));
        QCOMPARE(of_other.size(), of_file.size());
        for (const auto& [name, page] : of_file) {
            QVERIFY2(of_other.contains(name), qPrintable(name));
            QVERIFY2(of_other.at(name) == page, qPrintable(name));
        }
    }
};

QTEST_MAIN(test_reports_on_engines)
#include "test_reports_on_engines.moc"
