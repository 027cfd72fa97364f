#include "tests/guided_day/stored_rows.h"

#include <QFile>
#include <QVariant>

#include "store/schema.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

QString line_of(const QString& table, const std::vector<QVariant>& row)
{
    QStringList values;
    for (const QVariant& value : row)
        values << value.toString();
    return table + u": "_s + values.join(u'|') + u'\n';
}

QStringList sorted_lines(const testing::reader& store)
{
    QStringList lines;
    for (const table& each : schema()) {
        for (const auto& row : store.rows(u"select * from "_s + each.name))
            lines << line_of(each.name, row);
    }
    lines.sort();
    return lines;
}

}  // namespace

void save_rows(album& pictures, testing::hand& user, const testing::reader& store, const QString& file)
{
    QFile text(pictures.path_for(user, file));
    const QByteArray lines = sorted_lines(store).join(QString()).toUtf8();
    user.check(text.open(QIODevice::WriteOnly) && text.write(lines) == lines.size(),
               file + u" cannot be written");
}

}  // namespace verdane::guided_day
