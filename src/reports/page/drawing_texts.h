#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

class QPainter;

namespace verdane {

/// A text of a drawing, in the drawing's own units, with what the elements around it say about it.
struct drawing_text {
    QString words;
    QPointF base;
    Qt::Alignment anchor = Qt::AlignLeft;
    QStringList families{QStringLiteral("DejaVu Sans")};
    double size = 12;
    bool bold = false;
    /// The width that it has; 0 for any. What is wider is set in smaller letters, down to `least_size`,
    /// and then cut with "…".
    double room = 0;
    /// 0 for half of `size`.
    double least_size = 0;
    QColor ink{Qt::black};
};

/// A drawing with its texts taken out of it.
struct parted_drawing {
    QString svg;
    std::vector<drawing_text> texts;
};

/// The renderer of the toolkit paints letters as outlines, which nobody can search or copy on a page;
/// therefore a report sets the texts of its drawings itself. It reads the attributes `x`, `y`,
/// `font-family`, `font-size`, `font-weight`, `text-anchor`, `fill`, `data-room` and `data-least` of a text
/// and the elements around it, and groups that are moved by `translate`. A text in a group that is turned or
/// scaled, or in a drawing without a `viewBox`, stays in the drawing.
///
/// `svg` is well-formed.
parted_drawing with_texts_apart(const QString& svg);

/// Paints the texts of a drawing whose `view_box` fills `place`.
void paint_texts(QPainter& painter, const std::vector<drawing_text>& texts, const QRectF& view_box,
                 const QRectF& place);

}  // namespace verdane
