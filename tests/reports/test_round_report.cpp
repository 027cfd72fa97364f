#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/report_tools.h"
#include "tests/support/reader.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString french = u"Stat_rounds.rpt"_s;
const QString english = u"Stat_rounds_en.rpt"_s;

/// The printed line that starts with a caption, without its first words and with single blanks.
QString line_after(const QString& page, const QString& caption)
{
    for (const QString& line : page.split(u'\n')) {
        const QString words = line.simplified();
        const qsizetype at = words.indexOf(caption + u' ');
        if (at >= 0 && words.size() > caption.size() + 20)
            return words.sliced(at + caption.size() + 1);
    }
    return {};
}

}  // namespace

class test_round_report : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QString page_of(const QString& name)
    {
        const QString path = folder_.filePath(u"round.pdf"_s);
        render_report(built_template(name))->save_pdf(path);
        const QStringList pages = pdf_pages(path);
        return pages.size() == 1 ? pages.front() : QString();
    }

private Q_SLOTS:
    void init()
    {
        set_report_store(store_.location());
        fill_stats(store_.location(), 40, u"A & B <c> \"d\""_s);
    }

    void both_languages_fit_on_one_landscape_page_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("rounds");
        for (const int rounds : {1, 40}) {
            QTest::addRow("French, %d", rounds) << french << rounds;
            QTest::addRow("English, %d", rounds) << english << rounds;
        }
    }
    void both_languages_fit_on_one_landscape_page()
    {
        QFETCH(QString, name);
        QFETCH(int, rounds);
        fill_stats(store_.location(), rounds, u"LE BLAINVILLIER     , Blanc"_s);
        const auto document = render_report(built_template(name));
        QCOMPARE(document->page_count(), 1);
        QCOMPARE(document->page_size_mm().toSize(), QSize(297, 210));
        // The printed area also fits on Letter paper, 279 by 216.
        const QMarginsF margins = document->margins_mm();
        QVERIFY(297 - margins.left() - margins.right() <= 279.4 - 2 * 6);
    }

    void the_heading_has_the_selection_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("texts");
        const QStringList shared{u"A & B <c> \"d\""_s,      u"TOUTES"_s,
                                 u"TOUS LES PARTENAIRES"_s, u"2023-05-06 08:30:00"_s,
                                 u"2024-10-13 13:40:00"_s,  u"40"_s};
        QTest::newRow("French") << french
                                << shared + QStringList{u"Statistiques des rondes"_s, u"14,3"_s,
                                                        u"Nombre de parties jouées"_s, u"Page 1 de 1"_s};
        QTest::newRow("English") << english
                                 << shared + QStringList{u"Round Statistics"_s, u"14.3"_s,
                                                         u"Number of rounds"_s, u"Page 1 of 1"_s};
    }
    void the_heading_has_the_selection()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, texts);
        const QString page = page_of(name);
        for (const QString& text : texts)
            QVERIFY2(page.contains(text), qPrintable(text));
    }

    void the_tee_follows_the_name_of_its_course_without_padding()
    {
        fill_stats(store_.location(), 2, u"Pebble Beach        , Gold"_s);
        for (const QString& name : {french, english})
            QVERIFY(page_of(name).contains(u"Pebble Beach, Gold"_s));
    }

    void every_line_follows_its_caption_in_table_order_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("captions");
        QTest::newRow("French") << french
                                << QStringList{u"Allée"_s,
                                               u"Fosse de sable"_s,
                                               u"Coups ratés"_s,
                                               u"Pénalité eau"_s,
                                               u"Pénalité balle perdue"_s,
                                               u"Pén. (règlement)"_s,
                                               u"Pénalité hors limites"_s,
                                               u"Total pénalités"_s,
                                               u"+/- moyenne par ronde"_s,
                                               u"Nombre de normales"_s,
                                               u"Verts en coup réglementaires"_s,
                                               u"1 roulé réglementaire"_s,
                                               u"2 roulés réglementaires"_s,
                                               u"3 roulés et + réglementaires"_s,
                                               u"Vert en coup non réglementaire"_s,
                                               u"1 roulés non réglementaire"_s,
                                               u"2 roulés non réglementaire"_s,
                                               u"3 roulés et + non réglementaire"_s,
                                               u"Normales non réglementaires"_s,
                                               u"Approches callés"_s,
                                               u"Nombre de normale 3"_s,
                                               u"Nombre de normales 4"_s,
                                               u"Nombre de normales 5"_s,
                                               u"Moyenne de normales 3"_s,
                                               u"Moyenne de normale 4"_s,
                                               u"Moyenne de normales 5"_s,
                                               u"Trous d’un coup"_s,
                                               u"Albatros"_s,
                                               u"Aigles"_s,
                                               u"Oiselets"_s,
                                               u"Bogueys"_s,
                                               u"Doubles"_s,
                                               u"Triples et +"_s};
        QTest::newRow("English") << english
                                 << QStringList{u"Fairway Shots"_s,
                                                u"Sand Trap Shots"_s,
                                                u"Missed Shots"_s,
                                                u"Water Hazard"_s,
                                                u"Lost Ball"_s,
                                                u"Rules"_s,
                                                u"Out of Bound"_s,
                                                u"Total"_s,
                                                u"+/- mean per round"_s,
                                                u"Number of Par"_s,
                                                u"Green in Regulation"_s,
                                                u"1 Putt in Regulation"_s,
                                                u"2 Putts in Regulation"_s,
                                                u"3+ Putts in Regulation"_s,
                                                u"Green not in Regulation"_s,
                                                u"1 Putt not in Regulation"_s,
                                                u"2 Putts not in Regulation"_s,
                                                u"3+ Putts not in regulation"_s,
                                                u"Up and Down"_s,
                                                u"Chip in"_s,
                                                u"Number of Par 3"_s,
                                                u"Number of Par 4"_s,
                                                u"Number of Par 5"_s,
                                                u"Average Par 3"_s,
                                                u"Average Par 4"_s,
                                                u"Average Par 5"_s,
                                                u"Hole in One"_s,
                                                u"Double eagle"_s,
                                                u"Eagle"_s,
                                                u"Birdie"_s,
                                                u"Bogey"_s,
                                                u"Double"_s,
                                                u"Triple+"_s};
    }
    void every_line_follows_its_caption_in_table_order()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, captions);
        QCOMPARE(captions.size(), 33);
        const QString page = page_of(name).simplified();
        qsizetype at = 0;
        for (int line = 1; line < 34; ++line) {
            const QString& caption = captions[line - 1];
            // The first hole of line r has r + 1; lines 9 and 20 are tested below.
            const QString first = line == 9 || line == 20 ? QString() : QString::number(line + 1);
            at = page.indexOf(caption + u' ' + first, at);
            QVERIFY2(at >= 0, qPrintable(caption));
        }
    }

    void the_strokes_show_a_mean_of_many_rounds_and_a_total_of_one()
    {
        const QString many = line_after(page_of(english), u"Strokes"_s);
        QCOMPARE(many, u"total: mean per round 1 2 3 4 5 6 7 8 9 45 "
                       u"10 11 12 13 14 15 16 17 18 126 85.5"_s);
        QVERIFY(line_after(page_of(french), u"Coups"_s).endsWith(u" 126 85,5"_s));
        fill_stats(store_.location(), 1, u"X"_s);
        QCOMPARE(line_after(page_of(english), u"Strokes"_s),
                 u"1 2 3 4 5 6 7 8 9 45 10 11 12 13 14 15 16 17 18 126 171"_s);
    }

    void strokes_against_par_have_a_sign()
    {
        QCOMPARE(line_after(page_of(english), u"+/- mean per round"_s),
                 u"−0.8 −0.7 −0.6 −0.5 −0.4 −0.3 −0.2 −0.1 0 −3.6 "
                 u"+0.1 +0.2 +0.3 +0.4 +0.5 +0.6 +0.7 +0.8 +0.9 +4.5 +0.9"_s);
        QVERIFY(line_after(page_of(french), u"+/- moyenne par ronde"_s).startsWith(u"−0,8 −0,7"_s));
    }

    void averages_have_two_decimals_in_their_totals()
    {
        QVERIFY(line_after(page_of(english), u"Average Par 3"_s)
                    .startsWith(u"25 26 27 28 29 30 31 32 33 261.00 34"_s));
    }

    void empty_cells_are_dots_and_no_zeros()
    {
        const QString seen = line_after(page_of(english), u"Chip in"_s);
        QCOMPARE(seen, u"· · · · · · · · · · · · · · · · · · · · ·"_s);
    }

    void the_figures_file_has_the_34_lines_unrounded()
    {
        const QString path = folder_.filePath(u"figures.csv"_s);
        render_report(built_template(english))->save_csv(path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u"\r\n"_s);
        QCOMPARE(lines.size(), 36);
        QCOMPARE(lines[0],

                 u"Line,1,2,3,4,5,6,7,8,9,Out,10,11,12,13,14,15,16,17,18,In,Total"_s);
        QCOMPARE(lines[1], u"Strokes,1,2,3,4,5,6,7,8,9,45,10,11,12,13,14,15,16,17,18,126,85.5"_s);
        QVERIFY(lines[10].startsWith(u"+/-,-0.8,-0.7,"_s));
        QVERIFY(lines[34].startsWith(u"Triple+,34,35,"_s));
    }

    void the_french_figures_file_has_semicolons_and_decimal_commas()
    {
        const QString path = folder_.filePath(u"figures.csv"_s);
        render_report(built_template(french))->save_csv(path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u"\r\n"_s);
        QVERIFY(lines[0].endsWith(u";18;Retour;Total"_s));
        QVERIFY(lines[1].endsWith(u";126;85,5"_s));
    }

    void a_table_without_figures_is_printed()
    {
        QStringList nulls;
        for (int hole = 1; hole <= 18; ++hole)
            nulls.append(u"hole_%1 = null"_s.arg(hole));
        reader(store_.location()).write(u"update stats set "_s + nulls.join(u','));
        QCOMPARE(render_report(built_template(french))->page_count(), 1);
    }
};

QTEST_MAIN(test_round_report)
#include "test_round_report.moc"
