#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <map>

#include "store/store_location.h"

/// The pages of all reports of a diary.
namespace verdane::testing {

const QStringList& names_of_reports();

/// By "REPORT NUMBER", the number from 1.
using pages_of_reports = std::map<QString, QImage>;

/// The keys of the first and the last round of a report.
struct round_range {
    QString from;
    QString to;
};

/// Opens a store, fills its report tables by the statistics over the rounds of a range, and draws every page
/// of every report. The store is closed afterwards.
pages_of_reports drawn_reports(const store_location& store, const round_range& range, bool french);

/// The same for a store that has a full diary (`create_diary`) of that many rounds.
pages_of_reports drawn_reports(const store_location& store, int rounds, bool french);

}  // namespace verdane::testing
