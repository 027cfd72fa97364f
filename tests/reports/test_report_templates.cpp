#include <QDir>
#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "reports/template/template_file.h"
#include "reports/template/template_reader.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/invented_season.h"
#include "tests/reports/page_pictures.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QStringList reports{u"r_statSticks"_s, u"Stat_rounds"_s, u"r_cost3"_s, u"statPuts"_s, u"r_card2"_s};

void each_report()
{
    QTest::addColumn<QString>("report");
    for (const QString& report : reports)
        QTest::newRow(qPrintable(report)) << report;
}

void each_template()
{
    QTest::addColumn<QString>("name");
    for (const QString& report : reports)
        for (const QString& twin : {QString(), u"_en"_s})
            QTest::newRow(qPrintable(report + twin)) << report + twin;
}

/// What the statistic of a report passes to it in memory.
passed_rows passed_to(const QString& name)
{
    return name.startsWith(u"Stat_rounds") ? invented_season_tables() : passed_rows();
}

std::shared_ptr<const report_document> rendered(const QString& name)
{
    return render_report(built_template(name + u".rpt"_s), {}, passed_to(name));
}

QStringList lines_of(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll()).split(u'\n');
}

/// Every letter of a page, sorted: the order of neighbours in a PDF file may depend on fractions of a dot.
QString letters_of(const QString& page)
{
    QString letters = without_blanks(page);
    std::sort(letters.begin(), letters.end());
    return letters;
}

/// The words at the edge of the paper, where printers do not print.
QStringList out_of_reach(const std::vector<printed_word>& words)
{
    QStringList found;
    for (const printed_word& word : words)
        if (!QRectF(QPointF(), word.page).adjusted(6, 6, -6, -6).contains(word.place))
            found.append(word.text);
    return found;
}

double tallest(const std::vector<printed_word>& words)
{
    double height = 0;
    for (const printed_word& word : words)
        height = qMax(height, word.place.height());
    return height;
}

double ink_on(const QImage& page)
{
    qint64 inked = 0;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            inked += qGray(page.pixel(x, y)) < 250 ? 1 : 0;
    return double(inked) / (double(page.width()) * page.height());
}

QString kept_page(const QString& name, int page)
{
    return QString::fromUtf8(VERDANE_LOOKED_AT "/%1-%2.png").arg(name).arg(page + 1);
}

/// Compares a page with its stored picture, or stores it if VERDANE_KEEP_PAGES is set.
void compare_with_stored(const QImage& seen, const QString& path)
{
    if (qEnvironmentVariableIsSet("VERDANE_KEEP_PAGES"))
        QVERIFY(QDir().mkpath(QString::fromUtf8(VERDANE_LOOKED_AT)) && seen.save(path, nullptr, 0));
    const QImage kept = QImage(path).convertToFormat(QImage::Format_RGB32);
    QVERIFY2(kept.size() == seen.size(), qPrintable(path));
    const double shades = largest_difference(seen, kept, seen.rect());
    QVERIFY2(shades < noticed_shades, qPrintable(u"%1 differs by %2 shades"_s.arg(path).arg(shades)));
}

}  // namespace

class test_report_templates : public QObject {
    Q_OBJECT

    store_folder store_;
    QTemporaryDir folder_;

    void print(const QString& name, QPageSize::PageSizeId paper, const QString& path)
    {
        const auto document = rendered(name);
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPageSize(QPageSize(paper));
        printer.setPageOrientation(document->page_size_mm().width() > document->page_size_mm().height()
                                       ? QPageLayout::Landscape
                                       : QPageLayout::Portrait);
        document->print(printer);
    }

private Q_SLOTS:
    void initTestCase()
    {
        set_report_store(store_.location());
        fill_all_reports(store_.location());
    }

    void the_twins_have_one_layout_and_words_of_their_own_data() { each_report(); }
    void the_twins_have_one_layout_and_words_of_their_own()
    {
        QFETCH(QString, report);
        const template_file french = read_template(built_template(report + u".rpt"_s));
        const template_file english = read_template(built_template(report + u"_en.rpt"_s));
        QCOMPARE(french.layout_name, report + u".layout"_s);
        QCOMPARE(english.layout_name, french.layout_name);
        QCOMPARE(french.csv_separator, QChar(u';'));
        QCOMPARE(english.csv_separator, QChar(u','));
        QVERIFY(english.title != french.title);
        QVERIFY(english.body != french.body);
    }

    void the_twins_have_the_same_paper_and_margins_data() { each_report(); }
    void the_twins_have_the_same_paper_and_margins()
    {
        QFETCH(QString, report);
        const template_file french = read_template(built_template(report + u".rpt"_s));
        const template_file english = read_template(built_template(report + u"_en.rpt"_s));
        QCOMPARE(english.paper, french.paper);
        QCOMPARE(english.landscape, french.landscape);
        QCOMPARE(english.margins, french.margins);
    }

    void every_line_of_a_template_has_fewer_than_120_characters_data() { each_report(); }
    void every_line_of_a_template_has_fewer_than_120_characters()
    {
        QFETCH(QString, report);
        for (const QString& ending : {u".layout"_s, u".rpt"_s, u"_en.rpt"_s})
            for (const QString& line : lines_of(built_template(report + ending)))
                QVERIFY2(line.size() < 120, qPrintable(ending + u": "_s + line));
    }

    void the_queries_of_the_twins_return_equal_numbers_of_rows_and_columns_data() { each_report(); }
    void the_queries_of_the_twins_return_equal_numbers_of_rows_and_columns()
    {
        QFETCH(QString, report);
        const template_file french = read_template(built_template(report + u".rpt"_s));
        const template_file english = read_template(built_template(report + u"_en.rpt"_s));
        const report_snapshot french_rows(french, {}, passed_to(report));
        const report_snapshot english_rows(english, {}, passed_to(report));
        for (std::size_t i = 0; i < french.queries.size(); ++i) {
            const report_rows one = french_rows.rows(french.queries[i], {});
            const report_rows other = english_rows.rows(english.queries[i], {});
            QVERIFY2(one.rows.size() == other.rows.size(), qPrintable(french.queries[i].name));
            QCOMPARE(one.columns.size(), other.columns.size());
        }
    }

    void a_page_fits_on_both_papers_in_full_size_data() { each_template(); }
    void a_page_fits_on_both_papers_in_full_size()
    {
        QFETCH(QString, name);
        const template_file source = read_template(built_template(name + u".rpt"_s));
        const QSizeF inside = QRectF(QPointF(), source.page_size_mm()).marginsRemoved(source.margins).size();
        QVERIFY(qMax(inside.width(), inside.height()) <= 267);
        QVERIFY(qMin(inside.width(), inside.height()) <= 198);
    }

    void a_report_prints_the_same_on_a4_and_on_letter_inside_the_printable_area_data() { each_template(); }
    void a_report_prints_the_same_on_a4_and_on_letter_inside_the_printable_area()
    {
        QFETCH(QString, name);
        const QString a4 = folder_.filePath(u"a4.pdf"_s);
        const QString letter = folder_.filePath(u"letter.pdf"_s);
        print(name, QPageSize::A4, a4);
        print(name, QPageSize::Letter, letter);
        const QStringList pages = pdf_pages(a4);
        const QStringList pages_on_letter = pdf_pages(letter);
        QCOMPARE(pages_on_letter.size(), pages.size());
        for (qsizetype page = 0; page < pages.size(); ++page)
            QCOMPARE(letters_of(pages_on_letter[page]), letters_of(pages[page]));
        const QString size = pdf_fact(letter, u"Page size"_s);
        QVERIFY2(size.startsWith(u"792 x 612"_s) || size.startsWith(u"612 x 792"_s), qPrintable(size));
        const std::vector<printed_word> words = pdf_words(a4);
        const std::vector<printed_word> words_on_letter = pdf_words(letter);
        QCOMPARE(out_of_reach(words) + out_of_reach(words_on_letter), QStringList());
        QVERIFY(qAbs(tallest(words) - tallest(words_on_letter)) < 0.02);
    }

    void there_is_ink_on_every_page_data() { each_template(); }
    void there_is_ink_on_every_page()
    {
        QFETCH(QString, name);
        const auto document = rendered(name);
        for (int page = 0; page < document->page_count(); ++page) {
            const double ink = ink_on(document->page_image(page, 50));
            QVERIFY2(ink > 0.03 && ink < 0.7, qPrintable(u"page %1: %2"_s.arg(page).arg(ink)));
        }
    }

    /// Run with VERDANE_KEEP_PAGES set, this writes the pictures instead; inspect them before you commit
    /// them.
    void each_page_looks_like_its_stored_picture_data() { each_template(); }
    void each_page_looks_like_its_stored_picture()
    {
        QFETCH(QString, name);
        const auto document = rendered(name);
        const auto alone =
            passed_to(name).empty() ? document : render_report(built_template(name + u".rpt"_s));
        for (int page = 0; page < document->page_count(); ++page) {
            // The stored picture of page 1 is that of a report of one page.
            const QImage seen = picture_of(page == 0 ? *alone : *document, page);
            compare_with_stored(seen, kept_page(name, page));
        }
        if (qEnvironmentVariableIsSet("VERDANE_KEEP_PAGES"))
            QFile::remove(kept_page(name, document->page_count()));
        QVERIFY2(!QFile::exists(kept_page(name, document->page_count())), "a stored picture has no page");
    }

    /// The pages about the handicap and the season, whose layout depends on the number of rounds and courses.
    void a_season_of_another_size_looks_like_its_stored_pictures_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<season_size>("size");
        QTest::addColumn<QList<int>>("pages");
        const auto add = [](const QString& name, const season_size& size, const QList<int>& pages) {
            QTest::newRow(qPrintable(u"%1-%2-rounds-%3-courses-%4-holes"_s.arg(name)
                                         .arg(size.rounds)
                                         .arg(size.courses)
                                         .arg(size.most_holes)))
                << name << size << pages;
        };
        add(u"Stat_rounds"_s, {.rounds = 1, .courses = 1}, {2, 3});
        add(u"Stat_rounds_en"_s, {.rounds = 5, .courses = 1}, {2, 3});
        add(u"Stat_rounds_en"_s, {.rounds = 366, .courses = 10}, {2, 3, 8});
        add(u"Stat_rounds_en"_s, {.rounds = 12, .courses = 2, .most_holes = 12}, {2, 3});
        add(u"Stat_rounds"_s, {.rounds = 6, .courses = 2, .most_holes = 0}, {2, 3});
    }
    void a_season_of_another_size_looks_like_its_stored_pictures()
    {
        QFETCH(QString, name);
        QFETCH(season_size, size);
        QFETCH(QList<int>, pages);
        const auto document =
            render_report(built_template(name + u".rpt"_s), {}, invented_season_tables(size));
        QCOMPARE(document->page_count(), pages.last());
        const QString kept_name = QString::fromLatin1(QTest::currentDataTag());
        for (const int page : pages)
            compare_with_stored(picture_of(*document, page - 1), kept_page(kept_name, page - 1));
    }
};

QTEST_MAIN(test_report_templates)
#include "test_report_templates.moc"
