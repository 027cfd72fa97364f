#include <QApplication>
#include <QProcess>
#include <QTest>

#include <cstdio>

#include "base/failure_subject.h"
#include "base/language.h"
#include "base/program.h"
#include "records/Main_module.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/failure_boxes.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// Limits that end the program: each is exceeded in a child process, which prints the failure.
namespace {

/// A hole of the round that `in_keyed_round` begins.
failure_subject keyed_round(int hole, limited_list list = limited_list::unnamed)
{
    return {.list = list,
            .round = u"2024-06-14 09:30:00"_s,
            .course = in_language(u"Alpha, BLANC", u"Alpha, WHITE"),
            .hole = hole};
}

/// A hole of a stored round, which is opened; 0 for none.
failure_subject stored_round(int hole)
{
    return {.round = u"2024-06-14 09:30:00"_s, .course = u"Alpha"_s, .hole = hole};
}

void fill_keys(int count)
{
    for (int i = 0; i < count; ++i)
        Main_module::append_round_key(u"19990101%1"_s.arg(i, 6, 10, QChar(u'0')));
}

/// Checks the message box, prints its details and the stored holes, and closes it.
void report_failure(hand& user, const round_store& store, failure_kind kind, const failure_subject& subject)
{
    user.wait_for_window(u"failure_box"_s);
    user.look([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        std::printf(
            "%s|holes %s\n", qUtf8Printable(box->informativeText()),
            qUtf8Printable(store.text(
                u"select ifnull(group_concat(ifnull(long_1, '-') || ifnull(long_2, '-')), '') from games"_s)));
        std::fflush(stdout);
    });
    user.answer(failure_box(kind, subject));
}

/// Fills the list of keys except for one entry: the save of the second hole exceeds it.
void overfill_by_saving(const round_store& store)
{
    fill_keys(365);
    in_keyed_round([&](hand& user) {
        user.type(u"4"_s);
        user.click_tab(u"TabStrip1"_s, 2);
        user.type(u"5"_s);
        user.click_tab(u"TabStrip1"_s, 3);
        report_failure(user, store, failure_kind::subscript, keyed_round(2, limited_list::round_keys));
    });
}

void look_up_in_a_full_list(const round_store& store)
{
    fill_keys(366);
    in_new_round([&](hand& user) {
        fill_tee_off(user, u"9"_s, u"30"_s, u"00"_s);
        report_failure(user, store, failure_kind::subscript, {.list = limited_list::round_keys});
    });
}

void total_costs_beyond_16_bits(const round_store& store)
{
    store.add_round(key_of_keyed_round());
    store.store.write(u"update games set field = 'Alpha'"_s);
    store.store.write(u"update cost set fg = 30000, cm = 2768"_s);
    open_refused_round(key_of_keyed_round(), [&](hand& user) {
        report_failure(user, store, failure_kind::overflow, stored_round(0));
    });
}

void type_strokes_beyond_16_bits(const round_store& store)
{
    in_keyed_round([&](hand& user) {
        user.click_tab(u"TabStrip1"_s, 7);
        user.paste(u"text_vrd_0"_s, u"40000"_s);
        report_failure(user, store, failure_kind::overflow, keyed_round(7));
    });
}

void turn_more_to_feet_than_16_bits_hold(const round_store& store)
{
    store.add_round(key_of_keyed_round());
    add_complete_shot(store, 1, 1, 9, 11000, u"Verges"_s, 2);
    add_complete_shot(store, 1, 2, 14, 6, u"Pieds"_s, 3);
    in_stored_round(key_of_keyed_round(), [&](hand& user) {
        open_detailed_page(user);
        user.click(ok_button);
        report_failure(user, store, failure_kind::overflow, keyed_round(1));
    });
}

void load_strokes_beyond_16_bits(const round_store& store)
{
    store.add_round(key_of_keyed_round());
    store.store.write(u"update games set field = 'Alpha', long_5 = 40000"_s);
    open_refused_round(key_of_keyed_round(), [&](hand& user) {
        report_failure(user, store, failure_kind::overflow, stored_round(5));
    });
}

/// The totals are computed when a hole is shown; hole 9 makes the sum too large.
void add_up_strokes_beyond_16_bits(const round_store& store)
{
    store.add_round(key_of_keyed_round());
    store.store.write(u"update games set field = 'Alpha', long_8 = 32767, long_9 = 1"_s);
    open_refused_round(key_of_keyed_round(), [&](hand& user) {
        report_failure(user, store, failure_kind::overflow, stored_round(9));
    });
}

int run_child(const QString& limit, bool french)
{
    const round_store store;
    set_interface_language(french);
    store.add_two_courses();
    if (limit == u"save")
        overfill_by_saving(store);
    else if (limit == u"look up")
        look_up_in_a_full_list(store);
    else if (limit == u"costs")
        total_costs_beyond_16_bits(store);
    else if (limit == u"feet")
        turn_more_to_feet_than_16_bits_hold(store);
    else if (limit == u"load")
        load_strokes_beyond_16_bits(store);
    else if (limit == u"totals")
        add_up_strokes_beyond_16_bits(store);
    else
        type_strokes_beyond_16_bits(store);
    return 77;  // not reached: the failure ends the process
}

}  // namespace

class test_round_limits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void exceeding_a_limit_ends_the_program_and_keeps_what_was_stored_data()
    {
        QTest::addColumn<QString>("limit");
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("details");
        QTest::addColumn<QString>("kept");
        const auto add = [](const char* limit, const char* details, const char* kept) {
            for (const bool french : {true, false})
                QTest::addRow("%s, %s", limit, french ? "French" : "English")
                    << QString::fromLatin1(limit) << french << QString::fromLatin1(details)
                    << QString::fromLatin1(kept);
        };
        add("save", "index 366 is outside 0 to 365", "holes 4-");
        add("look up", "index 366 is outside 0 to 365", "holes ");
        add("costs", "", "holes --");
        add("feet", "", "holes --");
        add("strokes", "", "holes 0-");
        add("load", "rsgames", "holes --");
        add("totals", "", "holes --");
    }

    void exceeding_a_limit_ends_the_program_and_keeps_what_was_stored()
    {
        QFETCH(QString, limit);
        QFETCH(bool, french);
        QFETCH(QString, details);
        QFETCH(QString, kept);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {u"--limit"_s, limit, french ? u"fr"_s : u"en"_s});
        QVERIFY(child.waitForFinished(120000));
        const QString output = QString::fromUtf8(child.readAllStandardOutput());
        const QByteArray errors = child.readAllStandardError();
        QVERIFY2(!errors.contains("FAIL!"), errors.constData());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        QVERIFY2(output.contains(details), qPrintable(output));
        QVERIFY2(output.endsWith(QString(u'|' + kept + u'\n')), qPrintable(output));
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--limit")
        return run_child(arguments.value(2), arguments.value(3) == u"fr");
    test_round_limits test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_round_limits.moc"
