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

/// Opens a store that has a full diary of that many rounds, fills its report tables by the statistics over
/// all rounds, and draws every page of every report. The store is closed afterwards.
pages_of_reports drawn_reports(const store_location& store, int rounds, bool french);

}  // namespace verdane::testing
