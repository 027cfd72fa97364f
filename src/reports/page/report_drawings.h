#pragma once

#include <QObject>
#include <QSvgRenderer>
#include <QTextObjectInterface>

#include <memory>
#include <vector>

#include "reports/page/drawing_texts.h"
#include "reports/template/template_file.h"

namespace verdane {

/// The SVG drawings of a page. In the HTML each is a picture of the size that the drawing gives in its
/// `width` and `height` (mm, pt or px). They are painted as strokes, fills and letters, never as dots, so
/// they are sharp on paper and their texts can be searched.
class report_drawings : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// Adds to every `<svg` of a template the number of its line, which `extracted` needs for its failures.
    static QString marked(const QString& body, int first_line);

    /// Stores the drawings of `html` and returns it with a picture in the place of each. Fails with
    /// `report_template`, at the drawing's line, on one that is no SVG or has no size.
    QString extracted(const QString& html, const QString& file);

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
