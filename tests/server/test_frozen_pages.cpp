#include "tests/server/open_pages.h"
#include "tests/server/server_harms.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// The server freezes while a page or window is open. Each failure takes as long as the program waits for the
/// server, half a minute.
class test_frozen_pages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_for_harms(); }

    void a_frozen_server_is_reported_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<bool>("french");
        bool french = true;
        for (const char* page : {"a third shot is added", "a hole with shots is left", "costs are accepted",
                                 "the tee-off of a new round is chosen",
                                 "the first hole of a new round is left", "a partner is added"}) {
            QTest::newRow(page) << page << french;
            french = !french;
        }
    }

    void a_frozen_server_is_reported_and_what_was_committed_is_still_stored()
    {
        QFETCH(QString, page);
        QFETCH(bool, french);
        const QStringList faults = faults_on_page(page_called(page), server_harm(u"frozen"_s), french);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

int main(int argc, char** argv)
{
    return page_test_main<test_frozen_pages>(argc, argv, server_harm);
}

#include "test_frozen_pages.moc"
