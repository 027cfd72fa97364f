#include "base/csv.h"

#include <QList>
#include <QStringDecoder>

#include <algorithm>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool is_utf8(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(bytes);
    return !decoder.hasError();
}

/// A byte of a line end is never part of another character.
int line_of_wrong_bytes(const QByteArray& bytes)
{
    int line = 0;
    for (const QByteArray& each : bytes.split('\n')) {
        ++line;
        if (!is_utf8(each))
            break;
    }
    return line;
}

class csv_reader {
public:
    explicit csv_reader(QStringView text) : text_(text) {}

    csv_content read()
    {
        while (content_.fault == csv_fault::none && place_ < text_.size()) {
            content_.records.push_back({line_, {}});
            read_record(content_.records.back());
        }
        if (content_.fault != csv_fault::none)
            content_.records.pop_back();
        return content_;
    }

private:
    void read_record(csv_record& record)
    {
        int line_of_value = line_;
        do {
            line_of_value = line_;
            record.values.push_back(at(place_) == u'"' ? quoted_value() : plain_value());
        } while (content_.fault == csv_fault::none && take(u","));
        // A quote that is not closed ends at the first one of another line.
        if (content_.fault == csv_fault::none && !take_line_end() && place_ < text_.size())
            set_fault(line_ > line_of_value ? csv_fault::open_quote : csv_fault::text_after_quote,
                      line_of_value);
    }

    csv_value plain_value()
    {
        const qsizetype start = place_;
        while (place_ < text_.size() && at(place_) != u',' && !at_line_end()) {
            if (at(place_) == u'"') {
                set_fault(csv_fault::quote_in_value, line_);
                break;
            }
            ++place_;
        }
        return {text_.sliced(start, place_ - start).toString(), false};
    }

    csv_value quoted_value()
    {
        const int first_line = line_;
        csv_value value{u""_s, true};
        do {
            const qsizetype start = ++place_;
            const qsizetype end = text_.indexOf(u'"', start);
            if (end < 0) {
                set_fault(csv_fault::open_quote, first_line);
                return value;
            }
            const QStringView part = text_.sliced(start, end - start);
            line_ += static_cast<int>(part.count(u'\n'));
            value.text += part;
            place_ = end + 1;
            // The second quote of a pair begins the next part.
            if (at(place_) == u'"')
                value.text += u'"';
        } while (at(place_) == u'"');
        return value;
    }

    QChar at(qsizetype place) const { return place < text_.size() ? text_[place] : QChar(); }
    bool at_line_end() const
    {
        return at(place_) == u'\n' || (at(place_) == u'\r' && at(place_ + 1) == u'\n');
    }

    bool take(QStringView expected)
    {
        if (!text_.sliced(std::min(place_, text_.size())).startsWith(expected))
            return false;
        place_ += expected.size();
        return true;
    }

    bool take_line_end()
    {
        if (!take(u"\n") && !take(u"\r\n"))
            return false;
        ++line_;
        return true;
    }

    void set_fault(csv_fault fault, int line)
    {
        content_.fault = fault;
        content_.line = line;
    }

    QStringView text_;
    qsizetype place_ = 0;
    int line_ = 1;
    csv_content content_;
};

}  // namespace

csv_content read_csv(const QByteArray& bytes)
{
    if (!is_utf8(bytes))
        return {{}, csv_fault::encoding, line_of_wrong_bytes(bytes)};
    const QString text = QString::fromUtf8(bytes);
    const QStringView content(text);
    return csv_reader(text.startsWith(QChar::ByteOrderMark) ? content.sliced(1) : content).read();
}

QString csv_quoted(QStringView text)
{
    return u'"' + text.toString().replace(u'"', u"\"\""_s) + u'"';
}

}  // namespace verdane
