#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTest>

#include "shell/row_script.h"
#include "shell/start_up.h"
#include "store/schema.h"
#include "tests/server/own_server.h"
#include "tests/shell/main_windows.h"
#include "tests/shell/program_run.h"
#include "tests/support/engine_of_tests.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void remove_row_columns()
{
    for (const table& each : schema())
        administer(u"alter table %1.%2 drop column verdane_row"_s.arg(file_of(program_run::store_place()),
                                                                      each.name));
}

QString content_of_script()
{
    QFile file(row_script_path());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

/// A source whose tables someone made without the column that identifies a row.
class test_row_script : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_application(*qApp); }

    void the_script_that_adds_the_column_is_offered_once_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("words");
        QTest::newRow("French") << 1 << u"Les tables de votre journal n'ont pas la colonne"_s;
        QTest::newRow("English") << 2 << u"The tables of your diary do not have the column"_s;
    }
    void the_script_that_adds_the_column_is_offered_once()
    {
        QFETCH(int, language);
        QFETCH(QString, words);
        program_run run(language);
        remove_row_columns();
        const int status = run.play_through([&words](hand& user) {
            user.wait_for_window(u"row_script_box"_s);
            user.look([&words] {
                const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                QVERIFY(box != nullptr);
                QVERIFY(box->text().startsWith(words));
                QVERIFY(box->informativeText().contains(row_script_path()));
                QVERIFY(box->detailedText().startsWith(u"ALTER TABLE `games` ADD COLUMN verdane_row"));
                QCOMPARE(content_of_script(), box->detailedText());
            });
            user.key(Qt::Key_Return);
            quit(user);
        });
        QCOMPARE(status, 0);
        QCOMPARE(content_of_script().count(u";\n"_s), static_cast<qsizetype>(schema().size()));
        // Any other window than the main one would be reported.
        QCOMPARE(run.play_through([](hand& user) { quit(user); }), 0);
    }

    void a_source_with_the_column_has_no_notice()
    {
        program_run run(1);
        QCOMPARE(run.play_through([](hand& user) { quit(user); }), 0);
        QCOMPARE(content_of_script(), QString());
    }
};

QTEST_MAIN(test_row_script)
#include "test_row_script.moc"
