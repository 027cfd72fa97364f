#include <QApplication>
#include <QListWidget>
#include <QProcess>
#include <QTest>

#include "base/language.h"
#include "base/program.h"
#include "controls/failure_guard.h"
#include "records/course_keys.h"
#include "reference/f_c_list.h"
#include "store/DataEnvironment1.h"
#include "tests/reference/course_windows.h"
#include "tests/support/engine_of_tests.h"
#include "tests/support/failure_boxes.h"
#include "tests/support/hand_widgets.h"
#include "tests/support/test_store.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// A failure that ends the program is provoked in a child process: this program again, with a case and a
/// store.
namespace {

void add_courses(const reader& store, int count)
{
    for (int i = 0; i < count; ++i)
        diary(store).add(diary_course{u"C%1-0"_s.arg(i), u"C%1"_s.arg(i), u"C%1-0"_s.arg(i)});
}

void type_length(hand& user, const QString& box, const QString& typed)
{
    user.click_tab(u"TabStrip1"_s, 2);
    user.fill(box, typed);
    user.key(Qt::Key_Tab);
}

void open_too_long_a_list(const reader& store)
{
    add_courses(store, most_courses + 1);
    play([] { run_event([] { f_c_list().show_modal(); }); },
         [](hand& user) {
             user.answer(failure_box(failure_kind::subscript, {.list = limited_list::courses}));
         });
}

void type_too_long_a_hole(const reader& store)
{
    add_courses(store, 1);
    in_stored_course(0, [](hand& user) {
        user.fill(u"text_0"_s, u"99"_s);
        type_length(user, u"txt_verge_0"_s, u"32768"_s);
        user.answer(failure_box(failure_kind::overflow));
    });
}

void type_too_long_a_course(const reader& store)
{
    add_courses(store, 1);
    in_stored_course(0, [](hand& user) {
        type_length(user, u"txt_verge_0"_s, u"32767"_s);
        user.answer(failure_box(failure_kind::overflow));
    });
}

/// Opens a line that has no row.
void open_a_line_without_a_row(const reader& store)
{
    add_courses(store, 1);
    in_course_list([](hand& user) {
        user.look([] {
            auto& lines = find_control<QListWidget>(*active_form(), u"List1"_s);
            lines.addItem(u"Ghost, BLANC"_s);
            lines.setCurrentRow(1);
        });
        user.click(u"Command1_0"_s);
        user.answer({u"Fatal error : F not found"_s, QMessageBox::NoIcon, u"Verdane"_s, QMessageBox::Ok});
        user.answer(failure_box(failure_kind::misuse));
    });
}

int run_child(const QString& what, const store_location& place)
{
    set_interface_language(true);
    data_environment().connection.Open(place);
    const recording_frame frame;
    const reader store(place);
    if (what == u"list"_s)
        open_too_long_a_list(store);
    else if (what == u"line"_s)
        open_a_line_without_a_row(store);
    else if (what == u"hole"_s)
        type_too_long_a_hole(store);
    else
        type_too_long_a_course(store);
    return EXIT_SUCCESS;
}

}  // namespace

class test_course_limits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_value_beyond_a_limit_ends_the_program_and_the_store_is_not_changed_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<int>("courses");
        QTest::newRow("the 52nd course") << u"list"_s << most_courses + 1;
        QTest::newRow("a line without a row") << u"line"_s << 1;
        QTest::newRow("a length of a hole beyond 16 bits") << u"hole"_s << 1;
        QTest::newRow("a length of a course beyond 16 bits") << u"course"_s << 1;
    }
    void a_value_beyond_a_limit_ends_the_program_and_the_store_is_not_changed()
    {
        QFETCH(QString, what);
        QFETCH(int, courses);
        const test_store place;
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {u"--child"_s, what, place.location().name});
        QVERIFY(child.waitForFinished(120000));
        const QByteArray output = child.readAllStandardError();
        QVERIFY2(!output.contains("FAIL!"), output.constData());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        const reader store(place.location());
        QCOMPARE(store.number(u"select count(*) from vrd_fields"_s), courses);
        QCOMPARE(store.number(u"select count(*) from vrd_fields where slope = '121'"_s), courses);
        QCOMPARE(store.number(u"select count(*) from field_info where yards_1 = 300"_s), courses);
    }

    void a_box_of_a_hole_takes_at_most_five_characters()
    {
        const course_store store;
        in_new_course([](hand& user) {
            user.click_tab(u"TabStrip1"_s, 2);
            user.fill(u"txt_verge_0"_s, u"123456"_s);
            user.same(user.text(u"txt_verge_0"_s), u"12345"_s, u"typed"_s);
            user.paste(u"txt_normal_0"_s, u"0000000"_s);
            user.same(user.text(u"txt_normal_0"_s), u"00000"_s, u"pasted"_s);
            discard(user);
        });
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc == 4 && QByteArray(argv[1]) == "--child")
        return run_child(QString::fromLocal8Bit(argv[2]), store_called(QString::fromLocal8Bit(argv[3])));
    test_course_limits test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_course_limits.moc"
