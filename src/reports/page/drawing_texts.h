#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

class QPainter;

namespace verdane {

/// A text of a drawing, in the units of the drawing, with the attributes of the elements around it.
struct drawing_text {
    QString words;
    QPointF base;
    Qt::Alignment anchor = Qt::AlignLeft;
    QStringList families{QStringView(u"DejaVu Sans").toString()};
    double size = 12;
    bool bold = false;
    /// The width that it may take; 0 for any. A wider text gets a smaller font, down to `least_size`, and is
    /// then cut with "…".
    double most_width = 0;
    /// 0 for half of `size`.
    double least_size = 0;
    QColor ink{Qt::black};
};

/// A drawing without its texts, and the texts.
struct separated_drawing {
    QString svg;
    std::vector<drawing_text> texts;
};

/// Separates the texts of a drawing. The renderer of the toolkit paints letters as outlines, which cannot be
/// searched or copied on a page, so a report paints the texts itself. It reads the attributes `x`, `y`,
/// `font-family`, `font-size`, `font-weight`, `text-anchor`, `fill`, `data-width` and `data-least` of a text
/// and the elements around it, and groups that are moved by `translate`. A text in a group that is rotated or
/// scaled, or in a drawing without a `viewBox`, stays in the drawing.
///
/// `svg` is well-formed.
separated_drawing separate_texts(const QString& svg);

/// Paints the texts of a drawing whose `view_box` fills `place`.
void paint_texts(QPainter& painter, const std::vector<drawing_text>& texts, const QRectF& view_box,
                 const QRectF& place);

}  // namespace verdane
