#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <map>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/invented_rows.h"
#include "tests/reports/report_tools.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

QString text_of(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

void write_text(const QString& path, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// A change of some lines that follow one another.
struct line_change {
    QString file;
    QString before;
    QString after;
};

/// The changes of the manual by their headings, in their order. Between the lines "```diff" and "```" there
/// is a line "--- FILE", then changed lines with - and +, and others with a blank; "@@" starts the next
/// change.
std::map<QString, std::vector<line_change>> changes_of_manual()
{
    std::map<QString, std::vector<line_change>> changes;
    QString heading;
    bool is_inside = false;
    for (const QString& line : text_of(QString::fromUtf8(VERDANE_REPORT_MANUAL)).split(u'\n')) {
        if (line.startsWith(u"### "_s))
            heading = line.sliced(4);
        if (line.startsWith(u"```"_s)) {
            is_inside = line == u"```diff";
            continue;
        }
        if (!is_inside)
            continue;
        std::vector<line_change>& found = changes[heading];
        if (line.startsWith(u"--- "_s)) {
            found.push_back({line.sliced(4), {}, {}});
            continue;
        }
        if (line == u"@@") {
            found.push_back({found.back().file, {}, {}});
            continue;
        }
        if (!line.startsWith(u'+'))
            found.back().before += line.sliced(1) + u'\n';
        if (!line.startsWith(u'-'))
            found.back().after += line.sliced(1) + u'\n';
    }
    return changes;
}

struct printed_report {
    QStringList pages;
    QList<QImage> pictures;
};

}  // namespace

/// The examples of docs/reports.md.
class test_report_manual : public QObject {
    Q_OBJECT

    store_folder store_;
    QTemporaryDir folder_;

    void copy_templates()
    {
        const QDir built(QCoreApplication::applicationDirPath());
        for (const QString& name : built.entryList({u"*.rpt"_s, u"*.layout"_s}))
            write_text(folder_.filePath(name), text_of(built.filePath(name)));
    }

    printed_report printed(const QString& name)
    {
        const auto document = render_report(folder_.filePath(name));
        const QString pdf = folder_.filePath(u"page.pdf"_s);
        document->save_pdf(pdf);
        printed_report result{pdf_pages(pdf), {}};
        for (int page = 0; page < document->page_count(); ++page)
            result.pictures.append(document->page_image(page, 50));
        return result;
    }

private Q_SLOTS:
    void initTestCase()
    {
        set_report_store(store_.location());
        fill_all_reports(store_.location());
    }

    void a_change_of_the_manual_gives_the_page_that_it_describes_data()
    {
        QTest::addColumn<QString>("heading");
        QTest::addColumn<QString>("report");
        QTest::addColumn<QString>("new_text");
        QTest::newRow("caption") << u"Change a caption"_s << u"Stat_rounds_en.rpt"_s << u"Fairways hit"_s;
        QTest::newRow("colour, French") << u"Change a colour"_s << u"Stat_rounds.rpt"_s << QString();
        QTest::newRow("colour, English") << u"Change a colour"_s << u"Stat_rounds_en.rpt"_s << QString();
        QTest::newRow("column, French") << u"Add a column"_s << u"r_cost3.rpt"_s << u"N°"_s;
        QTest::newRow("column, English") << u"Add a column"_s << u"r_cost3_en.rpt"_s << u"No."_s;
        QTest::newRow("line, French") << u"Add a line"_s << u"Stat_rounds.rpt"_s << u"Moyenne par ronde"_s;
        QTest::newRow("line, English") << u"Add a line"_s << u"Stat_rounds_en.rpt"_s << u"Mean per round"_s;
    }
    void a_change_of_the_manual_gives_the_page_that_it_describes()
    {
        QFETCH(QString, heading);
        QFETCH(QString, report);
        QFETCH(QString, new_text);
        copy_templates();
        const printed_report before = printed(report);
        QVERIFY(new_text.isEmpty() || !before.pages.join(u' ').contains(new_text));

        const std::vector<line_change> changes = changes_of_manual()[heading];
        QVERIFY(!changes.empty());
        for (const line_change& change : changes) {
            const QString path = folder_.filePath(change.file);
            QString text = text_of(path);
            QVERIFY2(text.count(change.before) == 1, qPrintable(change.file + u":\n"_s + change.before));
            write_text(path, text.replace(change.before, change.after));
        }
        QCOMPARE(failure_of_template(folder_.filePath(report)), QString());
        const printed_report after = printed(report);
        QVERIFY(after.pictures != before.pictures);
        QCOMPARE(after.pages.size(), before.pages.size());
        QVERIFY(after.pages.join(u' ').contains(new_text));
    }
};

QTEST_MAIN(test_report_manual)
#include "test_report_manual.moc"
