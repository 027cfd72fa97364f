#include <QTest>

#include "base/numbers.h"
#include "scoring/hole_classes.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

/// The classes once more, written from their meaning and without any of the program's arithmetic.
class naive_hole {
public:
    naive_hole(int long_shots, int approach, int putts, int penalties, int par)
        : others_(long_shots + approach),
          putts_(putts),
          par_(par),
          to_green_(others_ + penalties),
          gross_(to_green_ + putts)
    {
    }

    QString cell(int selector) const
    {
        if (selector == 1)
            return mark(gross_ == par_);
        if (selector >= 6 && selector <= 11)
            return mark(around_the_green(selector));
        if (selector >= 12 && selector <= 14)
            return pars(selector - 9);
        if (selector >= 15 && selector <= 17)
            return par_ == selector - 12 && gross_ > 0 ? QString::number(gross_) : u" "_s;
        if (selector >= 18 && selector <= 24)
            return mark(against_par(selector));
        if (selector >= 25 && selector <= 28)
            return mark(in_regulation_class(selector));
        return QString();
    }

private:
    static QString mark(bool yes) { return yes ? u"1"_s : u" "_s; }
    bool green_hit() const { return par_ - to_green_ == 2; }

    bool around_the_green(int selector) const
    {
        const bool missed_green = gross_ > 0 && !green_hit();
        switch (selector) {
        case 6:
            return missed_green;
        case 7:
            return missed_green && putts_ == 1;
        case 8:
            return missed_green && putts_ == 2;
        case 9:
            return missed_green && putts_ > 2;
        case 10:
            return gross_ > 0 && gross_ == par_ && putts_ != 2;
        default:
            return others_ > 0 && putts_ == 0;
        }
    }

    QString pars(int kind) const
    {
        if (kind == 3 && par_ < 3)
            return QString();
        return mark(par_ == kind && gross_ == kind);
    }

    bool against_par(int selector) const
    {
        if (gross_ == 0)
            return false;
        const int over = gross_ - par_;
        switch (selector) {
        case 18:
            return gross_ == 1;
        case 24:
            return over >= 3;
        case 22:
        case 23:
            return over == selector - 21;
        default:
            return over == selector - 22;
        }
    }

    bool in_regulation_class(int selector) const
    {
        if (selector == 25)
            return green_hit();
        if (gross_ > 0 && !green_hit())
            return false;
        return selector == 28 ? putts_ >= 3 : putts_ == selector - 25;
    }

    int others_;
    int putts_;
    int par_;
    int to_green_;
    int gross_;
};

/// The penalties of a hole, spread over the four kinds in turn.
hole_figures figures(int long_shots, int approach, int putts, int penalties)
{
    return {long_shots,          approach,     putts, (penalties + 3) / 4, (penalties + 2) / 4,
            (penalties + 1) / 4, penalties / 4};
}

}  // namespace

class test_hole_classes_crosscheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_cell_of_a_hole_with_few_strokes_agrees_with_a_second_computation_data()
    {
        QTest::addColumn<int>("par");
        for (int par = 0; par <= 6; ++par)
            QTest::addRow("par %d", par) << par;
    }

    void every_cell_of_a_hole_with_few_strokes_agrees_with_a_second_computation()
    {
        QFETCH(int, par);
        for (int long_shots = 0; long_shots <= 5; ++long_shots)
            for (int approach = 0; approach <= 4; ++approach)
                for (int putts = 0; putts <= 4; ++putts)
                    for (int penalties = 0; penalties <= 5; ++penalties)
                        compare(long_shots, approach, putts, penalties, par);
    }

private:
    static void compare(int long_shots, int approach, int putts, int penalties, int par)
    {
        const hole_figures f = figures(long_shots, approach, putts, penalties);
        const naive_hole naive(long_shots, approach, putts, penalties, par);
        for (int selector = 0; selector <= 30; ++selector) {
            const QString cell = hole_cell(selector, f, par);
            const QString wanted = naive.cell(selector);
            // Building a message for each of some 200,000 cells would take longer than the check.
            if (cell != wanted || hole_cell_value(selector, f, par) != to_int16(cell))
                QFAIL(qPrintable(u"class %1 of %2 %3 %4 +%5 on par %6: \"%7\", not \"%8\""_s.arg(selector)
                                     .arg(long_shots)
                                     .arg(approach)
                                     .arg(putts)
                                     .arg(penalties)
                                     .arg(par)
                                     .arg(cell, wanted)));
        }
    }
};

QTEST_GUILESS_MAIN(test_hole_classes_crosscheck)
#include "test_hole_classes_crosscheck.moc"
