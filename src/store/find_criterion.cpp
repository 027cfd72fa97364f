#include "store/find_criterion.h"

#include "base/numbers.h"
#include "base/run_time_failure.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(QStringView criterion)
{
    throw run_time_failure(failure_kind::misuse, QString(u"no criterion: " + criterion));
}

bool is_operator(QChar c)
{
    return c == u'<' || c == u'>' || c == u'=';
}

int order(double left, double right)
{
    return left < right ? -1 : left > right ? 1 : 0;
}

}  // namespace

find_criterion::find_criterion(QStringView criterion)
{
    qsizetype at = 0;
    while (at < criterion.size() && !is_operator(criterion[at]))
        ++at;
    column_ = criterion.first(at).trimmed().toString();
    if (column_.isEmpty() || at == criterion.size())
        refuse(criterion);
    at = read_comparison(criterion, at);
    read_value(criterion.sliced(at).trimmed());
}

qsizetype find_criterion::read_comparison(QStringView criterion, qsizetype at)
{
    const QStringView rest = criterion.sliced(at);
    if (rest.startsWith(u"<>")) {
        comparison_ = comparison::not_equal;
        return at + 2;
    }
    if (rest.startsWith(u"<=") || rest.startsWith(u">=")) {
        comparison_ = rest[0] == u'<' ? comparison::less_or_equal : comparison::greater_or_equal;
        return at + 2;
    }
    comparison_ = rest[0] == u'='   ? comparison::equal
                  : rest[0] == u'<' ? comparison::less
                                    : comparison::greater;
    return at + 1;
}

void find_criterion::read_value(QStringView written)
{
    if (written.startsWith(u'\'')) {
        if (written.size() < 2 || !written.endsWith(u'\''))
            refuse(written);
        text_ = written.sliced(1, written.size() - 2).toString();
        text_.replace(u"''"_s, u"'"_s);
    } else {
        text_ = written.toString();
    }
    number_ = text_.compare(u"true", Qt::CaseInsensitive) == 0 ? 1.0 : leading_number(text_);
}

int find_criterion::order_of(const QVariant& value) const
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return static_cast<const QString*>(value.constData())->compare(text_);
    case QMetaType::Bool:
        // Some engines store a yes as 1, others as -1.
        return order(value.toBool() ? 1.0 : 0.0, number_ != 0.0 ? 1.0 : 0.0);
    default:
        return order(value.toDouble(), number_);
    }
}

bool find_criterion::holds(int order) const
{
    switch (comparison_) {
    case comparison::equal:
        return order == 0;
    case comparison::not_equal:
        return order != 0;
    case comparison::less:
        return order < 0;
    case comparison::less_or_equal:
        return order <= 0;
    case comparison::greater:
        return order > 0;
    case comparison::greater_or_equal:
        return order >= 0;
    }
    return false;
}

bool find_criterion::matches(const QVariant& value) const
{
    return !value.isNull() && holds(order_of(value));
}

}  // namespace verdane
