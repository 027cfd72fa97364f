#include <QApplication>
#include <QProcess>
#include <QTest>

#include "base/program.h"
#include "controls/lock_box.h"
#include "store/DataEnvironment1.h"
#include "tests/management/removal_windows.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/other_program.h"
#include "tests/support/recording_frame.h"
#include "tests/support/test_store.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int not_reached = 77;

/// The child process: removes the second round of three while the store is locked, and gives up. The failure
/// ends the process.
int give_up(const QString& path)
{
    set_interface_language(true);
    data_environment().connection.waiting().set_notice_maker(make_lock_box);
    data_environment().connection.Open(path);
    const other_program tool(store_location::file(path));
    const recording_frame frame;
    in_list([](hand& user) {
        user.click_row(u"List1"_s, 1);
        user.click(u"Command1_3"_s);
        user.answer(question_on_removal(), QMessageBox::Yes);
        user.click(u"give_up"_s);
        user.answer(failure_box(failure_kind::store_locked));
    });
    return not_reached;
}

}  // namespace

/// Another program has locked the store when a round is removed.
class test_locked_removal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void after_giving_up_the_whole_round_is_kept()
    {
        const test_store place;
        Connection1().Open(place.location());
        const reader store(place.location());
        add_rounds(store, 3);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--child"_s, place.path()});
        QVERIFY(child.waitForFinished(120000));
        const QByteArray said = child.readAllStandardError();
        QVERIFY2(!said.contains("FAIL!"), said.constData());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        QCOMPARE(days_stored(store), u"1,2,3 | 1,2,3 | 1,2,3 | 1,2,3"_s);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--child")
        return give_up(arguments.value(2));
    test_locked_removal test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_locked_removal.moc"
