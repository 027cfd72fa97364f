#include "store/select_statement.h"

#include <algorithm>
#include <array>
#include <vector>

#include "store/schema.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

struct token {
    QString text;  ///< in small letters; a quoted text is only its opening quote
    QStringView written;
    qsizetype at = 0;
    int depth = 0;  ///< how many parentheses are open around it
};

bool is_word(QChar c)
{
    return c.isLetterOrNumber() || c == u'_' || c == u'.';
}

bool is_quote(QChar c)
{
    return c == u'\'' || c == u'"' || c == u'`';
}

qsizetype word_end(QStringView text, qsizetype from)
{
    while (from < text.size() && is_word(text[from]))
        ++from;
    return from;
}

/// The position after the closing quote. Two adjacent quotes are one quote of the text.
qsizetype quoted_end(QStringView text, qsizetype from)
{
    const QChar quote = text[from++];
    while (from < text.size()) {
        if (text[from++] != quote)
            continue;
        if (from >= text.size() || text[from] != quote)
            return from;
        ++from;
    }
    return from;
}

qsizetype token_end(QStringView text, qsizetype from)
{
    if (is_word(text[from]))
        return word_end(text, from);
    return is_quote(text[from]) ? quoted_end(text, from) : from + 1;
}

std::vector<token> tokens_of(QStringView statement)
{
    std::vector<token> tokens;
    int depth = 0;
    for (qsizetype at = 0; at < statement.size();) {
        if (statement[at].isSpace()) {
            ++at;
            continue;
        }
        const qsizetype end = token_end(statement, at);
        const QStringView written = statement.sliced(at, end - at);
        depth -= written == u")" ? 1 : 0;
        tokens.push_back(
            {is_quote(written[0]) ? QString(written[0]) : written.toString().toLower(), written, at, depth});
        depth += written == u"(" ? 1 : 0;
        at = end;
    }
    return tokens;
}

template <std::size_t Count>
bool is_one_of(const QString& word, const std::array<QStringView, Count>& words)
{
    return std::find(words.begin(), words.end(), QStringView(word)) != words.end();
}

using iterator = std::vector<token>::const_iterator;

/// Plain column names and `*`, nothing computed, nothing renamed.
bool plain_columns(iterator from, iterator to)
{
    bool name_expected = true;
    for (; from != to; ++from) {
        const bool comma = from->text == u",";
        if (comma == name_expected)
            return false;
        if (!comma && from->text != u"*" && !is_word(from->text[0]))
            return false;
        name_expected = comma;
    }
    return !name_expected;
}

bool plain_rest(iterator from, iterator to)
{
    static constexpr std::array<QStringView, 4> starts{u"where", u"order", u"limit", u";"};
    static constexpr std::array<QStringView, 6> combined{u"group",     u"having", u"union",
                                                         u"intersect", u"except", u"join"};
    if (from != to && !is_one_of(from->text, starts))
        return false;
    return std::none_of(from, to, [](const token& t) { return t.depth == 0 && is_one_of(t.text, combined); });
}

QString bare_name(QStringView written)
{
    return (is_quote(written[0]) && written.size() > 2 ? written.sliced(1, written.size() - 2) : written)
        .toString();
}

}  // namespace

select_statement read_select(QStringView statement)
{
    const std::vector<token> tokens = tokens_of(statement);
    if (tokens.size() < 4 || tokens[0].text != u"select" || tokens[1].text == u"distinct")
        return {};
    const auto from = std::find_if(tokens.begin(), tokens.end(),
                                   [](const token& t) { return t.depth == 0 && t.text == u"from"; });
    if (from == tokens.end() || from + 1 == tokens.end())
        return {};
    const auto table = from + 1;
    const bool is_name = is_word(table->text[0]) || is_quote(table->text[0]);
    if (!is_name || !plain_columns(tokens.begin() + 1, from) || !plain_rest(table + 1, tokens.end()))
        return {};
    const bool all_columns = from == tokens.begin() + 2 && tokens[1].text == u"*";
    return {true, bare_name(table->written), tokens[1].at, from->at, all_columns};
}

QString with_row_number(const QString& statement, const select_statement& shape, const QString& identity)
{
    return statement.first(shape.columns_at) + identity + u", " + statement.sliced(shape.columns_at);
}

QString with_qualified_columns(const QString& statement, const select_statement& shape)
{
    QString columns = statement.sliced(shape.columns_at, shape.columns_end - shape.columns_at);
    columns.replace(u"*"_s, in_back_quotes(shape.table) + u".*");
    return statement.first(shape.columns_at) + columns + statement.sliced(shape.columns_end);
}

QString with_columns(const QString& statement, const select_statement& shape, const QString& columns)
{
    return statement.first(shape.columns_at) + columns + u' ' + statement.sliced(shape.columns_end);
}

}  // namespace verdane
