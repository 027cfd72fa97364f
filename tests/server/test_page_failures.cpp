#include "tests/server/open_pages.h"
#include "tests/server/server_harms.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// The server ends, or refuses to write, while another page or window than the quick page is open.
class test_page_failures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_for_harms(); }

    void a_failing_server_is_reported_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("harm");
        QTest::addColumn<bool>("french");
        bool french = false;
        for (const open_page& page : open_pages()) {
            for (const char* harm : {"stopped", "killed", "without the right to write"}) {
                QTest::addRow("%s, %s", qPrintable(page.name), harm) << page.name << harm << french;
                french = !french;
            }
        }
    }

    void a_failing_server_is_reported_and_what_was_committed_is_still_stored()
    {
        QFETCH(QString, page);
        QFETCH(QString, harm);
        QFETCH(bool, french);
        const QStringList faults = faults_on_page(page_called(page), server_harm(harm), french);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

int main(int argc, char** argv)
{
    return page_test_main<test_page_failures>(argc, argv, server_harm);
}

#include "test_page_failures.moc"
