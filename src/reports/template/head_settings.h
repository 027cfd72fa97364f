#pragma once

#include <QStringList>

#include <vector>

#include "reports/template/template_file.h"

namespace verdane {

/// One setting of a head, `keyword [name] = value`. The value has the lines that continue it, as they are in
/// the file, so that its lines can be counted. In the section `[words]` the keyword is the name of a word.
struct head_setting {
    QString keyword;
    QString name;
    QString value;
    template_place place;
};

/// A head of a template or layout, split into its settings.
struct head_settings {
    std::vector<head_setting> settings;
    /// Below the line `[words]`; `words_line` is its line, 0 if there is none.
    std::vector<head_setting> words;
    int words_line = 0;
};

/// Splits the lines of a head. A line that starts with a blank continues the setting above it; a line that
/// starts with `#` is a comment. Fails with `report_template` on any other line that is no setting.
head_settings split_head(const QString& file, const QStringList& lines);

}  // namespace verdane
