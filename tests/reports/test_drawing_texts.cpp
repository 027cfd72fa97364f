#include <QImage>
#include <QPainter>
#include <QTest>

#include "reports/page/drawing_texts.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

/// The first and the last column of a picture with dark ink.
std::pair<int, int> inked_columns(const QImage& paper)
{
    int left = paper.width();
    int right = -1;
    for (int x = 0; x < paper.width(); ++x)
        for (int y = 0; y < paper.height(); ++y)
            if (qGray(paper.pixel(x, y)) < 128) {
                left = qMin(left, x);
                right = qMax(right, x);
            }
    return {left, right};
}

/// Paints a text into a drawing of 100 by 30 units, two dots each.
QImage painted(const drawing_text& text)
{
    QImage paper(200, 60, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    paint_texts(painter, {text}, QRectF(0, 0, 100, 30), QRectF(0, 0, 200, 60));
    return paper;
}

}  // namespace

class test_drawing_texts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_text_takes_the_attributes_of_the_elements_around_it()
    {
        const separated_drawing separated = separate_texts(
            u"<svg viewBox=\"0 0 100 50\" font-family=\"A B, 'C'\" font-size=\"12\" fill=\"#010203\">"
            "<g transform=\"translate(10 20)\" font-weight=\"bold\"><text x=\"1\" y=\"2\" "
            "text-anchor=\"end\" data-width=\"33\">"
            "one &amp; &lt;two&gt;</text></g><text x=\"3\" y=\"4\" font-size=\"7\" fill=\"red\"> three "
            "</text>"
            "</svg>"_s);
        QCOMPARE(separated.texts.size(), std::size_t(2));
        const drawing_text& first = separated.texts[0];
        QCOMPARE(first.words, u"one & <two>"_s);
        QCOMPARE(first.base, QPointF(11, 22));
        QCOMPARE(first.anchor, Qt::Alignment(Qt::AlignRight));
        QCOMPARE(first.families, (QStringList{u"A B"_s, u"C"_s}));
        QCOMPARE(first.size, 12.0);
        QVERIFY(first.bold);
        QCOMPARE(first.most_width, 33.0);
        QCOMPARE(first.ink, QColor(1, 2, 3));
        const drawing_text& second = separated.texts[1];
        QCOMPARE(second.words, u"three"_s);
        QCOMPARE(second.base, QPointF(3, 4));
        QCOMPARE(second.size, 7.0);
        QVERIFY(!second.bold);
        QCOMPARE(second.most_width, 0.0);
        QCOMPARE(second.ink, QColor(Qt::red));
    }

    void everything_but_the_texts_stays_in_the_drawing()
    {
        const separated_drawing separated = separate_texts(
            u"<svg viewBox=\"0 0 9 9\"><g fill=\"red\"><rect x=\"1\"/><text>a</text><path d=\"M0 0\"/></g></svg>"_s);
        QVERIFY(separated.svg.contains(u"<rect x=\"1\""_s) && separated.svg.contains(u"<path d=\"M0 0\""_s));
        QVERIFY(separated.svg.contains(u"<g fill=\"red\">"_s) &&
                separated.svg.contains(u"viewBox=\"0 0 9 9\""_s));
        QVERIFY(!separated.svg.contains(u"text"_s));
    }

    void a_text_that_cannot_be_painted_as_letters_stays_in_the_drawing_data()
    {
        QTest::addColumn<QString>("svg");
        QTest::newRow("turned")
            << u"<svg viewBox=\"0 0 9 9\"><g transform=\"rotate(90)\"><text>a</text></g></svg>"_s;
        QTest::newRow("scaled, further out") << u"<svg viewBox=\"0 0 9 9\"><g transform=\"scale(2)\"><g "
                                                u"transform=\"translate(1)\"><text>a</text>"
                                                "</g></g></svg>"_s;
        QTest::newRow("no units of its own") << u"<svg width=\"9mm\" height=\"9mm\"><text>a</text></svg>"_s;
    }
    void a_text_that_cannot_be_painted_as_letters_stays_in_the_drawing()
    {
        QFETCH(QString, svg);
        const separated_drawing separated = separate_texts(svg);
        QVERIFY(separated.texts.empty());
        QVERIFY(separated.svg.contains(u"<text>a</text>"_s));
    }

    void an_anchor_aligns_the_text_at_its_start_middle_or_end_data()
    {
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        // A row of full blocks, 40 units of a drawing that is painted twice as large.
        QTest::newRow("start") << int(Qt::AlignLeft) << 100 << 200;
        QTest::newRow("middle") << int(Qt::AlignHCenter) << 40 << 160;
        QTest::newRow("end") << int(Qt::AlignRight) << 0 << 100;
    }
    void an_anchor_aligns_the_text_at_its_start_middle_or_end()
    {
        QFETCH(int, anchor);
        QFETCH(int, first);
        QFETCH(int, last);
        drawing_text text;
        text.words = u"HHHH"_s;
        text.base = {50, 20};
        text.anchor = Qt::Alignment::fromInt(anchor);
        const auto [left, right] = inked_columns(painted(text));
        QVERIFY(right > left + 20);
        QVERIFY2(left >= first && right <= last, qPrintable(u"%1 to %2"_s.arg(left).arg(right)));
    }

    void a_text_stays_in_its_width_data()
    {
        QTest::addColumn<int>("letters");
        QTest::addColumn<double>("width");
        QTest::addColumn<int>("least");
        QTest::newRow("fits") << 2 << 60.0 << 20;
        QTest::newRow("smaller letters") << 8 << 60.0 << 100;
        QTest::newRow("cut") << 40 << 60.0 << 90;
        QTest::newRow("any width") << 8 << 0.0 << 130;
    }
    void a_text_stays_in_its_width()
    {
        QFETCH(int, letters);
        QFETCH(double, width);
        QFETCH(int, least);
        drawing_text text;
        text.words = QString(letters, u'H');
        text.base = {10, 20};
        text.most_width = width;
        const auto [left, right] = inked_columns(painted(text));
        QVERIFY2(right - left >= least, qPrintable(u"%1 to %2"_s.arg(left).arg(right)));
        if (width > 0)
            QVERIFY2(right <= 20 + 2 * width, qPrintable(u"%1 to %2"_s.arg(left).arg(right)));
    }

    void a_text_that_fits_is_painted_in_its_size()
    {
        drawing_text text;
        text.words = u"HH"_s;
        text.base = {10, 20};
        const QImage free = painted(text);
        text.most_width = 60;
        QCOMPARE(painted(text), free);
    }
};

QTEST_MAIN(test_drawing_texts)
#include "test_drawing_texts.moc"
