#pragma once

#include <QString>
#include <QVariant>

namespace verdane {

/// `column op value`, as `Find` takes it. The value stands between single quotes (two inside are one)
/// or without; either way it is compared as a number with a number, and as a text, character by
/// character, with a text. Null matches nothing.
class find_criterion {
public:
    /// Fails with `misuse` when the text is no criterion.
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
