#include <QTest>

#include <cmath>

#include "tests/store/store_fixture.h"
#include "tests/support/comma_locale.h"

using namespace verdane;
using namespace Qt::StringLiterals;
using testing::comma_locale;
using testing::store_fixture;

namespace {

const QList<double> numbers{0.5, -12.25, 72.1, 1.0 / 3.0, 1e-7, 123456789.125};

/// One of the drivers returns 15 digits.
bool is_same(double left, double right)
{
    return std::abs(left - right) <= 1e-14 * std::abs(right);
}

}  // namespace

/// Numbers with decimals where the decimal separator of the computer is a comma.
class test_decimals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_number_is_stored_and_read_with_its_decimals_data()
    {
        QTest::addColumn<bool>("with_comma");
        QTest::newRow("decimal point") << false;
        QTest::newRow("decimal comma") << true;
    }

    void a_number_is_stored_and_read_with_its_decimals()
    {
        QFETCH(bool, with_comma);
        const auto locale = with_comma ? std::make_unique<comma_locale>() : nullptr;
        store_fixture store;
        const auto rows = store.opened(u"select * from hand"_s);
        for (const double number : numbers) {
            rows->AddNew();
            rows->Fields(u"hnd").set(number);
            rows->Update();
        }
        rows->Requery();
        const auto stored = store.outside().rows(u"select hnd from hand order by rowid"_s);
        for (int row = 0; row < numbers.size(); ++row) {
            rows->MoveTo(row);
            QVERIFY(is_same(rows->Fields(u"hnd").to_double(), numbers[row]));
            QVERIFY(is_same(stored[static_cast<std::size_t>(row)][0].toDouble(), numbers[row]));
        }
    }

    /// The server computes an average of whole numbers as a decimal number, which is none of its real types.
    void a_computed_number_is_read_with_its_decimals_where_the_separator_is_a_comma()
    {
        const comma_locale locale;
        store_fixture store;
        store.add_partners(testing::three_names);
        store.connection.Execute(u"update partners set code = 4 where code = 3"_s);
        const auto average = store.opened(u"select avg(code), sum(code) from partners where code > 1"_s);
        QCOMPARE(average->Fields(0).to_double(), 3.0);
        store.connection.Execute(u"update partners set code = 3 where code = 4"_s);
        average->Requery();
        QCOMPARE(average->Fields(0).to_double(), 2.5);
        QCOMPARE(average->Fields(1).text(), u"5"_s);
    }
};

QTEST_GUILESS_MAIN(test_decimals)
#include "test_decimals.moc"
