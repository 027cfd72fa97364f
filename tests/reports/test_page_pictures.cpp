#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/page_pictures.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QColor green(0x1f, 0x7a, 0x4d);

void each_template()
{
    QTest::addColumn<QString>("name");
    for (const QString& report :
         {u"r_statSticks"_s, u"Stat_rounds"_s, u"r_cost3"_s, u"statPuts"_s, u"r_card2"_s})
        for (const QString& twin : {u".rpt"_s, u"_en.rpt"_s})
            QTest::newRow(qPrintable(report + twin)) << report + twin;
}

/// A picture in which a place was painted over in the colour beside it.
QImage without(const QImage& picture, const QRect& place)
{
    QImage result = picture;
    QPainter painter(&result);
    painter.fillRect(place, picture.pixelColor(qMax(0, place.left() - 1), place.top()));
    return result;
}

/// The first square of that side that is completely green; empty if there is none.
QRect green_square(const QImage& picture, int side)
{
    for (int top = 0; top + side <= picture.height(); ++top)
        for (int left = 0; left + side <= picture.width(); ++left) {
            int dots = 0;
            while (dots < side * side && picture.pixelColor(left + dots % side, top + dots / side) == green)
                ++dots;
            if (dots == side * side)
                return {left, top, side, side};
        }
    return {};
}

}  // namespace

class test_page_pictures : public QObject {
    Q_OBJECT

    store_folder store_;
    QTemporaryDir folder_;

private Q_SLOTS:
    void initTestCase()
    {
        set_report_store(store_.location());
        fill_all_reports(store_.location());
    }

    void a_page_painted_twice_is_the_same_data() { each_template(); }
    void a_page_painted_twice_is_the_same()
    {
        QFETCH(QString, name);
        const QImage once = picture_of(*render_report(built_template(name)), 0);
        const QImage again = picture_of(*render_report(built_template(name)), 0);
        QCOMPARE(largest_difference(once, again, once.rect()), 0.0);
    }

    /// The letters of a scaled-down picture are between the dots, those of a small one on them.
    void letters_a_fraction_of_a_dot_apart_are_no_difference_data() { each_template(); }
    void letters_a_fraction_of_a_dot_apart_are_no_difference()
    {
        QFETCH(QString, name);
        const auto document = render_report(built_template(name));
        const QImage page = picture_of(*document, 0);
        const QImage other = document->page_image(0, 320)
                                 .scaled(page.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 .convertToFormat(QImage::Format_RGB32);
        const double shades = largest_difference(page, other, page.rect());
        QVERIFY2(shades > 0 && shades < noticed_shades, qPrintable(QString::number(shades)));
    }

    /// Except for a mark alone: the dots in place of zeros are meant to be inconspicuous.
    void a_word_that_is_missing_is_noticed_data() { each_template(); }
    void a_word_that_is_missing_is_noticed()
    {
        QFETCH(QString, name);
        const auto document = render_report(built_template(name));
        const QString path = folder_.filePath(u"words.pdf"_s);
        document->save_pdf(path);
        const QImage page = picture_of(*document, 0);
        const double dots_per_mm = page.width() / document->page_size_mm().width();
        for (const printed_word& word : pdf_words(path)) {
            if (word.page_number > 0 || u"·:;"_s.contains(word.text))
                continue;
            const QRect place(
                QRectF(word.place.topLeft() * dots_per_mm, word.place.size() * dots_per_mm).toAlignedRect());
            const double shades =
                largest_difference(page, without(page, place), place.adjusted(-8, -8, 8, 8));
            QVERIFY2(shades > noticed_shades, qPrintable(u"%1: %2"_s.arg(word.text).arg(shades)));
        }
    }

    void a_patch_of_another_colour_as_bright_is_noticed_data() { each_template(); }
    void a_patch_of_another_colour_as_bright_is_noticed()
    {
        QFETCH(QString, name);
        const QImage page = picture_of(*render_report(built_template(name)), 0);
        const QRect patch = green_square(page, 6);
        QVERIFY(!patch.isEmpty());
        QImage other = page;
        QPainter painter(&other);
        const int grey = qGray(green.rgb());
        painter.fillRect(patch, QColor(grey, grey, grey));
        painter.end();
        QVERIFY(largest_difference(page, other, page.rect()) > noticed_shades);
    }
};

QTEST_MAIN(test_page_pictures)
#include "test_page_pictures.moc"
