#include <QSet>
#include <QTest>

#include "tests/transfer/store_run.h"
#include "transfer/command.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QString help_in(bool french)
{
    store_run run({u"--help"_s});
    run.set_language(french ? u"fr_CA.UTF-8"_s : u"en_GB.UTF-8"_s);
    return run.run() == 0 ? run.output() : QString();
}

}  // namespace

class test_command_table : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_help_has_every_command_option_and_exit_status_in_both_languages()
    {
        for (const bool french : {true, false}) {
            const QString help = help_in(french);
            QStringList expected;
            for (const command& each : all_commands()) {
                expected << u"\n  " + each.name + u' ' << u' ' + each.arguments.in(french)
                         << each.words.in(french);
                for (const command::option& option : each.options)
                    expected << option.name.toString() << option.words.in(french);
            }
            for (const status_words& each : all_exit_statuses)
                expected << each.words.in(french);
            for (const QString& text : expected)
                QVERIFY2(help.contains(text), qUtf8Printable(text + u" is missing in\n" + help));
        }
    }

    void the_texts_of_the_toolkit_are_in_the_language_of_the_others()
    {
        const QString english = help_in(false);
        const QString french = help_in(true);
        for (const QString& text : {u"Usage: "_s, u"Options:"_s, u"Displays "_s}) {
            QVERIFY2(english.contains(text), qUtf8Printable(english));
            QVERIFY2(!french.contains(text), qUtf8Printable(french));
        }
        QVERIFY2(french.contains(u"Affiche "), qUtf8Printable(french));
    }

    void an_option_without_the_one_that_it_requires_is_refused()
    {
        QCOMPARE(synopsis(check_command).remove(check_command.arguments.french.toString()).trimmed(),
                 u"check [--repair [--make-rounds]]"_s);
        store_run run({u"check"_s, u"file:none"_s, u"--make-rounds"_s});
        QCOMPARE(run.run(), static_cast<int>(exit_status::usage));
    }

    void every_command_name_and_exit_status_is_used_once()
    {
        QSet<QString> names;
        for (const command& each : all_commands())
            names << each.name.toString();
        QCOMPARE(names.size(), static_cast<qsizetype>(all_commands().size()));
        int expected = 0;
        for (const status_words& each : all_exit_statuses)
            QCOMPARE(static_cast<int>(each.status), expected++);
    }

    void a_command_without_arguments_is_refused()
    {
        for (const command& each : all_commands())
            QCOMPARE(store_run({each.name.toString()}).run(), static_cast<int>(exit_status::usage));
    }
};

QTEST_GUILESS_MAIN(test_command_table)
#include "test_command_table.moc"
