#include <QTest>

#include <QTemporaryDir>

#include <memory>

#include "store/Connection1.h"
#include "store/engines/engine.h"
#include "tests/support/failures.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::failure_of;

namespace {

/// A new file with an open connection and the partners "a", "b" and "c".
class partners_in_file {
public:
    partners_in_file()
    {
        connection.Open(folder_.filePath(u"Verdbase.db"_s));
        for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
            connection.Execute(u"insert into partners (NAME) values (%1)"_s.arg(quoted(name)));
    }

    std::unique_ptr<result_rows> select(const QString& statement) const
    {
        return connection.engine().select(statement, u"test"_s);
    }

    /// Fails with `store_locked` while a statement is reading.
    void empty_log() const { select(u"PRAGMA wal_checkpoint(TRUNCATE)"_s); }

private:
    QTemporaryDir folder_;

public:
    Connection1 connection;
};

const QString all_names = u"select NAME from partners order by NAME"_s;

}  // namespace

/// The rows of a statement of the embedded engine.
class test_sqlite_rows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void each_row_is_read_once()
    {
        const partners_in_file store;
        const auto rows = store.select(all_names);
        QCOMPARE(rows->column_count(), 1);
        QCOMPARE(rows->column_name(0), u"NAME"_s);
        QString names;
        while (rows->next())
            names += rows->value(0).toString();
        QCOMPARE(names, u"abc"_s);
        QVERIFY(!rows->next());
    }

    void a_value_has_the_type_in_which_it_is_stored()
    {
        const partners_in_file store;
        const auto rows = store.select(
            u"select 5000000000, 2.5, null, x'0041ff', 'é😀' || char(0) || 'x', '', x'' from partners"_s);
        // The first row is read by the toolkit, the others by the engine.
        for (int row = 0; row < 3; ++row) {
            QVERIFY(rows->next());
            QCOMPARE(rows->value(0), QVariant(qlonglong(5000000000)));
            QCOMPARE(rows->value(1), QVariant(2.5));
            QVERIFY(!rows->value(2).isValid());
            QCOMPARE(rows->value(3), QVariant(QByteArray("\0A\xff", 3)));
            QCOMPARE(rows->value(4), QVariant(u"é😀"_s + QChar() + u'x'));
            QCOMPARE(rows->value(5), QVariant(u""_s));
            QCOMPARE(rows->value(6), QVariant(QByteArray("")));
        }
        QVERIFY(!rows->next());
    }

    void a_row_that_fails_is_reported()
    {
        const partners_in_file store;
        const auto rows = store.select(
            u"select case NAME when 'c' then abs(-9223372036854775807 - 1) else 1 end from partners"_s);
        QVERIFY(rows->next());
        QVERIFY(rows->next());
        QVERIFY(failure_of([&] { rows->next(); }) == failure_kind::store_other);
        QVERIFY(!rows->next());
    }

    void the_file_can_be_changed_after_the_last_row()
    {
        const partners_in_file store;
        const auto rows = store.select(all_names);
        QVERIFY(rows->next());
        QVERIFY(failure_of([&] { store.empty_log(); }) == failure_kind::store_locked);
        while (rows->next())
            ;
        QVERIFY(!failure_of([&] { store.empty_log(); }));
    }

    void rows_end_when_the_connection_is_closed()
    {
        partners_in_file store;
        const auto rows = store.select(all_names);
        QVERIFY(rows->next());
        store.connection.Close();
        QVERIFY(!rows->next());
        QVERIFY(!rows->next());
    }
};

QTEST_MAIN(test_sqlite_rows)
#include "test_sqlite_rows.moc"
