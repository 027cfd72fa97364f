#include <QTest>

#include <algorithm>

#include "round/statistics_pane.h"

using namespace verdane;
using namespace Qt::StringLiterals;

class test_class_captions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_classes_are_computed_in_the_order_1_then_6_to_28()
    {
        QCOMPARE(class_boxes.front().selector, 1);
        for (int i = 1; i < class_count; ++i)
            QCOMPARE(class_boxes[static_cast<std::size_t>(i)].selector, i + 5);
    }

    void every_class_has_its_own_box_from_12_to_35()
    {
        QSet<int> boxes;
        for (const class_box& row : class_boxes)
            boxes.insert(row.box);
        QCOMPARE(boxes.size(), class_count);
        for (int box = 12; box <= 35; ++box)
            QVERIFY(boxes.contains(box));
    }

    void every_class_has_its_box_and_its_label_data()
    {
        QTest::addColumn<int>("selector");
        QTest::addColumn<int>("box");
        QTest::addColumn<QString>("french");
        QTest::addColumn<QString>("english");
        const auto row = [](int selector, int box, const QString& french, const QString& english) {
            QTest::addRow("class %d", selector) << selector << box << french << english;
        };
        row(1, 20, u"Nombre de normales :"_s, u"Number of Par :"_s);
        row(6, 15, u"Vert en coup non réglementaire :"_s, u"Green not in Regulation :"_s);
        row(7, 14, u"1 roulés  non réglementaire :"_s, u"1 Putt not in Regulation :"_s);
        row(8, 13, u"2 roulés  non réglementaire :"_s, u"2 Putts not in Regulation :"_s);
        row(9, 12, u"3 roulés et +  non réglementaire :"_s, u"3+ Putts not in regulation :"_s);
        row(10, 23, u"Normales non réglementaires :"_s, u"Up and Down :"_s);
        row(11, 22, u"Approches callés :"_s, u"Chip in :"_s);
        row(12, 21, u"Nombre de normale  3 :"_s, u"Number of Par 3"_s);
        row(13, 32, u"Nombre de normales  4 :"_s, u"Number of Par 4 :"_s);
        row(14, 31, u"Nombre de normales  5 :"_s, u"Number of Par 5 :"_s);
        row(15, 30, u"Moyenne de normales  3 :"_s, u"Average Par 3 :"_s);
        row(16, 29, u"Moyenne de normale  4 :"_s, u"Average Par 4 :"_s);
        row(17, 28, u"Moyenne de normales  5 :"_s, u"Average Par 5 :"_s);
        row(18, 27, u"Trous d’un coup :"_s, u"Hole in One :"_s);
        row(19, 26, u"Albatros :"_s, u"Double eagle :"_s);
        row(20, 25, u"Aigles :"_s, u"Eagle"_s);
        row(21, 24, u"Oiselets :"_s, u"Birdie"_s);
        row(22, 35, u"Bogueys :"_s, u"Bogey :"_s);
        row(23, 34, u"Doubles :"_s, u"Double :"_s);
        row(24, 33, u"Triples et  +  :"_s, u"Triple+  :"_s);
        row(25, 19, u"Verts en coup réglementaires :"_s, u"Green in Regulation :"_s);
        row(26, 18, u"1 roulé  réglementaire :"_s, u"1 Putt in Regulation :"_s);
        row(27, 17, u"2 roulés  réglementaires :"_s, u"2 Putts in Regulation :"_s);
        row(28, 16, u"3 roulés  et + réglementaires :"_s, u"3+ Putts in Regulation :"_s);
    }

    void every_class_has_its_box_and_its_label()
    {
        QFETCH(int, selector);
        const auto row = std::find_if(class_boxes.begin(), class_boxes.end(),
                                      [=](const class_box& r) { return r.selector == selector; });
        QVERIFY(row != class_boxes.end());
        QTEST(row->box, "box");
        QTEST(row->label.in(true), "french");
        QTEST(row->label.in(false), "english");
    }
};

QTEST_GUILESS_MAIN(test_class_captions)
#include "test_class_captions.moc"
