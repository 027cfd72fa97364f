#include <QDir>
#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

#include "reports/query/report_snapshot.h"
#include "reports/report_document.h"
#include "tests/reports/report_tools.h"
#include "tests/support/failures.h"
#include "tests/support/store_folder.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

/// Limits the size of the files that this process writes, as long as it exists.
class file_size_limit {
public:
    explicit file_size_limit(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit now{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
    }
    ~file_size_limit()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    file_size_limit(const file_size_limit&) = delete;
    file_size_limit& operator=(const file_size_limit&) = delete;

private:
    rlimit before_{};
    void (*signal_)(int);
};

}  // namespace

class test_report_output : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    store_folder store_;

    QString file(const QString& name) const { return folder_.filePath(name); }

    std::shared_ptr<const report_document> rendered(const QString& head, const QString& body = {})
    {
        return render_report(template_file_in(folder_.path(), u"out.rpt"_s, head, body));
    }

    std::shared_ptr<const report_document> three_pages()
    {
        return rendered(u"page = A4 landscape\nmargins = 10 16 11 16\n"
                        u"query it = select 1 as n union all select 2 union all select 3"_s,
                        u"{{#it}}<p style=\"page-break-after: always\">sheet-{{n}}-</p>{{/it}}"_s);
    }

    static QByteArray content(const QString& path)
    {
        QFile source(path);
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    }

    void print_to(QPrinter& printer, const QString& path)
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPageOrientation(QPageLayout::Landscape);
    }

private Q_SLOTS:
    void init() { set_report_store(store_.location()); }

    void fields_of_a_figures_file_are_quoted_where_necessary_data()
    {
        QTest::addColumn<QString>("separator");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("field");
        const auto add = [](const char* name, const char* separator, const char* value, const char* field) {
            QTest::newRow(name) << QString::fromUtf8(separator) << QString::fromUtf8(value)
                                << QString::fromUtf8(field);
        };
        add("plain", ",", "'Été'", "Été");
        add("null", ",", "null", "");
        add("comma", ",", "'a,b'", "\"a,b\"");
        add("comma beside semicolons", ";", "'a,b'", "a,b");
        add("semicolon", ";", "'a;b'", "\"a;b\"");
        add("quote", ",", "'say \"x\"'", "\"say \"\"x\"\"\"");
        add("line end", ",", "'a' || char(10) || 'b'", "\"a\nb\"");
        add("number", ",", "2.5", "2.5");
        add("number beside semicolons", ";", "2.5", "2,5");
        add("text that looks like a number", ";", "'2.5'", "2.5");
    }
    void fields_of_a_figures_file_are_quoted_where_necessary()
    {
        QFETCH(QString, separator);
        QFETCH(QString, value);
        QFETCH(QString, field);
        const QString path = file(u"out.csv"_s);
        rendered(u"csv_separator = %1\nquery it = select %2 as v"_s.arg(separator, value))->save_csv(path);
        QCOMPARE(content(path), "\xEF\xBB\xBFv\r\n" + field.toUtf8() + "\r\n");
    }

    void the_head_names_the_query_of_the_figures_file()
    {
        const QString path = file(u"out.csv"_s);
        rendered(u"csv = second\nquery first = select 1 as a\nquery second = select 2 as b"_s)
            ->save_csv(path);
        QVERIFY(content(path).endsWith("b\r\n2\r\n"));
    }

    void a_picture_of_a_page_has_its_size_and_ink()
    {
        const QString path = file(u"out.png"_s);
        three_pages()->save_picture(path, 1);
        const QImage picture(path);
        QCOMPARE(picture.size(), QSize(2339, 1654));
        QVERIFY(picture.convertToFormat(QImage::Format_Grayscale8) !=
                QImage(picture.size(), QImage::Format_Grayscale8));
        QCOMPARE(picture.dotsPerMeterX(), 7874);
    }

    void a_file_that_cannot_be_written_is_a_failure_and_leaves_the_old_one_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("no such folder") << file(u"nowhere/out.pdf"_s);
        QTest::newRow("a folder of that name") << folder_.path();
    }
    void a_file_that_cannot_be_written_is_a_failure_and_leaves_the_old_one()
    {
        QFETCH(QString, path);
        const auto document = three_pages();
        QCOMPARE(failure_of([&] { document->save_pdf(path); }), failure_kind::report_output);
        QCOMPARE(failure_of([&] { document->save_csv(path); }), failure_kind::report_output);
        QCOMPARE(failure_of([&] { document->save_picture(path, 0); }), failure_kind::report_output);
        QVERIFY(QDir(folder_.path()).exists());
    }

    void a_full_disk_leaves_the_file_as_it_was()
    {
        const QString path = file(u"kept.pdf"_s);
        const auto document = three_pages();
        document->save_csv(path);
        const QByteArray before = content(path);
        const file_size_limit little(1024);
        QCOMPARE(failure_of([&] { document->save_pdf(path); }), failure_kind::report_output);
        QCOMPARE(content(path), before);
        QCOMPARE(QDir(folder_.path()).entryList({u"kept.pdf*"_s}).size(), 1);
    }

    void saving_to_a_pipe_fails_and_does_not_replace_it()
    {
        const QString path = file(u"pipe"_s);
        QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
        QCOMPARE(failure_of([&] { three_pages()->save_csv(path); }), failure_kind::report_output);
        QVERIFY(QFileInfo::exists(path) && !QFileInfo(path).isFile());
    }

    void printing_prints_the_range_of_pages_set_in_the_printer_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::addColumn<int>("pages");
        QTest::newRow("all") << 0 << 0 << 3;
        QTest::newRow("one") << 2 << 2 << 1;
        QTest::newRow("two") << 2 << 3 << 2;
        QTest::newRow("beyond the last page") << 3 << 9 << 1;
        QTest::newRow("after the last page") << 4 << 9 << 0;
        QTest::newRow("far after the last") << 1000 << 1000 << 0;
    }
    void printing_prints_the_range_of_pages_set_in_the_printer()
    {
        QFETCH(int, first);
        QFETCH(int, last);
        QFETCH(int, pages);
        QPrinter printer(QPrinter::HighResolution);
        const QString path = file(u"printed-%1-%2.pdf"_s.arg(first).arg(last));
        print_to(printer, path);
        if (first > 0)
            printer.setFromTo(first, last);
        three_pages()->print(printer);
        QCOMPARE(QFile::exists(path), pages > 0);
        const QStringList seen = pages > 0 ? pdf_pages(path) : QStringList();
        QCOMPARE(seen.size(), pages);
        QVERIFY(pages == 0 || seen.front().contains(u"sheet-%1-"_s.arg(qMax(1, first))));
    }

    void a_page_is_printed_whole_on_other_paper()
    {
        fill_stats(store_.location(), 3, u"X"_s);
        QPrinter printer(QPrinter::HighResolution);
        print_to(printer, file(u"letter.pdf"_s));
        printer.setPageSize(QPageSize(QPageSize::Letter));
        render_report(built_template(u"Stat_rounds_en.rpt"_s))->print(printer);
        const QString page = pdf_pages(file(u"letter.pdf"_s)).front();
        for (const char* corner : {"Round Statistics", "Total", "Triple+", "Page 1 of 1"})
            QVERIFY2(page.contains(QString::fromLatin1(corner)), corner);
        QVERIFY(pdf_fact(file(u"letter.pdf"_s), u"Page size"_s).startsWith(u"792 x 612"_s));
    }

    void a_printer_that_cannot_start_is_a_failure()
    {
        QPrinter printer(QPrinter::HighResolution);
        print_to(printer, file(u"nowhere/printed.pdf"_s));
        QCOMPARE(failure_of([&] { three_pages()->print(printer); }), failure_kind::report_output);
    }
};

QTEST_MAIN(test_report_output)
#include "test_report_output.moc"
