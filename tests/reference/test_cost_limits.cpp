#include <QApplication>
#include <QProcess>
#include <QTest>

#include "cost_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// What ends the program is tried in a child process: this program again, with a case.
namespace {

constexpr int not_reached = 77;

void answer_overflow(hand& user)
{
    user.answer({failure_words(failure_kind::overflow).in(true), QMessageBox::Critical, u"Verdane"_s,
                 QMessageBox::Ok});
}

void show_costs()
{
    run_event([] { f_cost(nullptr).show_modal(); });
}

/// Twelve amounts of 9999 cannot be shown; three of them and 2770 leave no room for one more.
int run_child(const QString& limit)
{
    if (limit == u"loading") {
        const cost_store store(true, QStringList(12, u"9999"_s).join(u','));
        play(show_costs, answer_overflow);
        return not_reached;
    }
    const cost_store store(true, u"9999,9999,9999,2770,0,0,0,0,0,0,0,0"_s);
    play(show_costs, [](hand& user) {
        user.wait_for_window(cost_window());
        user.same(user.text(u"Text1"_s), u"32767"_s, u"the largest total"_s);
        user.fill(u"cost_11"_s, u"1"_s);
        answer_overflow(user);
    });
    return not_reached;
}

}  // namespace

class test_cost_limits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_total_beyond_16_bits_ends_the_program_data()
    {
        QTest::addColumn<QString>("limit");
        QTest::newRow("while typing") << u"typing"_s;
        QTest::newRow("while loading") << u"loading"_s;
    }
    void a_total_beyond_16_bits_ends_the_program()
    {
        QFETCH(QString, limit);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--limit"_s, limit});
        QVERIFY(child.waitForFinished(120000));
        const QByteArray said = child.readAllStandardError();
        QVERIFY2(!said.contains("FAIL!"), said.constData());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--limit")
        return run_child(arguments.value(2));
    test_cost_limits test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_cost_limits.moc"
