#pragma once

#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

/// Helpers for the tests of reports.
#include "store/store_location.h"

namespace verdane::testing {

/// Writes a template with that head and body and returns its path.
QString template_file_in(const QString& folder, const QString& name, const QString& head,
                         const QString& body);

/// The details of the failure of a template; empty if it makes a report.
QString failure_of_template(const QString& path);

/// The path of one of the program's templates in the build.
QString built_template(const QString& name);

/// The text of a PDF file, one entry for each page.
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

/// The output of one of the program's templates: the text of each page of its PDF file, with single blanks,
/// and the lines of its CSV file.
QStringList printed_pages(const QString& name);
QStringList csv_lines(const QString& name);

/// A text without any blank. Texts that are close together on a page have none between them in a PDF file.
QString without_blanks(QString text);

/// Fills every line of `stats`: hole h of line r is `r + h`, of line 9 `(h - 9) / 10`, of line 20 0. The
/// totals are sums. The texts of the selection are those of `rounds` rounds.
void fill_stats(const store_location& store, int rounds, const QString& course);

}  // namespace verdane::testing
