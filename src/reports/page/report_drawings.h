#pragma once

#include <QObject>
#include <QSvgRenderer>
#include <QTextObjectInterface>

#include <memory>
#include <vector>

#include "reports/page/drawing_texts.h"
#include "reports/template/template_file.h"

namespace verdane {

/// The SVG drawings of a page. They stand in the HTML as pictures of the size that the drawing gives
/// in its `width` and `height` (mm, pt or px) and are painted as strokes, fills and letters, never as
/// dots, so they stay sharp on paper and their texts can be searched.
class report_drawings : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// Gives every `<svg` of a template the line it stands on, for `taken_out` to name.
    static QString marked(const QString& body, int first_line);

    /// The HTML with a picture in the place of each drawing. Fails with `report_template`, at the
    /// drawing's line, on one that is no SVG or has no size.
    QString taken_out(const QString& html, const QString& file);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;

private:
    struct drawing {
        std::unique_ptr<QSvgRenderer> renderer;
        std::vector<drawing_text> texts;
        QSizeF size;
    };

    drawing read(const QString& svg, const template_place& place) const;
    const drawing* drawing_of(const QTextFormat& format) const;

    std::vector<drawing> drawings_;
};

}  // namespace verdane
