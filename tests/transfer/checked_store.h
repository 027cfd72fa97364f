#pragma once

#include <QStringList>
#include <QVariant>

#include "tests/support/full_diary.h"
#include "tests/support/reader.h"
#include "tests/transfer/stored_files.h"

/// What the tests of `verdane-store check` share.
namespace verdane::testing {

/// The rounds of the diary in a `checked_store`.
constexpr int rounds = 2;

/// A diary of two detailed rounds on the engine of the tests.
struct checked_store {
    checked_store() { create_diary(place.location(), rounds, true); }

    QStringList arguments(const QStringList& options = {}) const
    {
        return QStringList{u"check"_s, argument_of(place)} + options;
    }
    QVariantList row(const QString& table) const
    {
        const auto rows =
            store.rows(u"select * from "_s + table + u" where date = '" + key_in_diary(1) + u'\'');
        const QVariantList values(rows.at(0).begin(), rows.at(0).end());
        return values;
    }
    void lose(const QStringList& tables) const
    {
        for (const QString& table : tables)
            store.write(u"delete from "_s + table + u" where date = '" + key_in_diary(1) + u'\'');
    }

    test_store place;
    reader store{place.location()};
};

/// The statement that drops the index of the shots.
QString drop_index();

/// The paths of the files in the folder of the copies.
QStringList kept_copies(const QString& folder);

}  // namespace verdane::testing
