#pragma once

#include <QString>

#include <map>
#include <vector>

#include "reports/template/head_settings.h"

namespace verdane {

/// The words of a template: its texts in one language, which its layout takes with `{{words.NAME}}`.
class template_words {
public:
    /// The settings of the section `[words]` of `file`. A word on several lines is joined with blanks; double
    /// quotes around a word keep its blanks. Fails with `report_template` on a word without a name and on two
    /// words of one name.
    template_words(QString file, const std::vector<head_setting>& settings);

    /// `html` with the words in place of their tags, escaped; `<br>` stays a line break. Its first line is at
    /// `place`. Fails with `report_template`, at the tag, on a word that does not exist and where the result
    /// is longer than a template may be.
    QString in_html(const QString& html, const template_place& place);

    /// The same for an SQL statement, where a word is a text in single quotes.
    QString in_sql(const QString& sql, const template_place& place);

    /// Fails with `report_template`, at the word, if one was never placed in the layout of that name.
    void check_all_used(const QString& layout) const;

private:
    struct word {
        QString text;
        template_place place;
        bool is_used = false;
    };

    QString placed(const QString& text, template_place place, QString (*form)(const QString&));
    const QString& take(const QString& name, const template_place& place);

    QString file_;
    std::map<QString, word> words_;
};

}  // namespace verdane
