#include "reports/page/drawing_texts.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "reports/page/layout_units.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

/// What an element passes to those inside it.
struct surroundings {
    drawing_text text;
    QPointF origin;
    bool only_moved = true;
};

QStringList families_of(const QString& list)
{
    QStringList families;
    for (const QString& family : list.split(u','))
        families.append(family.trimmed().remove(u'\'').remove(u'"'));
    return families;
}

Qt::Alignment anchor_of(QStringView name)
{
    if (name == u"middle")
        return Qt::AlignHCenter;
    return name == u"end" ? Qt::AlignRight : Qt::AlignLeft;
}

void move(surroundings& state, const QString& transform)
{
    static const QRegularExpression form(
        u"^\\s*translate\\(\\s*([-\\d.eE]+)[\\s,]*([-\\d.eE]+)?\\s*\\)\\s*$"_s);
    const QRegularExpressionMatch match = form.match(transform);
    state.only_moved = state.only_moved && match.hasMatch();
    state.origin += QPointF(match.captured(1).toDouble(), match.captured(2).toDouble());
}

/// The surroundings inside an element with these attributes.
surroundings inside(surroundings state, const QXmlStreamAttributes& attributes)
{
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QString name = attribute.name().toString();
        const QString value = attribute.value().toString();
        if (name == u"font-family")
            state.text.families = families_of(value);
        else if (name == u"font-size")
            state.text.size = value.toDouble();
        else if (name == u"font-weight")
            state.text.bold = value == u"bold";
        else if (name == u"text-anchor")
            state.text.anchor = anchor_of(value);
        else if (name == u"fill")
            state.text.ink = QColor(value);
        else if (name == u"data-width")
            state.text.most_width = value.toDouble();
        else if (name == u"data-least")
            state.text.least_size = value.toDouble();
        else if (name == u"transform")
            move(state, value);
    }
    return state;
}

drawing_text read_text(const surroundings& state, QXmlStreamReader& reader)
{
    drawing_text text = state.text;
    const QXmlStreamAttributes attributes = reader.attributes();
    text.base =
        state.origin + QPointF(attributes.value(u"x"_s).toDouble(), attributes.value(u"y"_s).toDouble());
    text.words = reader.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
    return text;
}

/// Without the hinting of a screen, which changes the widths of the letters.
QFont font_of(const drawing_text& text, double scale)
{
    QFont font;
    font.setFamilies(text.families);
    font.setPixelSize(qMax(1, qRound(text.size * scale)));
    font.setBold(text.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing_without_ligatures);
    return font;
}

/// A text as it is painted, in a font with which it is not too wide.
struct set_text {
    QFont font;
    QString words;
    double width = 0;
};

set_text fitted(const drawing_text& text, double scale_x, double scale_y)
{
    set_text result{font_of(text, scale_y), text.words};
    const auto measure = [&result] { return QFontMetricsF(result.font).horizontalAdvance(result.words); };
    const double available = text.most_width * scale_x;
    result.width = measure();
    if (available <= 0 || result.width <= available)
        return result;
    const double least = text.least_size > 0 ? qMin(1.0, text.least_size / text.size) : 0.5;
    const double smaller = result.font.pixelSize() * qMax(least, available / result.width);
    result.font.setPixelSize(qMax(1, static_cast<int>(smaller)));
    result.words = QFontMetricsF(result.font).elidedText(result.words, Qt::ElideRight, available);
    result.width = measure();
    return result;
}

/// True if letters whose middle is at that height are outside the clip. They must not be painted, because a
/// search in a PDF file would find them although they are invisible.
bool is_clipped_away(const QPainter& painter, double middle)
{
    const QRectF clip = painter.clipBoundingRect();
    return painter.hasClipping() && (middle < clip.top() || middle > clip.bottom());
}

}  // namespace

separated_drawing separate_texts(const QString& svg)
{
    separated_drawing separated;
    QXmlStreamReader reader(svg);
    QXmlStreamWriter rest(&separated.svg);
    std::vector<surroundings> around{{}};
    around.back().only_moved = svg.contains(u"viewBox="_s);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            const surroundings state = inside(around.back(), reader.attributes());
            if (reader.name() == u"text" && state.only_moved) {
                separated.texts.push_back(read_text(state, reader));
                continue;
            }
            around.push_back(state);
        } else if (reader.isEndElement()) {
            around.pop_back();
        }
        rest.writeCurrentToken(reader);
    }
    return separated;
}

void paint_texts(QPainter& painter, const std::vector<drawing_text>& texts, const QRectF& view_box,
                 const QRectF& place)
{
    const double scale_x = place.width() / view_box.width();
    const double scale_y = place.height() / view_box.height();
    for (const drawing_text& text : texts) {
        const set_text letters = fitted(text, scale_x, scale_y);
        QPointF base = place.topLeft() + QPointF((text.base.x() - view_box.x()) * scale_x,
                                                 (text.base.y() - view_box.y()) * scale_y);
        if (text.anchor != Qt::AlignLeft)
            base.rx() -= text.anchor == Qt::AlignHCenter ? letters.width / 2 : letters.width;
        if (is_clipped_away(painter, base.y() - QFontMetricsF(letters.font).xHeight() / 2))
            continue;
        painter.setFont(letters.font);
        painter.setPen(text.ink);
        painter.drawText(base, letters.words);
    }
}

}  // namespace verdane
