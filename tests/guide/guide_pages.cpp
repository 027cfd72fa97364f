#include "tests/guide/guide_pages.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

template <typename Fits>
std::vector<page_element> elements_if(const guide_page& page, Fits fits)
{
    std::vector<page_element> found;
    std::copy_if(page.elements.begin(), page.elements.end(), std::back_inserter(found), fits);
    return found;
}

void read_elements(QXmlStreamReader& reader, guide_page& page)
{
    std::vector<std::size_t> open;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            open.push_back(page.elements.size());
            page.elements.push_back({reader.name().toString(), reader.attributes(), {}});
        } else if (reader.isEndElement()) {
            page.elements[open.back()].text = page.elements[open.back()].text.simplified();
            open.pop_back();
        } else if (reader.isCharacters()) {
            for (const std::size_t place : open)
                page.elements[place].text += reader.text();
        }
    }
}

}  // namespace

std::vector<page_element> guide_page::with_tag(const QString& tag) const
{
    return elements_if(*this, [&](const page_element& element) { return element.tag == tag; });
}

std::vector<page_element> guide_page::with_class(const QString& name) const
{
    return elements_if(*this, [&](const page_element& element) { return element.has_class(name); });
}

bool guide_page::has_anchor(const QString& id) const
{
    return std::any_of(elements.begin(), elements.end(),
                       [&](const page_element& element) { return element.attribute(u"id"_s) == id; });
}

std::vector<QStringList> guide_page::table(const QString& name) const
{
    std::vector<QStringList> rows;
    bool is_inside = false;
    for (const page_element& element : elements) {
        if (element.tag == u"table")
            is_inside = element.has_class(name);
        else if (is_inside && element.tag == u"tr")
            rows.emplace_back();
        else if (is_inside && (element.tag == u"td" || element.tag == u"th"))
            rows.back() << element.text;
    }
    return rows;
}

QString guide_folder()
{
    return QString::fromUtf8(VERDANE_GUIDE);
}

QStringList page_names(bool french)
{
    return QDir(guide_folder() + (french ? u"/fr"_s : u"/en"_s))
        .entryList({u"*.html"_s}, QDir::Files, QDir::Name);
}

QStringList window_page_names(bool french)
{
    const QDir folder(guide_folder() + (french ? u"/fr/windows"_s : u"/en/windows"_s));
    QStringList names = folder.entryList({u"*.html"_s}, QDir::Files, QDir::Name);
    for (QString& name : names)
        name.prepend(u"windows/");
    return names;
}

QString target_of(const guide_page& page)
{
    for (const page_element& element : page.with_tag(u"meta"_s)) {
        if (element.attribute(u"http-equiv"_s) == u"refresh")
            return element.attribute(u"content"_s).section(u"0; url=../"_s, 1);
    }
    return {};
}

QString text_of_file(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

guide_page read_page(bool french, const QString& name)
{
    guide_page page;
    page.path = guide_folder() + (french ? u"/fr/"_s : u"/en/"_s) + name;
    QXmlStreamReader reader(text_of_file(page.path));
    read_elements(reader, page);
    if (reader.hasError())
        page.fault = u"line %1: %2"_s.arg(reader.lineNumber()).arg(reader.errorString());
    return page;
}

}  // namespace verdane::testing
