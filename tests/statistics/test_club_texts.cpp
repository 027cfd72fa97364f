#include <QTest>

#include "scoring/words.h"
#include "statistics/club_table.h"
#include "statistics/report_texts.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

/// A shot with the driver, in yards.
club_shot shot_over(int before, int after)
{
    club_shot shot;
    shot.club = 1;
    shot.before = int16(before);
    shot.after = int16(after);
    shot.kind = long_shot;
    return shot;
}

club_sums sums_of(std::initializer_list<club_shot> shots)
{
    club_sums sums;
    for (const club_shot& shot : shots)
        sums.add(shot);
    return sums;
}

}  // namespace

class test_club_texts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_figure_becomes_a_text_of_at_most_five_characters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("a count has a leading blank") << count_text(12) << " 12";
        QTest::newRow("a mean has a leading blank") << mean_text(5.0 / 3) << " 1.66";
        QTest::newRow("a mean is cut, not rounded") << mean_text(1.9999) << " 1.99";
        QTest::newRow("a mean of 0") << mean_text(0) << " 0";
        QTest::newRow("an average has no leading blank") << average_text(641.0 / 3) << "213.6";
        QTest::newRow("a short average") << average_text(250) << "250";
        QTest::newRow("an average below 1") << average_text(0.25) << "0.25";
        QTest::newRow("an average below 0") << average_text(-30.75) << "-30.7";
        QTest::newRow("a third, the percent sign cut off") << share_text(1, 3) << " 33.3";
        QTest::newRow("all, with the percent sign") << share_text(2, 2) << " 100%";
        QTest::newRow("half, with the percent sign") << share_text(1, 2) << " 50%";
        QTest::newRow("none, with the percent sign") << share_text(0, 7) << " 0%";
        QTest::newRow("an eighth has exactly five characters") << share_text(1, 8) << " 12.5";
        QTest::newRow("a small share has no zero before the point") << share_text(1, 200) << " .5%";
        QTest::newRow("a share of large counts") << share_text(30000, 32000) << " 93.7";
    }
    void a_figure_becomes_a_text_of_at_most_five_characters()
    {
        QFETCH(QString, text);
        QTEST(text, "expected");
    }

    void a_club_has_nine_texts()
    {
        club_shot fairway = shot_over(200, 50);
        fairway.position = in_the_fairway;
        club_shot left = shot_over(200, 50);
        left.position = to_the_left;
        const club_sums sums = sums_of({fairway, left, shot_over(301, 100)});
        const club_table::club_texts expected{u" 3"_s,    u" 201"_s, u"167"_s, u" 33.3"_s, u" 0%"_s,
                                              u" 33.3"_s, u" 0%"_s,  u" 0%"_s, u" 0%"_s};
        QCOMPARE(club_table::texts_of(sums), expected);
    }

    void a_count_of_shots_beyond_16_bits_is_shown_whole()
    {
        club_sums sums;
        sums.shots = 32768;
        QCOMPARE(club_table::texts_of(sums)[0], u" 32768"_s);
    }

    void a_club_without_shots_shows_zeros()
    {
        for (const QString& text : club_table::texts_of({}))
            QCOMPARE(text, u"0"_s);
    }

    void a_club_without_a_clean_shot_has_no_average()
    {
        club_shot missed = shot_over(200, 180);
        missed.missed = true;
        const auto texts = club_table::texts_of(sums_of({missed}));
        QCOMPARE(texts[0], u" 1"_s);
        QCOMPARE(texts[1], u" 0"_s);
        QCOMPARE(texts[2], QString());
        QCOMPARE(texts[6], u" 100%"_s);
    }
};

QTEST_APPLESS_MAIN(test_club_texts)
#include "test_club_texts.moc"
