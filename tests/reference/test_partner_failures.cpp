#include <QApplication>
#include <QProcess>
#include <QTest>

#include "base/language.h"
#include "base/program.h"
#include "controls/failure_guard.h"
#include "store/Connection1.h"
#include "store/DataEnvironment1.h"
#include "tests/reference/partner_windows.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/refused_change.h"
#include "tests/support/test_store.h"
#include "tests/support/window_look.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// A failure that ends the program is provoked in a child process: this program again, with a store.
namespace {

constexpr int not_reached = 77;
const QString grid = u"pgrid"_s;

int run_child(const store_location& place, const QString& step)
{
    set_interface_language(step == u"adding");
    data_environment().connection.Open(place);
    reader(place).write(step == u"opening" ? u"alter table partners rename to persons"_s
                                           : refuse(u"insert"_s, u"partners"_s));
    const recording_frame frame;
    play(show_partners, [&](hand& user) {
        if (step == u"opening") {
            user.answer(failure_box(missing_part_of_engine()));
            return;
        }
        user.wait_for_window(partner_window());
        // A pending edit is lost with the new row: both are one batch.
        type_into(user, 0, 3, u"Lyon"_s);
        user.click(u"add"_s);
        user.answer(failure_box(failure_kind::store_other));
    });
    return not_reached;
}

void create_store(const store_location& place)
{
    Connection1().Open(place);
    reader(place).write(u"insert into partners (NAME, SURNAME, code) values ('Alder', 'Ann', 1)"_s);
}

}  // namespace

class test_partner_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_failure_of_the_store_ends_the_program_data()
    {
        QTest::addColumn<QString>("step");
        QTest::newRow("without the table") << u"opening"_s;
        QTest::newRow("a new row is refused") << u"adding"_s;
    }
    void a_failure_of_the_store_ends_the_program()
    {
        QFETCH(QString, step);
        const test_store store;
        create_store(store.location());
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--child"_s, store.location().name, step});
        QVERIFY(child.waitForFinished(120000));
        const QByteArray output = child.readAllStandardError();
        QVERIFY2(!output.contains("FAIL!"), output.constData());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        if (step == u"adding") {
            QCOMPARE(
                reader(store.location()).text(u"select NAME || ifnull(AD2, '-') || code from partners"_s),
                u"Alder-1"_s);
        }
    }

    void a_missing_name_keeps_the_window_open_although_the_rows_cannot_be_stored_data() { both_languages(); }
    void a_missing_name_keeps_the_window_open_although_the_rows_cannot_be_stored()
    {
        QFETCH(bool, french);
        const partner_store store(french);
        store.add_three();
        store.store.write(refuse(u"update"_s, u"partners"_s));
        in_partners([&](hand& user) {
            user.click_cell(grid, 1, 0);
            user.key(Qt::Key_Backspace);
            for (const auto& button : {u"cmdSave"_s, u"cmdAn"_s}) {
                user.click(button);
                user.answer(refusal_of_missing_name());
                user.wait_for_window(partner_window());
            }
            user.check(store.frame.locked, u"the menu is still locked"_s);
            user.close_window(partner_window());
        });
        QVERIFY(!store.frame.locked);
        QCOMPARE(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1 | Birch,Bob,2"_s);
    }

    void a_removal_that_the_store_refuses_is_discarded_when_the_window_closes()
    {
        const partner_store store;
        store.add_three();
        store.store.write(refuse(u"delete"_s, u"partners"_s));
        in_partners([](hand& user) {
            user.click(u"Del"_s);
            user.answer(question_on_removal(u" Alder Ann"_s), QMessageBox::Yes);
            user.wait_for_window(partner_window());
            user.same(user.grid_rows(grid), 2, u"rows"_s);
            accept_partners(user);
        });
        in_partners([](hand& user) {
            user.same(user.grid_rows(grid), 3, u"rows"_s);
            accept_partners(user);
        });
        QCOMPARE(open_recordsets(), QStringList());
    }

    void pending_changes_are_stored_together_or_not_at_all()
    {
        const partner_store store;
        store.add_three();
        store.store.write(refuse(u"update"_s, u"partners"_s, u"old.code = 3"_s));
        in_partners([](hand& user) {
            for (const int row : {0, 1, 2})
                type_into(user, row, 3, u"Lyon"_s);
            accept_partners(user);
        });
        QCOMPARE(store.store.number(u"select count(*) from partners where AD2 is not null"_s), 0);
        QCOMPARE(store.rows(), u"Cedar,Cleo,3 | Alder,Ann,1 | Birch,Bob,2"_s);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--child")
        return run_child(store_called(arguments.value(2)), arguments.value(3));
    test_partner_failures test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_partner_failures.moc"
