#include <QSet>
#include <QTest>

#include <algorithm>
#include <array>

#include "base/failure_words.h"
#include "base/language.h"
#include "base/run_time_failure.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

constexpr std::array every_kind = {
    failure_kind::overflow,
    failure_kind::subscript,
    failure_kind::invalid_null,
    failure_kind::bad_number,
    failure_kind::misuse,
    failure_kind::missing_table,
    failure_kind::store_locked,
    failure_kind::store_read_only,
    failure_kind::store_damaged,
    failure_kind::store_full,
    failure_kind::store_unreachable,
    failure_kind::store_other,
    failure_kind::source_unknown,
    failure_kind::source_driver,
    failure_kind::source_password,
    failure_kind::source_host,
    failure_kind::source_login,
    failure_kind::source_busy,
    failure_kind::source_database,
    failure_kind::source_stopped,
    failure_kind::source_silent,
    failure_kind::source_engine,
    failure_kind::source_case,
    failure_kind::source_table,
    failure_kind::source_column,
    failure_kind::source_type,
    failure_kind::source_storage,
    failure_kind::source_read_only,
    failure_kind::source_full,
    failure_kind::source_value,
    failure_kind::source_part,
    failure_kind::source_lost,
    failure_kind::report_template,
    failure_kind::report_output,
};

}  // namespace

class test_failure_words : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_kind_has_a_text_in_both_languages()
    {
        QCOMPARE(static_cast<int>(every_kind.back()) + 1, static_cast<int>(every_kind.size()));
        for (const failure_kind kind : every_kind) {
            const text_pair words = failure_words(kind);
            QVERIFY(words.in(true).endsWith(u'.'));
            QVERIFY(words.in(false).endsWith(u'.'));
            QVERIFY(words.in(true) != words.in(false));
        }
    }

    void no_two_kinds_have_the_same_text()
    {
        QSet<QString> french;
        QSet<QString> english;
        for (const failure_kind kind : every_kind) {
            french.insert(failure_words(kind).in(true));
            english.insert(failure_words(kind).in(false));
        }
        QCOMPARE(french.size(), static_cast<qsizetype>(every_kind.size()));
        QCOMPARE(english.size(), static_cast<qsizetype>(every_kind.size()));
    }

    void every_text_says_what_the_failure_means_for_the_data()
    {
        for (const failure_kind kind : every_kind) {
            const QString words = failure_words(kind).in(false);
            QVERIFY2(words.contains(u"intact") || words.contains(u"Nothing was changed") ||
                         words.contains(u"was not changed"),
                     qPrintable(words));
        }
    }

    void every_text_says_what_to_do()
    {
        const QStringList advice{u"tart again"_s,
                                 u"Start Verdane again"_s,
                                 u"start Verdane again"_s,
                                 u"verdane-store check"_s,
                                 u"back in place"_s,
                                 u"Use MariaDB"_s,
                                 u"restore a complete copy"_s,
                                 u"Enter a shorter"_s,
                                 u"install Verdane again"_s};
        for (const failure_kind kind : every_kind) {
            const QString words = failure_words(kind).in(false);
            QVERIFY2(std::any_of(advice.begin(), advice.end(),
                                 [&words](const QString& each) { return words.contains(each); }),
                     qPrintable(words));
        }
    }

    void a_failure_returns_its_kind_and_its_details()
    {
        const run_time_failure failure(failure_kind::misuse, u"rsgames: déjà ouvert"_s);
        QCOMPARE(failure.kind(), failure_kind::misuse);
        QCOMPARE(failure.details(), u"rsgames: déjà ouvert"_s);
        QCOMPARE(QString::fromUtf8(failure.what()), failure.details());
    }
};

QTEST_GUILESS_MAIN(test_failure_words)
#include "test_failure_words.moc"
