#include "reports/template/template_file.h"

#include <QSizeF>

#include "base/run_time_failure.h"

namespace verdane {

using namespace Qt::StringLiterals;

void fail_template(const template_place& place, const QString& message)
{
    throw run_time_failure(failure_kind::report_template,
                           u"%1:%2: %3"_s.arg(place.file).arg(place.line).arg(message));
}

const template_query* template_file::find_query(const QString& name) const
{
    for (const template_query& query : queries)
        if (query.name == name)
            return &query;
    return nullptr;
}

QSizeF template_file::page_size_mm() const
{
    const QSizeF upright = QPageSize(paper).size(QPageSize::Millimeter);
    return landscape ? upright.transposed() : upright;
}

}  // namespace verdane
