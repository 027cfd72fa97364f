#include "tests/support/scorecards.h"

#include <QFile>
#include <QStringList>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int holes = 18;
constexpr int first_figure = 4;

std::array<int, holes> figures(const QStringList& cells, int from)
{
    std::array<int, holes> values{};
    for (int hole = 0; hole < holes; ++hole)
        values[static_cast<std::size_t>(hole)] = cells.at(from + hole).toInt();
    return values;
}

scorecard read_line(const QString& line)
{
    const QStringList cells = line.split(u',');
    return {cells.at(0),
            cells.at(1),
            cells.at(2),
            cells.at(3),
            figures(cells, first_figure),
            figures(cells, first_figure + holes),
            figures(cells, first_figure + 2 * holes)};
}

std::vector<scorecard> read_file()
{
    QFile file(QString::fromUtf8(VERDANE_TEST_DATA "/courses.csv"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("the published scorecards cannot be read: %s", qUtf8Printable(file.fileName()));
    std::vector<scorecard> cards;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines.sliced(1))
        cards.push_back(read_line(line.trimmed()));
    return cards;
}

}  // namespace

const std::vector<scorecard>& published_scorecards()
{
    static const std::vector<scorecard> cards = read_file();
    return cards;
}

const scorecard& published_scorecard(const QString& name, const QString& tee)
{
    for (const scorecard& card : published_scorecards()) {
        if (card.name == name && card.tee == tee)
            return card;
    }
    qFatal("no scorecard of %s from %s", qUtf8Printable(name), qUtf8Printable(tee));
}

int tee_code(const QString& tee)
{
    static const QStringList tees{u"White"_s,  u"Blue"_s,   u"Red"_s,   u"Gold"_s,
                                  u"Bronze"_s, u"Yellow"_s, u"Green"_s, u"Black"_s};
    return static_cast<int>(tees.indexOf(tee));
}

}  // namespace verdane::testing
