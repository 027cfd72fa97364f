#include "reports/report_drawings.h"

#include <QPainter>
#include <QRegularExpression>
#include <QTextImageFormat>
#include <QXmlStreamReader>

#include "reports/layout_units.h"
#include "reports/page_limits.h"

namespace verdane {

namespace {

const QString picture_prefix = QStringLiteral("drawing:");

QString attribute_of(const QString& start_tag, const QString& name)
{
    const QRegularExpression form(QStringLiteral("\\s%1=\"([^\"]*)\"").arg(name));
    return form.match(start_tag).captured(1);
}

/// Without `use`, which repeats its element as often as somebody likes, and without whatever loads a file.
bool is_drawn(QStringView element)
{
    static const QStringList elements{QStringLiteral("svg"),           QStringLiteral("g"),
                                      QStringLiteral("defs"),          QStringLiteral("title"),
                                      QStringLiteral("desc"),          QStringLiteral("line"),
                                      QStringLiteral("rect"),          QStringLiteral("circle"),
                                      QStringLiteral("ellipse"),       QStringLiteral("path"),
                                      QStringLiteral("polyline"),      QStringLiteral("polygon"),
                                      QStringLiteral("text"),          QStringLiteral("tspan"),
                                      QStringLiteral("stop"),          QStringLiteral("linearGradient"),
                                      QStringLiteral("radialGradient")};
    return elements.contains(element);
}

/// What is wrong with a drawing in words, or nothing. The renderer itself only writes to the log, and would
/// load the files that a drawing names.
QString drawing_error(const QString& svg)
{
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && !is_drawn(reader.name()))
            return QStringLiteral("a drawing holds no %1").arg(reader.name());
        if (reader.isProcessingInstruction() || reader.isDTD())
            return QStringLiteral("a drawing holds no instructions");
    }
    return reader.hasError() ? QStringLiteral("a drawing is no SVG: %1").arg(reader.errorString())
                             : QString();
}

/// What is wrong with the sizes of the texts on paper, in words, or nothing.
QString text_error(const std::vector<drawing_text>& texts, double points_per_unit)
{
    for (const drawing_text& text : texts)
        if (!is_printable_size(text.size * points_per_unit))
            return unprintable_size(QStringLiteral("%1 pt").arg(text.size * points_per_unit, 0, 'g', 3));
    return {};
}

}  // namespace

QString report_drawings::marked(const QString& body, int first_line)
{
    QString result = body;
    for (qsizetype at = result.lastIndexOf(QStringLiteral("<svg")); at >= 0;
         at = at == 0 ? -1 : result.lastIndexOf(QStringLiteral("<svg"), at - 1)) {
        const auto line = first_line + QStringView(result).first(at).count(u'\n');
        result.insert(at + 4, QStringLiteral(" data-line=\"%1\"").arg(line));
    }
    return result;
}

QString report_drawings::taken_out(const QString& html, const QString& file)
{
    static const QRegularExpression form(QStringLiteral("(<svg[^>]*>).*?</svg>"),
                                         QRegularExpression::DotMatchesEverythingOption);
    QString result;
    qsizetype copied = 0;
    auto matches = form.globalMatch(html);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const int line = attribute_of(match.captured(1), QStringLiteral("data-line")).toInt();
        result += QStringView(html).sliced(copied, match.capturedStart() - copied);
        result += QStringLiteral("<img src=\"%1%2\">").arg(picture_prefix).arg(drawings_.size());
        drawings_.push_back(read(match.captured(), {file, line}));
        copied = match.capturedEnd();
    }
    return result + QStringView(html).sliced(copied);
}

report_drawings::drawing report_drawings::read(const QString& svg, const template_place& place) const
{
    const QString start_tag = svg.first(svg.indexOf(u'>') + 1);
    const QSizeF size(length_in_units(attribute_of(start_tag, QStringLiteral("width"))),
                      length_in_units(attribute_of(start_tag, QStringLiteral("height"))));
    if (size.isEmpty())
        fail_template(place, QStringLiteral("a drawing needs a width and a height in mm, pt or px"));
    const QString error = drawing_error(svg);
    if (!error.isEmpty())
        fail_template(place, error);
    parted_drawing parted = with_texts_apart(svg);
    auto renderer = std::make_unique<QSvgRenderer>(parted.svg.toUtf8());
    if (!renderer->isValid() || !(renderer->viewBoxF().height() > 0))
        fail_template(place, QStringLiteral("a drawing is no SVG"));
    const QString text_words =
        text_error(parted.texts, size.height() / renderer->viewBoxF().height() / units_per_pt);
    if (!text_words.isEmpty())
        fail_template(place, text_words);
    return {std::move(renderer), std::move(parted.texts), size};
}

const report_drawings::drawing* report_drawings::drawing_of(const QTextFormat& format) const
{
    const QString name = format.toImageFormat().name();
    bool is_number = false;
    const auto number =
        QStringView(name).sliced(qMin(name.size(), picture_prefix.size())).toULong(&is_number);
    if (!name.startsWith(picture_prefix) || !is_number || number >= drawings_.size())
        return nullptr;
    return &drawings_[number];
}

QSizeF report_drawings::intrinsicSize(QTextDocument*, int, const QTextFormat& format)
{
    const drawing* found = drawing_of(format);
    return found == nullptr ? QSizeF() : found->size;
}

void report_drawings::drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int,
                                 const QTextFormat& format)
{
    const drawing* found = drawing_of(format);
    if (found == nullptr)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    found->renderer->render(painter, place);
    paint_texts(*painter, found->texts, found->renderer->viewBoxF(), place);
    painter->restore();
}

}  // namespace verdane
