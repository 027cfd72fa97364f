#include "diaries.h"

#include <QCoreApplication>

#include "DataEnvironment1.h"
#include "full_diary.h"
#include "language.h"
#include "language_value.h"
#include "reader.h"

namespace verdane::bench {

namespace {

void lay_down(const QString& path, int rounds)
{
    testing::lay_down_diary(path, rounds, true);
    testing::reader(path).write(QStringLiteral("update settings set language = %1").arg(english_value));
}

}  // namespace

diaries::diaries() : folder_(QCoreApplication::applicationDirPath() + QStringLiteral("/diaries-XXXXXX"))
{
    lay_down(full(), testing::rounds_of_full_diary);
    lay_down(with_room(), rounds_with_room);
}

QString diaries::full() const
{
    return folder_.filePath(QStringLiteral("Verdane/Verdbase.db"));
}

QString diaries::with_room() const
{
    return folder_.filePath(QStringLiteral("with_room.db"));
}

const diaries& diaries_of_run()
{
    static const diaries both;
    return both;
}

opened_store::opened_store(const QString& path)
{
    is_french = false;
    language_is_settled = true;
    data_environment().connection.Open(path);
}

opened_store::~opened_store()
{
    data_environment().connection.Close();
}

}  // namespace verdane::bench
