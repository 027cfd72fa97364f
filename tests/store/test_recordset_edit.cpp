#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"

using namespace verdane;
using testing::all_partners;
using testing::failure_of;
using testing::names_of;
using testing::store_fixture;
using testing::stored_names;
using testing::three_names;

namespace {

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

/// The optimistic lock: rows that are changed.
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
        store.add_partners(three_names);
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
        store.add_partners(three_names);
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
        store.add_partners(three_names);
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
        store.add_partners(three_names);
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
        store.add_partners(three_names);
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
        store.add_partners(three_names);
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

    void a_failed_commit_keeps_the_row_pending_and_the_store_unchanged()
    {
        store_fixture store;
        store.add_partners(three_names);
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
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        store.connection.Execute(QStringLiteral("delete from partners where name='a'"));
        partners->Fields(u"name").set(QStringLiteral("typed"));
        QVERIFY(failure_of([&] { partners->Update(); }) == failure_kind::misuse);
        QCOMPARE(stored_names(store), QStringLiteral("b c"));
    }

    void drop_pending_forgets_the_current_rows_change()
    {
        store_fixture store;
        store.add_partners(three_names);
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
