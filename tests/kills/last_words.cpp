#include "tests/kills/last_words.h"

#include <cstdio>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

void say(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

void hear_left(last_words& words)
{
    if (words.typing != 0)
        words.typed[words.typing] = words.typing_figures;
    if (words.telling != 0)
        words.told[words.telling] = words.telling_shots;
    words.typing = 0;
    words.telling = 0;
}

void hear(last_words& words, const QStringList& parts)
{
    const QString what = parts.value(0);
    if (what == u"typed") {
        words.typing = parts.value(1).toInt();
        words.typing_figures = parts.value(2);
    } else if (what == u"telling") {
        words.telling = parts.value(1).toInt();
        words.telling_shots = hole_of(parts.value(2));
        words.shots_told = 0;
    } else if (what == u"told") {
        words.shots_told = parts.value(2).toInt();
    } else if (what == u"left") {
        hear_left(words);
    }
}

}  // namespace

void say_typed(int hole, const QString& figures)
{
    say(u"typed %1 %2"_s.arg(hole).arg(figures));
}

void say_telling(int hole, const told_hole& shots)
{
    say(u"telling %1 %2"_s.arg(hole).arg(word_of(shots)));
}

void say_told(int hole, int shot)
{
    say(u"told %1 %2"_s.arg(hole).arg(shot));
}

void say_left(int hole)
{
    say(u"left %1"_s.arg(hole));
}

bool is_under_way(const QByteArray& said)
{
    return said.contains("typed") || said.contains("telling");
}

last_words understood(const QByteArray& said)
{
    last_words words;
    // A line that the kill cut short says nothing.
    const QByteArray whole_lines = said.left(said.lastIndexOf('\n') + 1);
    for (const QByteArray& line : whole_lines.split('\n'))
        hear(words, QString::fromLatin1(line).split(u' '));
    return words;
}

}  // namespace verdane::testing
