#include <QTest>

#include "tests/store/store_fixture.h"
#include "tests/support/failures.h"
#include "tests/support/refused_change.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::all_partners;
using testing::failure_of;
using testing::names_of;
using testing::refuse;
using testing::refuse_no_more;
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
        QFAIL("unknown operation");
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
        partners->Fields(u"name").set(u"typed"_s);
        QVERIFY(partners->pending());
        QCOMPARE(stored_names(store), u"a b c"_s);
        leave_by(*partners, way);
        QCOMPARE(stored_names(store), u"a typed c"_s);
        partners->CancelUpdate();
        QVERIFY(!partners->pending());
    }

    void close_drops_what_is_pending()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        partners->Fields(u"name").set(u"typed"_s);
        partners->Close();
        QVERIFY(!partners->pending());
        QCOMPARE(stored_names(store), u"a b c"_s);
        partners->Open();
        partners->AddNew();
        partners->Close();
        partners->Open();
        QVERIFY(!partners->pending());
        QCOMPARE(names_of(*partners), u"a b c"_s);
    }

    void only_the_columns_that_changed_are_written()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        store.connection.Execute(u"update partners set TEL='later'"_s);
        partners->Fields(u"tel").set(u"x"_s);
        partners->Fields(u"tel").set(QVariant());
        partners->Fields(u"surname").set(u"s"_s);
        partners->Update();
        QCOMPARE(store.outside().text(u"select TEL||SURNAME from partners where code=1"_s), u"laters"_s);
    }

    void a_commit_that_changes_nothing_writes_nothing()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        partners->Fields(u"name").set(u"a"_s);
        // Every write would fail.
        store.connection.Execute(refuse(u"update"_s, u"partners"_s));
        partners->Update();
        QVERIFY(!partners->pending());
        partners->Fields(u"name").set(u"other"_s);
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
        QCOMPARE(stored_names(store), u"a b c"_s);
    }

    void cancel_restores_the_row()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        partners->Fields(u"name").set(u"typed"_s);
        partners->Fields(u"name").set(u"typed again"_s);
        partners->Fields(u"code").set(77);
        partners->CancelUpdate();
        QCOMPARE(partners->Fields(u"name").text(), u"a"_s);
        QCOMPARE(plain(partners->Fields(u"code").to_int32()), 1);
        partners->MoveNext();
        QCOMPARE(stored_names(store), u"a b c"_s);
        partners->CancelUpdate();
        QCOMPARE(partners->position(), 1);
    }

    void a_failed_commit_keeps_the_row_pending_and_the_store_unchanged()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        store.connection.Execute(refuse(u"update"_s, u"partners"_s));
        partners->Fields(u"name").set(u"typed"_s);
        QVERIFY(failure_of([&] { partners->MoveLast(); }) == failure_kind::store_other);
        QCOMPARE(partners->position(), 0);
        QVERIFY(partners->pending());
        QCOMPARE(stored_names(store), u"a b c"_s);
        store.connection.Execute(refuse_no_more());
        partners->MoveLast();
        QCOMPARE(stored_names(store), u"typed b c"_s);
    }

    void a_row_that_is_no_longer_in_the_store_cannot_be_changed()
    {
        store_fixture store;
        store.add_partners(three_names);
        const auto partners = store.opened(all_partners);
        store.connection.Execute(u"delete from partners where name='a'"_s);
        partners->Fields(u"name").set(u"typed"_s);
        QVERIFY(failure_of([&] { partners->Update(); }) == failure_kind::misuse);
        QCOMPARE(stored_names(store), u"b c"_s);
    }

    void texts_are_stored_unchanged_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quote") << u"l'allée"_s;
        QTest::newRow("blanks") << u"  TOUTES "_s;
        QTest::newRow("empty") << u""_s;
        QTest::newRow("statement") << u"'; delete from partners; --"_s;
        QTest::newRow("digits") << u"00120"_s;
    }

    void texts_are_stored_unchanged()
    {
        QFETCH(QString, text);
        store_fixture store;
        const auto partners = store.opened(all_partners);
        partners->AddNew();
        partners->Fields(u"name").set(text);
        partners->Update();
        QCOMPARE(store.outside().rows(u"select NAME from partners"_s)[0][0], QVariant(text));
        partners->Requery();
        QCOMPARE(partners->Fields(u"name").text(), text);
    }
};

QTEST_GUILESS_MAIN(test_recordset_edit)
#include "test_recordset_edit.moc"
