#include <QTest>

#include "failures.h"
#include "store_fixture.h"

using namespace verdane;
using testing::failure_of;
using testing::names_of;
using testing::store_fixture;
using testing::stored_names;

namespace {

const QStringList three{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
const QString all_partners = QStringLiteral("select * from partners");

void leave_by(Recordset& recordset, const QString& way)
{
    if (way == u"MoveFirst")
        recordset.MoveFirst();
    else if (way == u"MoveLast")
        recordset.MoveLast();
    else if (way == u"MoveNext")
        recordset.MoveNext();
    else if (way == u"MovePrevious")
        recordset.MovePrevious();
    else if (way == u"Move")
        recordset.Move(2);
    else if (way == u"MoveTo")
        recordset.MoveTo(2);
    else if (way == u"Requery")
        recordset.Requery();
    else if (way == u"AddNew")
        recordset.AddNew();
    else if (way == u"Update")
        recordset.Update();
    else if (way == u"UpdateBatch")
        recordset.UpdateBatch();
    else
        QFAIL("no such way");
}

}  // namespace

/// The optimistic lock.
class test_recordset_edit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_changed_row_is_committed_when_it_is_left_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way : {"MoveFirst", "MoveLast", "MoveNext", "MovePrevious", "Move", "MoveTo",
                                "Requery", "AddNew", "Update", "UpdateBatch"})
            QTest::addRow("%s", way) << QString::fromLatin1(way);
    }

    void a_changed_row_is_committed_when_it_is_left()
    {
        QFETCH(QString, way);
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->MoveNext();
        partners->Fields(u"name").set(QStringLiteral("typed"));
        QVERIFY(partners->pending());
        QCOMPARE(stored_names(store), QStringLiteral("a b c"));
        leave_by(*partners, way);
        QCOMPARE(stored_names(store), QStringLiteral("a typed c"));
        partners->CancelUpdate();
        QVERIFY(!partners->pending());
    }

    void close_drops_what_is_pending()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->Fields(u"name").set(QStringLiteral("typed"));
        partners->Close();
        QCOMPARE(stored_names(store), QStringLiteral("a b c"));
        partners->Open();
        QCOMPARE(names_of(*partners), QStringLiteral("a b c"));
    }

    void only_the_columns_that_changed_are_written()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        store.connection.Execute(QStringLiteral("update partners set TEL='later'"));
        partners->Fields(u"tel").set(QStringLiteral("x"));
        partners->Fields(u"tel").set_null();
        partners->Fields(u"surname").set(QStringLiteral("s"));
        partners->Update();
        QCOMPARE(store.outside().text(QStringLiteral("select TEL||SURNAME from partners where code=1")),
                 QStringLiteral("laters"));
    }

    void a_commit_that_changes_nothing_writes_nothing()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->Fields(u"name").set(QStringLiteral("a"));
        // A write would fail now: the table refuses every one.
        store.connection.Execute(QStringLiteral("create temp trigger none before update on partners "
                                                "begin select raise(abort, 'written'); end"));
        partners->Update();
        QVERIFY(!partners->pending());
        partners->Fields(u"name").set(QStringLiteral("other"));
        QVERIFY(failure_of([&] { partners->Update(); }) == failure_kind::store_other);
    }

    void update_without_a_change_does_nothing()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->Update();
        partners->UpdateBatch();
        partners->MoveLast();
        partners->MoveNext();
        partners->Update();
        partners->UpdateBatch(affect::all_chapters);
        QCOMPARE(stored_names(store), QStringLiteral("a b c"));
    }

    void cancel_brings_the_row_back()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->Fields(u"name").set(QStringLiteral("typed"));
        partners->Fields(u"name").set(QStringLiteral("typed again"));
        partners->Fields(u"code").set(77);
        partners->CancelUpdate();
        QCOMPARE(partners->Fields(u"name").text(), QStringLiteral("a"));
        QCOMPARE(plain(partners->Fields(u"code").to_int32()), 1);
        partners->MoveNext();
        QCOMPARE(stored_names(store), QStringLiteral("a b c"));
        partners->CancelUpdate();
        QCOMPARE(partners->position(), 1);
    }

    void a_new_row_stands_last_and_reaches_the_store_at_its_commit()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->AddNew();
        QCOMPARE(partners->position(), 3);
        QCOMPARE(partners->RecordCount(), 4);
        QVERIFY(partners->pending());
        partners->Fields(u"name").set(QStringLiteral("d"));
        QCOMPARE(stored_names(store), QStringLiteral("a b c"));
        partners->Update();
        QCOMPARE(stored_names(store), QStringLiteral("a b c d"));
        QCOMPARE(partners->position(), 3);
        partners->Fields(u"name").set(QStringLiteral("d2"));
        partners->MoveLast();
        QCOMPARE(stored_names(store), QStringLiteral("a b c d2"));
    }

    void a_new_row_that_is_left_for_the_last_row_is_the_current_row_still()
    {
        store_fixture store;
        const auto shots = store.opened(QStringLiteral(
            "Select * from Stat_rounds where ( date= '20030614093000' ) and hole = 1 order by shot"));
        shots->AddNew();
        shots->Fields(u"normal").set(4);
        shots->MoveLast();
        shots->Fields(u"date").set(QStringLiteral("20030614093000"));
        shots->Fields(u"hole").set(1);
        shots->Update();
        shots->Requery();
        QCOMPARE(shots->RecordCount(), 1);
        QCOMPARE(plain(shots->Fields(u"normal").to_int16()), 4);
    }

    void a_new_row_in_memory_is_the_stored_row()
    {
        store_fixture store;
        const auto shots = store.opened(QStringLiteral("select * from Stat_rounds"));
        shots->AddNew();
        shots->Fields(u"date").set(QStringLiteral("20030614093000"));
        shots->Fields(u"hole").set(QStringLiteral("7"));
        shots->Fields(u"ts").set(true);
        shots->Fields(u"unit").set(QString());
        shots->Update();
        QList<QVariant> in_memory;
        for (int i = 0; i < shots->field_count(); ++i)
            in_memory += shots->Fields(i).value();
        shots->Requery();
        for (int i = 0; i < shots->field_count(); ++i)
            QCOMPARE(shots->Fields(i).value(), in_memory[i]);
        QVERIFY(!shots->Fields(u"unit").is_null());
    }

    void a_new_row_of_which_nothing_was_written_is_a_row_of_defaults()
    {
        store_fixture store;
        const auto cost = store.opened(QStringLiteral("select * from cost"));
        cost->AddNew();
        cost->Update();
        QCOMPARE(store.outside().text(QStringLiteral("select fg||'/'||au from cost where date is null")),
                 QStringLiteral("0/0"));
    }

    void a_column_set_to_null_is_null_in_spite_of_its_default()
    {
        store_fixture store;
        const auto cost = store.opened(QStringLiteral("select * from cost"));
        cost->AddNew();
        cost->Fields(u"fg").set_null();
        cost->Update();
        QVERIFY(store.outside().value(QStringLiteral("select fg from cost")).isNull());
    }

    void cancel_drops_a_new_row_and_stands_where_it_came_from()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->MoveTo(1);
        partners->AddNew();
        partners->Fields(u"name").set(QStringLiteral("never"));
        partners->CancelUpdate();
        QCOMPARE(partners->position(), 1);
        QCOMPARE(partners->RecordCount(), 3);
        partners->MoveLast();
        partners->MoveNext();
        partners->AddNew();
        partners->CancelUpdate();
        QVERIFY(partners->eof());
        QCOMPARE(stored_names(store), QStringLiteral("a b c"));
    }

    void cancel_of_the_only_row_leaves_an_empty_recordset()
    {
        store_fixture store;
        const auto games = store.opened(QStringLiteral("select *  from games order by date"));
        games->AddNew();
        QVERIFY(!games->eof());
        games->CancelUpdate();
        QVERIFY(games->empty());
        QCOMPARE(store.outside().number(QStringLiteral("select count(*) from games")), 0);
    }

    void delete_removes_the_row_at_once_and_stays_in_the_gap()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->MoveNext();
        partners->Delete();
        QCOMPARE(stored_names(store), QStringLiteral("a c"));
        QCOMPARE(partners->RecordCount(), 2);
        QCOMPARE(partners->position(), -1);
        QVERIFY(!partners->bof());
        QVERIFY(!partners->eof());
        QVERIFY(failure_of([&] { partners->Fields(0).text(); }) == failure_kind::misuse);
        QVERIFY(failure_of([&] { partners->Delete(); }) == failure_kind::misuse);
        partners->MoveNext();
        QCOMPARE(partners->Fields(0).text(), QStringLiteral("c"));
    }

    void back_from_the_gap_is_the_row_before_it()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->MoveLast();
        partners->Delete();
        QVERIFY(!partners->eof());
        partners->MovePrevious();
        QCOMPARE(partners->Fields(0).text(), QStringLiteral("b"));
        partners->Delete();
        partners->UpdateBatch();
        partners->MoveNext();
        QVERIFY(partners->eof());
        QCOMPARE(stored_names(store), QStringLiteral("a"));
    }

    void after_the_last_row_is_deleted_both_ends_hold()
    {
        store_fixture store;
        store.add_partners({QStringLiteral("a")});
        const auto partners = store.opened(all_partners);
        partners->Delete();
        QVERIFY(partners->bof());
        QVERIFY(partners->eof());
        partners->MoveNext();
        partners->UpdateBatch();
        QVERIFY(partners->eof());
    }

    void a_walk_can_delete_every_row()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        for (; !partners->eof(); partners->MoveNext())
            partners->Delete();
        QCOMPARE(store.outside().number(QStringLiteral("select count(*) from partners")), 0);
    }

    void a_walk_can_delete_some_rows()
    {
        store_fixture store;
        store.add_partners(
            {QStringLiteral("x"), QStringLiteral("x"), QStringLiteral("b"), QStringLiteral("x")});
        const auto partners = store.opened(all_partners);
        for (partners->MoveFirst(); !partners->eof(); partners->MoveNext()) {
            if (partners->Fields(0).text() == u"x")
                partners->Delete();
        }
        partners->UpdateBatch();
        QCOMPARE(stored_names(store), QStringLiteral("b"));
    }

    void delete_of_a_row_that_is_gone_already_is_no_failure()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        store.connection.Execute(QStringLiteral("delete from partners where name='a'"));
        partners->Delete();
        QCOMPARE(stored_names(store), QStringLiteral("b c"));
    }

    void a_new_row_can_be_deleted_before_its_commit()
    {
        store_fixture store;
        const auto partners = store.opened(all_partners);
        partners->AddNew();
        partners->Delete();
        QVERIFY(partners->empty());
        QVERIFY(!partners->pending());
        partners->MoveNext();
        QCOMPARE(store.outside().number(QStringLiteral("select count(*) from partners")), 0);
    }

    void a_failed_commit_keeps_the_row_pending_and_the_store_unchanged()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        store.connection.Execute(QStringLiteral("create temp trigger none before update on partners "
                                                "begin select raise(abort, 'refused'); end"));
        partners->Fields(u"name").set(QStringLiteral("typed"));
        QVERIFY(failure_of([&] { partners->MoveLast(); }) == failure_kind::store_other);
        QCOMPARE(partners->position(), 0);
        QVERIFY(partners->pending());
        QCOMPARE(stored_names(store), QStringLiteral("a b c"));
        store.connection.Execute(QStringLiteral("drop trigger none"));
        partners->MoveLast();
        QCOMPARE(stored_names(store), QStringLiteral("typed b c"));
    }

    void a_row_that_left_the_store_cannot_be_changed()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        store.connection.Execute(QStringLiteral("delete from partners where name='a'"));
        partners->Fields(u"name").set(QStringLiteral("typed"));
        QVERIFY(failure_of([&] { partners->Update(); }) == failure_kind::misuse);
        QCOMPARE(stored_names(store), QStringLiteral("b c"));
    }

    void drop_pending_forgets_the_current_rows_change()
    {
        store_fixture store;
        store.add_partners(three);
        const auto partners = store.opened(all_partners);
        partners->Fields(u"name").set(QStringLiteral("typed"));
        partners->drop_pending();
        QVERIFY(!partners->pending());
        partners->AddNew();
        partners->drop_pending();
        partners->Close();
        partners->drop_pending();
        QCOMPARE(stored_names(store), QStringLiteral("a b c"));
    }

    void texts_reach_the_store_as_they_are_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quote") << QStringLiteral("l'allée");
        QTest::newRow("blanks") << QStringLiteral("  TOUTES ");
        QTest::newRow("empty") << QStringLiteral("");
        QTest::newRow("statement") << QStringLiteral("'; delete from partners; --");
        QTest::newRow("digits") << QStringLiteral("00120");
    }

    void texts_reach_the_store_as_they_are()
    {
        QFETCH(QString, text);
        store_fixture store;
        const auto partners = store.opened(all_partners);
        partners->AddNew();
        partners->Fields(u"name").set(text);
        partners->Update();
        QCOMPARE(store.outside().rows(QStringLiteral("select NAME from partners"))[0][0], QVariant(text));
        partners->Requery();
        QCOMPARE(partners->Fields(u"name").text(), text);
    }
};

QTEST_GUILESS_MAIN(test_recordset_edit)
#include "test_recordset_edit.moc"
