#include "tests/server/open_pages.h"
#include "tests/server/server_harms.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// The server fails between two holes of a round.
class test_server_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_for_harms(); }

    void a_failure_is_reported_in_bounded_time_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<QString>("harm");
        QTest::addColumn<bool>("french");
        for (const char* harm : {"stopped", "killed", "restarted", "frozen", "full", "without a table",
                                 "without the right to write"}) {
            for (const bool french : {true, false})
                QTest::addRow("%s, %s", harm, french ? "French" : "English") << harm << french;
        }
    }

    void a_failure_is_reported_in_bounded_time_and_what_was_committed_is_still_stored()
    {
        QFETCH(QString, harm);
        QFETCH(bool, french);
        const QStringList faults =
            faults_on_page(page_called(u"a hole is left"_s), server_harm(harm), french);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

int main(int argc, char** argv)
{
    return page_test_main<test_server_failures>(argc, argv, server_harm);
}

#include "test_server_failures.moc"
