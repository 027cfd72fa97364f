#include "store/recovery/copy_days.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString start_of_name(const QString& store)
{
    return QFileInfo(store).completeBaseName() + u'-';
}

bool is_in_month_of(QDate day, QDate other)
{
    return day.year() == other.year() && day.month() == other.month();
}

}  // namespace

QString folder_of_copies(const QString& store)
{
    return QFileInfo(store).absolutePath() + u"/copies"_s;
}

QString path_of_copy(const QString& store, QDate day)
{
    return folder_of_copies(store) + u'/' + start_of_name(store) + day.toString(Qt::ISODate) + u".db"_s;
}

std::vector<QDate> days_of_copies(const QString& store)
{
    const QRegularExpression name(u'^' + QRegularExpression::escape(start_of_name(store)) +
                                  u"(\\d{4}-\\d{2}-\\d{2})\\.db$");
    std::vector<QDate> days;
    for (const QFileInfo& file : QDir(folder_of_copies(store)).entryInfoList(QDir::Files)) {
        const QDate day = QDate::fromString(name.match(file.fileName()).captured(1), Qt::ISODate);
        if (day.isValid() && file.size() > 0)
            days.push_back(day);
    }
    std::sort(days.begin(), days.end());
    return days;
}

std::vector<QDate> days_to_remove(std::vector<QDate> days, QDate today)
{
    std::sort(days.begin(), days.end());
    const auto newest = days.end() - std::min<std::ptrdiff_t>(newest_copies_kept, std::ssize(days));
    std::vector<QDate> removed;
    for (auto day = days.begin(); day != newest && day->daysTo(today) >= days_with_every_copy; ++day) {
        if (is_in_month_of(*day, *(day + 1)))
            removed.push_back(*day);
    }
    return removed;
}

}  // namespace verdane
