#pragma once

#include <QFile>

#include <memory>

#include "store/Connection1.h"
#include "store/Recordset.h"
#include "tests/support/reader.h"
#include "tests/support/test_store.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

inline const QStringList three_names{u"a"_s, u"b"_s, u"c"_s};
inline const QString all_partners = u"select * from partners"_s;

/// A new store with an open connection, and a reader for its committed rows. One for
/// each test slot.
class store_fixture {
public:
    store_fixture() { connection.Open(location()); }

    const store_location& location() const { return place_.location(); }
    /// The file of a store of the embedded engine.
    QString path() const { return place_.path(); }
    reader outside() const { return reader(location()); }

    /// A closed recordset with that statement.
    std::unique_ptr<Recordset> recordset(const QString& source, lock_type lock = lock_type::optimistic)
    {
        recordset_settings settings;
        settings.name = u"rstest"_s;
        settings.source = source;
        settings.lock = lock;
        return std::make_unique<Recordset>(connection, settings);
    }

    /// An open recordset with that statement.
    std::unique_ptr<Recordset> opened(const QString& source, lock_type lock = lock_type::optimistic)
    {
        auto made = recordset(source, lock);
        made->Open();
        return made;
    }

    /// Partners of these names, with codes from 1.
    void add_partners(const QStringList& names)
    {
        int code = 0;
        for (const QString& name : names)
            connection.Execute(
                u"insert into partners (NAME, code) values (%1, %2)"_s.arg(quoted(name)).arg(++code));
    }

private:
    test_store place_;

public:
    // Declared after the place, so that it is closed before the place is removed.
    Connection1 connection;
};

/// The names in the rows of a recordset, which is at `eof()` afterwards.
inline QString names_of(Recordset& recordset)
{
    QStringList names;
    if (!recordset.empty())
        recordset.MoveFirst();
    while (!recordset.eof()) {
        names += recordset.Fields(u"NAME").text_or_empty();
        recordset.MoveNext();
    }
    return names.join(u' ');
}

/// The committed names in the order in which they were added.
inline QString stored_names(const store_fixture& store)
{
    QStringList names;
    for (const auto& row : store.outside().rows(u"select NAME from partners order by rowid"_s))
        names += row[0].toString();
    return names.join(u' ');
}

/// Every row of every table as text: two equal results mean that nothing was committed in between.
inline QString whole_content(const reader& outside)
{
    QString content;
    const QString tables = u"select name from sqlite_master where type='table' order by name"_s;
    for (const auto& table : outside.rows(tables)) {
        content += table[0].toString() + u'\n';
        for (const auto& row :
             outside.rows(u"select rowid, * from `%1` order by rowid"_s.arg(table[0].toString()))) {
            for (const QVariant& value : row)
                content += (value.isNull() ? u"NULL"_s : value.toString()) + u'|';
            content += u'\n';
        }
    }
    return content;
}

inline QByteArray bytes_of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace verdane::testing
