#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "store/recovery/copy_days.h"

using namespace verdane;
using namespace Qt::StringLiterals;

namespace {

using days = std::vector<QDate>;

/// Every day from the first to the last.
days every_day(QDate first, QDate last)
{
    days result;
    for (QDate day = first; day <= last; day = day.addDays(1))
        result.push_back(day);
    return result;
}

days without(days all, const days& removed)
{
    for (const QDate day : removed)
        all.erase(std::find(all.begin(), all.end(), day));
    return all;
}

QString names_of(const days& all)
{
    QStringList names;
    for (const QDate day : all)
        names << day.toString(Qt::ISODate);
    return names.join(u' ');
}

void put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write the file");
}

}  // namespace

/// The names of the dated copies, and which of them are kept.
class test_copy_days : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_copy_has_the_name_of_the_store_and_its_day()
    {
        QCOMPARE(path_of_copy(u"/diaries/Verdbase.db"_s, QDate(2026, 6, 4)),
                 u"/diaries/copies/Verdbase-2026-06-04.db"_s);
    }

    void only_files_with_content_and_the_name_of_a_copy_are_copies()
    {
        const QTemporaryDir folder;
        const QString store = folder.filePath(u"Verdbase.db"_s);
        QCOMPARE(names_of(days_of_copies(store)), QString());
        QDir(folder.path()).mkpath(u"copies/Verdbase-2026-01-07.db"_s);
        for (const QString& name :
             {u"Verdbase-2026-06-14.db"_s, u"Verdbase-2025-12-31.db"_s, u"Verdbase-2026-02-30.db"_s,
              u"Verdbase-2026-6-15.db"_s, u"Verdbase-2026-06-16.db-wal"_s, u"Verdbase-2026-06-17.DB"_s,
              u"Music-2026-06-18.db"_s, u"My Verdbase-2026-06-19.db"_s, u"Verdbase-2026-06-20 (2).db"_s})
            put(folder_of_copies(store) + u'/' + name, "content");
        put(folder_of_copies(store) + u"/Verdbase-2026-06-21.db"_s, {});
        QCOMPARE(names_of(days_of_copies(store)), u"2025-12-31 2026-06-14"_s);
    }

    void days_to_remove_are_those_before_the_last_thirty_except_the_last_of_a_month_data()
    {
        QTest::addColumn<days>("present");
        QTest::addColumn<days>("removed");
        const auto row = [](const char* name, const days& older, const days& removed) {
            QTest::newRow(name) << older << removed;
        };
        row("no older copy", {}, {});
        row("the thirty-first day, in a month", {{2026, 5, 15}}, {{2026, 5, 15}});
        row("the first day of that month", {{2026, 5, 1}}, {{2026, 5, 1}});
        row("the month before", {{2026, 4, 29}, {2026, 4, 30}}, {{2026, 4, 29}});
        row("a month ends between two copies", {{2026, 1, 30}, {2026, 1, 31}, {2026, 2, 1}}, {{2026, 1, 30}});
        row("a short February", every_day({2026, 2, 1}, {2026, 3, 1}),
            every_day({2026, 2, 1}, {2026, 2, 27}));
        row("the last copy of a month is not that of its last day",
            {{2026, 1, 3}, {2026, 1, 17}, {2026, 2, 2}}, {{2026, 1, 3}});
        row("the same month of two years", {{2025, 1, 3}, {2026, 1, 2}}, {});
        row("the turn of a year", {{2025, 12, 30}, {2025, 12, 31}, {2026, 1, 1}}, {{2025, 12, 30}});
        row("in another order", {{2026, 2, 2}, {2026, 1, 17}, {2026, 1, 3}}, {{2026, 1, 3}});
    }
    void days_to_remove_are_those_before_the_last_thirty_except_the_last_of_a_month()
    {
        QFETCH(days, present);
        QFETCH(days, removed);
        for (const QDate day : every_day({2026, 5, 16}, {2026, 6, 14}))
            present.insert(present.begin(), day);
        QCOMPARE(names_of(days_to_remove(present, {2026, 6, 14})), names_of(removed));
    }

    void the_thirty_newest_copies_are_kept_whatever_the_clock_shows_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<days>("present");
        QTest::addColumn<days>("removed");
        const days thirty = every_day({2026, 5, 16}, {2026, 6, 14});
        const days thirty_two = every_day({2026, 5, 14}, {2026, 6, 14});
        const days two{{2026, 5, 14}, {2026, 5, 15}};
        QTest::newRow("on time") << QDate(2026, 6, 14) << thirty << days();
        QTest::newRow("a year late") << QDate(2025, 6, 14) << thirty_two << days();
        QTest::newRow("a year early") << QDate(2027, 6, 14) << thirty << days();
        QTest::newRow("a year early, with older copies") << QDate(2027, 6, 14) << thirty_two << two;
        QTest::newRow("on time, with older copies") << QDate(2026, 6, 14) << thirty_two << two;
        QTest::newRow("fewer copies") << QDate(2027, 6, 14) << two << days();
    }
    void the_thirty_newest_copies_are_kept_whatever_the_clock_shows()
    {
        QFETCH(QDate, today);
        QFETCH(days, present);
        QFETCH(days, removed);
        QCOMPARE(names_of(days_to_remove(present, today)), names_of(removed));
    }

    void copies_of_the_last_thirty_days_and_after_today_are_kept_if_there_are_more()
    {
        const days present = every_day({2026, 5, 16}, {2026, 7, 20});
        QCOMPARE(names_of(days_to_remove(present, {2026, 6, 14})), QString());
        QCOMPARE(names_of(days_to_remove(present, {2026, 6, 15})), u"2026-05-16"_s);
    }

    void a_copy_each_day_leaves_thirty_days_and_one_copy_for_each_month_before()
    {
        days present;
        for (const QDate today : every_day({2024, 1, 1}, {2026, 6, 14})) {
            present.push_back(today);
            present = without(present, days_to_remove(present, today));
        }
        days expected;
        for (QDate month(2024, 1, 1); month < QDate(2026, 5, 1); month = month.addMonths(1))
            expected.push_back(QDate(month.year(), month.month(), month.daysInMonth()));
        for (const QDate day : every_day({2026, 5, 16}, {2026, 6, 14}))
            expected.push_back(day);
        QCOMPARE(names_of(present), names_of(expected));
    }
};

QTEST_GUILESS_MAIN(test_copy_days)
#include "test_copy_days.moc"
