#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "tests/statistics/drawn_reports.h"
#include "tests/support/reader.h"
#include "tests/transfer/stored_files.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// True if a page has a dot that is not white.
bool is_printed(const QImage& page)
{
    QImage white(page.size(), page.format());
    white.fill(Qt::white);
    return page != white;
}

}  // namespace

class test_sample_reports : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_report_of_the_sample_is_printed_data()
    {
        QTest::addColumn<bool>("french");
        QTest::newRow("French") << true;
        QTest::newRow("English") << false;
    }

    void every_report_of_the_sample_is_printed()
    {
        QFETCH(bool, french);
        const QTemporaryDir folder;
        const store_location store = store_location::file(folder.filePath(u"sample.db"_s));
        QCOMPARE(store_run({u"sample"_s, argument_of_store(store)}).run(), status(exit_status::done));
        const reader rows(store);
        const auto pages = drawn_reports(
            store, {rows.text(u"select min(date) from games"_s), rows.text(u"select max(date) from games"_s)},
            french);
        for (const QString& name : names_of_reports()) {
            const auto first = pages.find(name + u" 1");
            QVERIFY2(first != pages.end() && is_printed(first->second), qPrintable(name));
        }
        // The steps of the handicap, and the season.
        QVERIFY(pages.contains(u"Stat_rounds 3"_s));
        QVERIFY(
            rows.text(u"select handicap_text from stats limit 1"_s).contains(QRegularExpression(u"\\d"_s)));
    }
};

QTEST_MAIN(test_sample_reports)
#include "test_sample_reports.moc"
