#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTest>

#include <new>
#include <system_error>
#include <vector>

#include "shell/daily_copy.h"
#include "shell/MainForm.h"
#include "shell/start_up.h"
#include "store/recovery/copy_days.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QStringList files_of_copies()
{
    return QDir(folder_of_copies(program_run::store_path())).entryList(QDir::Files | QDir::Hidden);
}

/// The oldest one.
QString first_copy()
{
    const QString store = program_run::store_path();
    return path_of_copy(store, days_of_copies(store).at(0));
}

QLabel* problem()
{
    return MainForm::of_run()->findChild<QLabel*>(u"problem"_s);
}

void wait_for_problem(hand& user)
{
    user.wait_until(u"the line that reports the problem"_s, [] { return problem() != nullptr; });
}

}  // namespace

/// The copy of the diary that a start writes.
class test_daily_copy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_first_start_of_a_day_writes_a_copy()
    {
        program_run run(2, one_course() + one_round());
        run.play_through([](hand& user) { quit(user); });
        QCOMPARE(days_of_copies(program_run::store_path()).size(), std::size_t(1));
        QCOMPARE(files_of_copies().size(), 1);
        QCOMPARE(reader(first_copy()).text(u"select date from games"_s),
                 run.store().text(u"select date from games"_s));
    }

    void the_second_start_of_a_day_does_not_change_the_copy()
    {
        program_run run(2);
        run.play_through([](hand& user) { quit(user); });
        const QString copy = first_copy();
        run.store().write(one_course());
        run.play_through([](hand& user) { quit(user); });
        QCOMPARE(reader(copy).number(u"select count(*) from vrd_fields"_s), 0);
    }

    void a_registered_source_has_no_copy()
    {
        const program_run run(2);
        int failures = 0;
        {
            daily_copy copy;
            copy.start(store_location::source(u"Verdbase"_s), [&](const run_time_failure&) { ++failures; });
        }
        QCoreApplication::processEvents();
        QCOMPARE(failures, 0);
        QVERIFY(!QFile::exists(folder_of_copies(program_run::store_path())));
    }

    void every_exception_of_the_copy_is_reported_data()
    {
        QTest::addColumn<daily_copy::copy_writer>("write");
        QTest::addColumn<failure_kind>("kind");
        const auto row = [](const char* name, const daily_copy::copy_writer& write, failure_kind kind) {
            QTest::newRow(name) << write << kind;
        };
        row(
            "a failure of the store",
            [](const QString&, QDate) -> bool { throw run_time_failure(failure_kind::store_full, u"x"_s); },
            failure_kind::store_full);
        row(
            "no memory", [](const QString&, QDate) -> bool { throw std::bad_alloc(); },
            failure_kind::store_other);
        row(
            "an error of the system",
            [](const QString&, QDate) -> bool {
                throw std::system_error(std::make_error_code(std::errc::io_error));
            },
            failure_kind::store_other);
    }
    void every_exception_of_the_copy_is_reported()
    {
        QFETCH(daily_copy::copy_writer, write);
        QFETCH(failure_kind, kind);
        std::vector<run_time_failure> failures;
        daily_copy copy(write);
        copy.start(store_location::file(u"none"_s),
                   [&](const run_time_failure& failure) { failures.push_back(failure); });
        QTRY_COMPARE(failures.size(), std::size_t(1));
        QCOMPARE(failures[0].kind(), kind);
        QVERIFY(!failures[0].details().isEmpty());
    }

    void a_copy_that_fails_is_reported_in_one_line_and_blocks_nothing_data() { both_stored_languages(); }
    void a_copy_that_fails_is_reported_in_one_line_and_blocks_nothing()
    {
        QFETCH(int, language);
        program_run run(language, one_course());
        QFile in_the_way(folder_of_copies(program_run::store_path()));
        QVERIFY(in_the_way.open(QIODevice::WriteOnly));
        const int status = run.play_through([&](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            wait_for_problem(user);
            const auto shows = [&](bool french) {
                user.look([=] {
                    QCOMPARE(problem()->text(),
                             french
                                 ? u"La copie du jour n'a pas été faite : Verdane n'a pas le droit d'écrire "
                                   u"dans le dossier des copies. Votre journal est intact."_s
                                 : u"Today's copy was not made: Verdane may not write to the folder of the "
                                   u"copies. Your diary is intact."_s);
                    QVERIFY(problem()->isVisible());
                    QVERIFY(problem()->toolTip().contains(u"copies"));
                });
            };
            shows(language == 1);
            user.menu(language == 1 ? u"mEn"_s : u"mfr"_s);
            shows(language != 1);
            user.menu(u"mManagF"_s);
            user.wait_for_window(language == 1 ? u"f_c_list_en"_s : u"f_c_list"_s);
            user.click(u"Command1_2"_s);
            quit(user);
        });
        QCOMPARE(status, 0);
    }

    void the_line_is_below_the_picture_and_complete_at_every_size_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(640, 400), QSize(800, 780), QSize(1366, 700)})
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }
    void the_line_is_below_the_picture_and_complete_at_every_size()
    {
        QFETCH(QSize, size);
        program_run run(1, one_course());
        QFile in_the_way(folder_of_copies(program_run::store_path()));
        QVERIFY(in_the_way.open(QIODevice::WriteOnly));
        run.play_through([&](hand& user) {
            user.wait_for_window(u"MainForm"_s);
            wait_for_problem(user);
            user.look([&] { MainForm::of_run()->resize(size); });
            user.look([] {
                const QWidget* picture = MainForm::of_run()->findChild<QWidget*>(u"Picture1"_s);
                QCOMPARE(picture->geometry().bottom() + 1, problem()->geometry().top());
                QCOMPARE(problem()->geometry().bottom(), problem()->parentWidget()->rect().bottom());
                QCOMPARE(problem()->height(), problem()->heightForWidth(problem()->width()));
            });
            quit(user);
        });
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepare_application(application);
    test_daily_copy test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_daily_copy.moc"
