#include <QTest>

#include "scoring/round_key.h"
#include "scoring/Verdane_tools.h"

using namespace verdane::Verdane_tools;

class test_round_key : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_key_is_cut_for_display()
    {
        QCOMPARE(key_text(u"20030614093005"), QStringLiteral("2003-06-14 09:30:05"));
        QCOMPARE(key_date_text(u"20030614093005"), QStringLiteral("2003-06-14"));
        QCOMPARE(key_time_text(u"20030614093005"), QStringLiteral("09:30:05"));
    }

    void a_key_is_cut_and_never_read_as_a_date()
    {
        QCOMPARE(key_text(u"99991399256199"), QStringLiteral("9999-13-99 25:61:99"));
    }

    void a_key_too_short_gives_what_it_has()
    {
        QCOMPARE(key_text(u"200306"), QStringLiteral("2003-06- ::"));
        QCOMPARE(key_text(u""), QStringLiteral("-- ::"));
    }

    void the_boxes_of_a_tee_off_end_the_key()
    {
        QString hour = QStringLiteral("9");
        QString minute = QStringLiteral(" 5");
        QString second;
        QCOMPARE(QString(pad_zero(hour, 2) + pad_zero(minute, 2) + pad_zero(second, 2)),
                 QStringLiteral("090500"));
    }

    void keys_sort_as_text_in_time_order()
    {
        QVERIFY(QStringLiteral("20031231235959") < QStringLiteral("20040101000000"));
    }

    void a_list_entry_has_its_exact_form_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("course");
        QTest::addColumn<bool>("incomplete");
        QTest::addColumn<QString>("entry");
        QTest::newRow("incomplete") << "20030614093000"
                                    << "Club des Pins" << true << "2003-06-14 09:30:00 |  - Club des Pins**";
        QTest::newRow("complete") << "20030614093000"
                                  << "Club des Pins" << false << "2003-06-14 09:30:00 |  - Club des Pins";
        QTest::newRow("trimmed") << " 20030614093000 "
                                 << " Club des Pins " << true << "2003-06-14 09:30:00 |  - Club des Pins**";
        QTest::newRow("no course name") << "20030614093000"
                                        << "" << true << "2003-06-14 09:30:00 |  - **";
    }

    void a_list_entry_has_its_exact_form()
    {
        QFETCH(QString, key);
        QFETCH(QString, course);
        QFETCH(bool, incomplete);
        QFETCH(QString, entry);
        QCOMPARE(round_entry(key, course, incomplete), entry);
    }

    void the_key_is_read_back_from_an_entry_by_position()
    {
        const QString key = QStringLiteral("20030614093005");
        for (const QStringView course : {u"Club des Pins", u"", u"1 - 2 | 3"}) {
            QCOMPARE(key_of_entry(round_entry(key, course, true)), key);
            QCOMPARE(key_of_entry(round_entry(key, course, false)), key);
        }
        QCOMPARE(key_of_entry(u"abcd?ef?gh?ij?kl?mn and more"), QStringLiteral("abcdefghijklmn"));
    }

    void no_entry_gives_no_key() { QCOMPARE(key_of_entry(u""), QString()); }
};

QTEST_GUILESS_MAIN(test_round_key)
#include "test_round_key.moc"
