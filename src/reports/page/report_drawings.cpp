#include "reports/page/report_drawings.h"

#include <QPainter>
#include <QRegularExpression>
#include <QTextImageFormat>
#include <QXmlStreamReader>

#include "reports/page/layout_units.h"
#include "reports/template/page_limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

const QString picture_prefix = u"drawing:"_s;

QString attribute_of(const QString& start_tag, const QString& name)
{
    const QRegularExpression form(u"\\s%1=\"([^\"]*)\""_s.arg(name));
    return form.match(start_tag).captured(1);
}

/// Without `use`, which can repeat its element without limit, and without elements that load a file.
bool is_drawn(QStringView element)
{
    static const QStringList elements{
        u"svg"_s,  u"g"_s,      u"defs"_s,    u"title"_s,          u"desc"_s,          u"line"_s,
        u"rect"_s, u"circle"_s, u"ellipse"_s, u"path"_s,           u"polyline"_s,      u"polygon"_s,
        u"text"_s, u"tspan"_s,  u"stop"_s,    u"linearGradient"_s, u"radialGradient"_s};
    return elements.contains(element);
}

/// The message for a drawing that is wrong, or nothing. The renderer itself only writes to the log, and would
/// load the files that a drawing names.
QString drawing_error(const QString& svg)
{
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && !is_drawn(reader.name()))
            return u"a drawing holds no %1"_s.arg(reader.name());
        if (reader.isProcessingInstruction() || reader.isDTD())
            return u"a drawing holds no instructions"_s;
    }
    return reader.hasError() ? u"a drawing is no SVG: %1"_s.arg(reader.errorString()) : QString();
}

/// The message for a text whose size on paper is wrong, or nothing.
QString text_error(const std::vector<drawing_text>& texts, double points_per_unit)
{
    for (const drawing_text& text : texts)
        if (!is_printable_size(text.size * points_per_unit))
            return size_refusal(u"%1 pt"_s.arg(text.size * points_per_unit, 0, 'g', 3));
    return {};
}

}  // namespace

QString report_drawings::marked(const QString& body, int first_line)
{
    QString result = body;
    for (qsizetype at = result.lastIndexOf(u"<svg"_s); at >= 0;
         at = at == 0 ? -1 : result.lastIndexOf(u"<svg"_s, at - 1)) {
        const auto line = first_line + QStringView(result).first(at).count(u'\n');
        result.insert(at + 4, u" data-line=\"%1\""_s.arg(line));
    }
    return result;
}

QString report_drawings::extracted(const QString& html, const QString& file)
{
    static const QRegularExpression form(u"(<svg[^>]*>).*?</svg>"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    QString result;
    qsizetype copied = 0;
    auto matches = form.globalMatch(html);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const int line = attribute_of(match.captured(1), u"data-line"_s).toInt();
        result += QStringView(html).sliced(copied, match.capturedStart() - copied);
        result += u"<img src=\"%1%2\">"_s.arg(picture_prefix).arg(drawings_.size());
        drawings_.push_back(read(match.captured(), {file, line}));
        copied = match.capturedEnd();
    }
    return result + QStringView(html).sliced(copied);
}

report_drawings::drawing report_drawings::read(const QString& svg, const template_place& place) const
{
    const QString start_tag = svg.first(svg.indexOf(u'>') + 1);
    const QSizeF size(length_in_units(attribute_of(start_tag, u"width"_s)),
                      length_in_units(attribute_of(start_tag, u"height"_s)));
    if (size.isEmpty())
        fail_template(place, u"a drawing needs a width and a height in mm, pt or px"_s);
    const QString error = drawing_error(svg);
    if (!error.isEmpty())
        fail_template(place, error);
    separated_drawing separated = separate_texts(svg);
    auto renderer = std::make_unique<QSvgRenderer>(separated.svg.toUtf8());
    if (!renderer->isValid() || !(renderer->viewBoxF().height() > 0))
        fail_template(place, u"a drawing is no SVG"_s);
    const QString text_words =
        text_error(separated.texts, size.height() / renderer->viewBoxF().height() / units_per_pt);
    if (!text_words.isEmpty())
        fail_template(place, text_words);
    return {std::move(renderer), std::move(separated.texts), size};
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
