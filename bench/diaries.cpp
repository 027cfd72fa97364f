#include "bench/diaries.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

#include "base/program.h"
#include "scoring/limits.h"
#include "shell/f_lang.h"
#include "store/DataEnvironment1.h"
#include "store/recovery/diary_copy.h"
#include "tests/support/reader.h"

namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

/// The generated diary has holes with six putts, on which the putt statistics fail.
QString without_sixth_putts()
{
    QStringList cleared;
    for (int h = 1; h <= hole_count; ++h)
        cleared << u"putt_len_%1_6 = 0"_s.arg(h);
    return u"update games2 set " + cleared.join(u", ");
}

void create(const QString& path, int rounds)
{
    testing::create_diary(path, rounds, true);
    testing::reader(path).write(
        {u"update settings set language = %1"_s.arg(english_value), without_sixth_putts()});
}

}  // namespace

diaries::diaries() : folder_(QCoreApplication::applicationDirPath() + u"/diaries-XXXXXX"_s) {}

QString diaries::created(const QString& name, int rounds) const
{
    const QString path = folder_.filePath(name);
    if (!QFile::exists(path))
        create(path, rounds);
    return path;
}

QString diaries::full() const
{
    return created(u"Verdane/Verdbase.db"_s, testing::rounds_of_full_diary);
}

QString diaries::data_home() const
{
    full();
    return folder_.path();
}

QString diaries::half() const
{
    return created(u"half.db"_s, rounds_of_half);
}

QString diaries::with_free_keys() const
{
    return created(u"with_free_keys.db"_s, rounds_with_free_keys);
}

std::optional<store_location> diaries::on_source() const
{
    const store_location source = default_store();
    if (source.where != store_location::place::source)
        return std::nullopt;
    if (!is_on_source_) {
        Connection1 from;
        from.Open(full());
        Connection1 to;
        to.Open(source);
        copy_diary(from, to, [](const counted_table&) {});
        is_on_source_ = true;
    }
    return source;
}

const diaries& diaries_of_run()
{
    static const diaries all;
    return all;
}

opened_store::opened_store(const store_location& store)
{
    set_interface_language(false);
    data_environment().connection.Open(store);
}

opened_store::~opened_store()
{
    data_environment().connection.Close();
}

}  // namespace verdane::bench
