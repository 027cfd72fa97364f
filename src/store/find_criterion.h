#pragma once

#include <QString>
#include <QVariant>

namespace verdane {

/// `column op value`, the argument of `Find`. The value may be between single quotes, with quotes inside it
/// doubled. With or without quotes, it is compared as a number with a number, and character by character with
/// a text. Null matches nothing.
class find_criterion {
public:
    /// Fails with `misuse` if the text is no criterion.
    explicit find_criterion(QStringView criterion);

    const QString& column() const { return column_; }
    bool matches(const QVariant& value) const;

private:
    enum class comparison { equal, not_equal, less, less_or_equal, greater, greater_or_equal };

    qsizetype read_comparison(QStringView criterion, qsizetype at);
    void read_value(QStringView written);
    bool holds(int order) const;
    int order_of(const QVariant& value) const;

    QString column_;
    comparison comparison_ = comparison::equal;
    QString text_;
    double number_ = 0.0;
};

}  // namespace verdane
