#include "tests/guided_day/report_prints.h"

#include <QApplication>
#include <QFile>
#include <QPrinter>
#include <QWidget>

#include "reports/preview/report_dialogs.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

const QString preview = u"report_preview"_s;

bool begins_with(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(bytes.size()) == bytes;
}

/// Clicks a button that saves a file; the file dialog returns a path in the album.
QString save(visit& now, const QString& button, const QString& file)
{
    const QString path = now.pictures.path_for(now.user, file);
    now.user.look([&] { dialogs_of_reports().choose_file = [path](auto*, const auto&) { return path; }; });
    now.user.click(button);
    now.user.wait_until(file, [&] { return QFile(path).size() > 0; });
    return path;
}

/// Prints to a file, which the printer dialog chooses.
void print(visit& now, const QString& file)
{
    const QString path = now.pictures.path_for(now.user, file);
    now.user.look([&] {
        dialogs_of_reports().choose_printer = [path](auto*, QPrinter& printer, int) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            return true;
        };
    });
    now.user.click(u"print"_s);
    now.user.wait_until(file, [&] { return QFile(path).size() > 0; });
}

/// Without a window manager nothing activates the window below one that was closed.
void activate_window_below(visit& now)
{
    now.user.look([] { QApplication::activeModalWidget()->activateWindow(); });
}

}  // namespace

void save_report(visit& now, const QString& name)
{
    now.user.wait_for_window(preview);
    now.user.same(now.user.title(preview), u"Verdane International Inc."_s, u"title of the report " + name);
    now.user.check(now.user.text(u"page_of_pages"_s).startsWith(u"Page 1 "_s),
                   u"the preview shows the first page of the report " + name);
    now.pictures.save_picture(now.user, preview, now.twin(u"preview_" + name));
    const QString report = now.twin(u"report_" + name);
    const QString pdf = save(now, u"save_pdf"_s, report + u".pdf");
    now.user.check(begins_with(pdf, "%PDF-"), pdf + u" is no PDF file");
    save(now, u"save_csv"_s, report + u".csv");
    print(now, now.twin(u"printed_" + name) + u".pdf");
    now.user.close_window(preview);
    now.user.wait_until_closed(preview);
    activate_window_below(now);
}

}  // namespace verdane::guided_day
