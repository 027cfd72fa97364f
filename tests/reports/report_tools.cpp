#include "tests/reports/report_tools.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "base/run_time_failure.h"
#include "reports/report_document.h"
#include "store/Connection1.h"
#include "tests/support/reader.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

QString output_of(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s does not run", qPrintable(program));
    return QString::fromUtf8(process.readAllStandardOutput());
}

double figure_of(int line, int hole)
{
    if (line == 20)
        return 0;
    return line == 9 ? (hole - 9) / 10.0 : line + hole;
}

QString line_statement(int line)
{
    QStringList values;
    double nines[2] = {0, 0};
    for (int hole = 1; hole <= 18; ++hole) {
        const double figure = figure_of(line, hole);
        nines[hole > 9 ? 1 : 0] += figure;
        values.append(u"hole_%1 = %2"_s.arg(hole).arg(figure));
    }
    values.append(u"front_nine = %1"_s.arg(nines[0]));
    values.append(u"back_nine = %1"_s.arg(nines[1]));
    values.append(u"all_holes = %1"_s.arg(nines[0] + nines[1]));
    return u"update stats set %1 where rowid = %2"_s.arg(values.join(u", "_s)).arg(line + 1);
}

}  // namespace

QString template_file_in(const QString& folder, const QString& name, const QString& head, const QString& body)
{
    const QString path = QDir(folder).filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    const QString end_of_head = head.endsWith(u'\n') ? u"---\n"_s : u"\n---\n"_s;
    file.write((head + end_of_head + body).toUtf8());
    return path;
}

QString failure_of_template(const QString& path)
{
    try {
        render_report(path)->complete();
    } catch (const run_time_failure& failure) {
        if (failure.kind() == failure_kind::report_template)
            return failure.details();
    }
    return {};
}

QString built_template(const QString& name)
{
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

QStringList pdf_pages(const QString& path)
{
    const QString text = output_of(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s});
    QStringList pages = text.split(u'\f');
    pages.removeLast();
    return pages;
}

std::vector<printed_word> pdf_words(const QString& path)
{
    static const QRegularExpression page_form(u"<page width=\"([\\d.]+)\" height=\"([\\d.]+)\""_s);
    static const QRegularExpression word_form(
        u"<word xMin=\"([\\d.-]+)\" yMin=\"([\\d.-]+)\" xMax=\"([\\d.-]+)\" yMax=\"([\\d.-]+)\">(.*)</word>"_s);
    constexpr double mm_per_pt = 25.4 / 72;
    std::vector<printed_word> words;
    QSizeF page;
    int page_number = -1;
    const auto number = [](const QRegularExpressionMatch& match, int group) {
        return match.captured(group).toDouble() * mm_per_pt;
    };
    for (const QString& line : output_of(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s}).split(u'\n')) {
        const QRegularExpressionMatch start = page_form.match(line);
        const QRegularExpressionMatch word = word_form.match(line);
        if (start.hasMatch()) {
            page = {number(start, 1), number(start, 2)};
            ++page_number;
        }
        if (word.hasMatch())
            words.push_back(
                {word.captured(5),
                 QRectF(QPointF(number(word, 1), number(word, 2)), QPointF(number(word, 3), number(word, 4))),
                 page, page_number});
    }
    return words;
}

QString pdf_fact(const QString& path, const QString& word)
{
    const QStringList lines = output_of(u"pdfinfo"_s, {path}).split(u'\n');
    for (const QString& line : lines)
        if (line.startsWith(word))
            return line.section(u':', 1).trimmed();
    return {};
}

QStringList printed_pages(const QString& name)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"report.pdf"_s);
    render_report(built_template(name))->save_pdf(path);
    QStringList pages = pdf_pages(path);
    for (QString& page : pages)
        page = page.simplified();
    return pages;
}

QStringList csv_lines(const QString& name)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"report.csv"_s);
    render_report(built_template(name))->save_csv(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QStringList lines = QString::fromUtf8(file.readAll()).remove(QChar::ByteOrderMark).split(u"\r\n"_s);
    lines.removeLast();
    return lines;
}

QString without_blanks(QString text)
{
    text.removeIf([](QChar character) { return character.isSpace(); });
    return text;
}

void fill_stats(const store_location& store, int rounds, const QString& course)
{
    QStringList statements;
    for (int line = 0; line < 34; ++line)
        statements.append(line_statement(line));
    statements.append(u"update stats set course_text = %1, weather_text = ' TOUTES', partner_text = "
                      u"'TOUS LES PARTENAIRES', from_text = '2023-05-06 08:30:00', to_text = "
                      u"'2024-10-13 13:40:00', handicap_text = ' 14.3', round_count = %2, "
                      u"average_mark = '%3' where rowid = 1"_s.arg(quoted(course))
                          .arg(rounds)
                          .arg(rounds > 1 ? u"0"_s : u" "_s));
    if (rounds > 1)
        statements.append(u"update stats set all_holes = 85.5 where rowid = 1"_s);
    const reader writer(store);
    writer.write(statements);
}

}  // namespace verdane::testing
