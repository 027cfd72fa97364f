#pragma once

#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

/// What the tests of reports share.
namespace verdane::testing {

/// Writes a template of that head and body and gives its path.
QString template_file_in(const QString& folder, const QString& name, const QString& head,
                         const QString& body);

/// The details of the failure that a template ends with; empty when it makes a report.
QString complaint_about(const QString& path);

/// The folder of the program's own templates as it was built.
QString built_template(const QString& name);

/// A PDF file's text as it stands on its pages, one entry a page.
QStringList pdf_pages(const QString& path);

/// A word on a page of a PDF file, with its place and the page's size in millimetres; pages count from 0.
struct printed_word {
    QString text;
    QRectF place;
    QSizeF page;
    int page_number = 0;
};
std::vector<printed_word> pdf_words(const QString& path);

/// The line that `pdfinfo` has for a word ("Page size").
QString pdf_fact(const QString& path, const QString& word);

/// A report of the program's own templates as it leaves the program: the text of each page of its PDF
/// file, with single blanks, and the lines of its CSV file.
QStringList printed_pages(const QString& name);
QStringList csv_lines(const QString& name);

/// A text without any blank: what stands close together on a page comes out of a PDF file without one.
QString without_blanks(QString text);

/// Gives every line of `stats` figures: hole h of line r holds `r + h`, line 9 holds a tenth of it
/// and line 20 nothing; the totals are sums. The texts of the selection say `rounds` rounds.
void fill_stats(const QString& store, int rounds, const QString& course);

}  // namespace verdane::testing
