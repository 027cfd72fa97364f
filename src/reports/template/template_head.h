#pragma once

#include <vector>

#include "reports/template/head_settings.h"

namespace verdane {

class template_words;

/// The role of the file that a head belongs to: a whole template, a template with a layout, or the layout.
enum class head_role { whole_template, template_with_layout, layout };

/// Reads the settings of a head into `target`, with the words in the queries. Fails with `report_template` on
/// a setting that is unknown, wrong, or not one of a file of that role.
void read_settings(template_file& target, head_role role, const std::vector<head_setting>& settings,
                   template_words& words);

/// Checks and completes what the heads have set: the margins leave a page, there is a query, and the figures
/// of a CSV file are those of the first query unless the head names another. Fails with `report_template`.
void complete_settings(template_file& target);

}  // namespace verdane
