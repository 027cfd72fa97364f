#include <QTest>

#include "scoring/round_key.h"
#include "scoring/Verdane_tools.h"

using namespace verdane::Verdane_tools;
using namespace Qt::StringLiterals;

class test_round_key : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_key_has_fourteen_ascii_digits_and_nothing_else_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("is_key");
        QTest::newRow("a key") << "20030614093005" << true;
        QTest::newRow("no date") << "99991399256199" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("a digit less") << "2003061409300" << false;
        QTest::newRow("a digit more") << "200306140930050" << false;
        QTest::newRow("a letter") << "2003061409300a" << false;
        QTest::newRow("a blank before it") << " 20030614093005" << false;
        QTest::newRow("a blank in it") << "20030614 93005" << false;
        QTest::newRow("a line feed at its end") << "20030614093005\n" << false;
        QTest::newRow("a digit of another script") << u"2003061409300٣"_s << false;
    }
    void a_key_has_fourteen_ascii_digits_and_nothing_else()
    {
        QFETCH(QString, text);
        QFETCH(bool, is_key);
        QCOMPARE(is_round_key(text), is_key);
    }

    void a_key_is_cut_for_display()
    {
        QCOMPARE(key_text(u"20030614093005"), u"2003-06-14 09:30:05"_s);
        QCOMPARE(key_date_text(u"20030614093005"), u"2003-06-14"_s);
        QCOMPARE(key_time_text(u"20030614093005"), u"09:30:05"_s);
    }

    void a_key_that_is_no_date_is_cut_in_the_same_way()
    {
        QCOMPARE(key_text(u"99991399256199"), u"9999-13-99 25:61:99"_s);
    }

    void a_key_that_is_too_short_is_shown_in_part()
    {
        QCOMPARE(key_text(u"200306"), u"2003-06- ::"_s);
        QCOMPARE(key_text(u""), u"-- ::"_s);
    }

    void the_padded_boxes_of_the_tee_off_form_the_time_of_the_key()
    {
        QString hour = u"9"_s;
        QString minute = u" 5"_s;
        QString second;
        QCOMPARE(QString(pad_zero(hour, 2) + pad_zero(minute, 2) + pad_zero(second, 2)), u"090500"_s);
    }

    void keys_sort_as_text_in_time_order() { QVERIFY(u"20031231235959"_s < u"20040101000000"_s); }

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
        const QString key = u"20030614093005"_s;
        for (const QStringView course : {u"Club des Pins", u"", u"1 - 2 | 3"}) {
            QCOMPARE(key_of_entry(round_entry(key, course, true)), key);
            QCOMPARE(key_of_entry(round_entry(key, course, false)), key);
        }
        QCOMPARE(key_of_entry(u"abcd?ef?gh?ij?kl?mn and more"), u"abcdefghijklmn"_s);
    }

    void an_empty_entry_gives_an_empty_key() { QCOMPARE(key_of_entry(u""), QString()); }
};

QTEST_GUILESS_MAIN(test_round_key)
#include "test_round_key.moc"
