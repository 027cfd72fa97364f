#include "tests/scoring/shot_tables.h"

#include <QStringList>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

int16 number(const QString& text)
{
    return text.toShort();
}

int16 kind_of(QChar letter)
{
    return QStringView(u"-LAP").indexOf(letter);
}

void mark(hole_shot& row, const QString& word)
{
    if (word.startsWith(u"fair="))
        row.fairval = number(word.mid(5));
    if (word.startsWith(u"pen="))
        row.penval = number(word.mid(4));
    row.missed = row.missed || word == u"missed";
    row.ts = row.ts || word == u"sand";
    row.dz = row.dz || word == u"zero";
    row.cal = row.cal || word == u"cal";
}

hole_shot shot_of(const QString& line)
{
    const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
    hole_shot row;
    row.shot_type_value = kind_of(words[0].front());
    row.stickval = number(words[0].mid(1));
    row.fairval = 1;
    if (words[1] != u"-")
        row.after = number(words[1]);
    if (words[2] != u"-")
        row.unit = words[2];
    for (const QString& word : words.mid(3))
        mark(row, word);
    return row;
}

QString shown(const std::optional<int16>& figure)
{
    return figure ? QString::number(plain(*figure)) : u"-"_s;
}

}  // namespace

shot_list shots_of(const QString& lines)
{
    shot_list rows;
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts))
        rows.push_back(shot_of(line));
    return rows;
}

QString lines_of(const shot_list& rows)
{
    QStringList lines;
    for (const hole_shot& row : rows)
        lines << u"%1: %2>%3 %4%5"_s.arg(shown(row.shot), shown(row.before), shown(row.after),
                                         row.unit.isEmpty() ? u"-"_s : row.unit,
                                         row.cal ? u" cal"_s : QString());
    return lines.join(u'\n');
}

}  // namespace verdane::testing
