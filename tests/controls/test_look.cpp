#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <cmath>
#include <memory>

#include "controls/look.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

double luminance(const QColor& colour)
{
    const auto linear = [](double share) {
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// The contrast ratio: 1 for equal colours, 21 for black on white. Text needs 4.5.
double contrast(const QColor& one, const QColor& other)
{
    const double light = std::max(luminance(one), luminance(other));
    const double dark = std::min(luminance(one), luminance(other));
    return (light + 0.05) / (dark + 0.05);
}

QPalette palette_of(bool dark)
{
    if (!dark)
        return {QColor(0xef, 0xef, 0xef), QColor(0xef, 0xef, 0xef)};
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2d, 0x2d, 0x2d));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    return palette;
}

void check_figure(const QLineEdit& figure)
{
    const QColor ground = figure.palette().color(QPalette::Base);
    QVERIFY(contrast(ground, QApplication::palette().color(QPalette::Window)) > 1.15);
    QVERIFY(contrast(ground, QApplication::palette().color(QPalette::Base)) > 1.15);
    QVERIFY(contrast(ground, figure.palette().color(QPalette::Text)) > 4.5);
}

}  // namespace

class test_look : public QObject {
    Q_OBJECT

private:
    QPalette before_;

private Q_SLOTS:
    void init() { before_ = QApplication::palette(); }
    void cleanup() { QApplication::setPalette(before_); }

    void the_background_of_a_figure_differs_from_that_of_windows_and_of_boxes_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void the_background_of_a_figure_differs_from_that_of_windows_and_of_boxes()
    {
        QFETCH(bool, dark);
        QApplication::setPalette(palette_of(dark));
        const std::unique_ptr<QLineEdit> figure(make_figure(4));
        check_figure(*figure);
    }

    void the_background_of_a_figure_changes_with_the_palette()
    {
        QApplication::setPalette(palette_of(false));
        QWidget window;
        auto* figure = make_figure(4);
        figure->setParent(&window);
        window.show();
        const QColor light = figure->palette().color(QPalette::Base);
        QApplication::setPalette(palette_of(true));
        QTRY_VERIFY(figure->palette().color(QPalette::Base) != light);
        check_figure(*figure);
    }

    void a_label_names_its_control_without_mnemonic_and_colon()
    {
        QWidget window;
        auto* box = new QLineEdit(&window);
        const std::unique_ptr<QLabel> label(make_label(u"&Normale :"_s, box));
        QCOMPARE(label->buddy(), box);
        QCOMPARE(box->accessibleName(), u"Normale"_s);
    }
};

QTEST_MAIN(test_look)
#include "test_look.moc"
