#include "tests/server/open_pages.h"
#include "tests/server/server_harms.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

/// The disk of the server is full while a page or window is open.
class test_full_pages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare_for_harms(); }

    void a_full_disk_is_reported_and_what_was_committed_is_still_stored_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<bool>("french");
        for (const open_page& page : open_pages()) {
            if (page.name == u"a hole is left")
                continue;
            for (const bool french : {true, false})
                QTest::addRow("%s, %s", qPrintable(page.name), french ? "French" : "English")
                    << page.name << french;
        }
    }

    void a_full_disk_is_reported_and_what_was_committed_is_still_stored()
    {
        QFETCH(QString, page);
        QFETCH(bool, french);
        const QStringList faults = faults_on_page(page_called(page), server_harm(u"full"_s), french);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

int main(int argc, char** argv)
{
    return page_test_main<test_full_pages>(argc, argv, server_harm);
}

#include "test_full_pages.moc"
