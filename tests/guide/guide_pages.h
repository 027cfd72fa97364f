#pragma once

#include <QString>
#include <QStringList>
#include <QXmlStreamAttributes>

#include <optional>
#include <vector>

/// The files of the guide, read from the build, which adds the pages that F1 opens.
namespace verdane::testing {

using namespace Qt::StringLiterals;

struct page_element {
    QString tag;
    QXmlStreamAttributes attributes;
    /// The text of the element and of those inside it, with single blanks.
    QString text;

    QString attribute(const QString& name) const { return attributes.value(name).toString(); }
    bool has_class(const QString& name) const { return attribute(u"class"_s) == name; }
};

/// A page of one language. The elements are in the order in which they begin.
struct guide_page {
    QString path;
    std::vector<page_element> elements;
    /// Why the page is not well-formed; empty if it is.
    QString fault;

    std::vector<page_element> with_tag(const QString& tag) const;
    std::vector<page_element> with_class(const QString& name) const;
    bool has_anchor(const QString& id) const;
    /// The cells of the rows of a table, by the class of the table. The head is the first row.
    std::vector<QStringList> table(const QString& name) const;
};

QString guide_folder();

/// The names of the pages of a language ("round.html"), sorted.
QStringList page_names(bool french);

/// The names of the pages that F1 opens ("windows/f_games.html"), sorted.
QStringList window_page_names(bool french);

/// A page by its name in the folder of the language. Fails the test if the file cannot be read.
guide_page read_page(bool french, const QString& name);

/// The target of the redirection of a page that F1 opens, for example "round.html#f_get_date".
QString target_of(const guide_page& page);

/// The text of a file, as it is stored.
QString text_of_file(const QString& path);

}  // namespace verdane::testing
