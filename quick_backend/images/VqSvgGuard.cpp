#include "quick_backend/images/VqSvgGuard.h"

#include "quick_backend/images/CVqSvgExpansion.h"
#include "quick_backend/images/VqRasterFormat.h"
#include "quick_backend/images/VqRasterReader.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <string_view>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool is_blank(char unit)
{
    return unit == ' ' || unit == '\t' || unit == '\n' || unit == '\r';
}

std::string_view without_mark_and_blanks(const QByteArray& text)
{
    std::string_view view(text.constData(), std::size_t(text.size()));
    if (view.starts_with("\xEF\xBB\xBF"))
        view.remove_prefix(3);
    while (!view.empty() && is_blank(view.front()))
        view.remove_prefix(1);
    return view;
}

bool starts_without_case(std::string_view text, std::string_view lower)
{
    return text.size() >= lower.size()
        && std::equal(lower.begin(), lower.end(), text.begin(),
                      [](char left, char right) { return left == (right | 0x20); });
}

// Words and characters without which a text in ASCII's own code can neither refer to anything nor hide that
// it does.
bool needs_a_closer_look(std::string_view text)
{
    for (; !text.empty(); text.remove_prefix(1)) {
        switch (text.front()) {
        case '&':
        case '\\':
        case '@':
        case '\0':
            return true;
        case '<':
            if (text.starts_with("<!") && !text.starts_with("<!--"))
                return true;
            break;
        case 'e': // encoding
            if (text.starts_with("encoding"))
                return true;
            break;
        case 'h':
            if (text.starts_with("href"))
                return true;
            break;
        case 's':
            if (text.starts_with("src") || text.starts_with("stylesheet"))
                return true;
            break;
        case 'u':
        case 'U':
            if (starts_without_case(text, "url"))
                return true;
            break;
        default:
            break;
        }
    }
    return false;
}

// A picture that can be read: for any other one Qt Svg looks for a file whose name is the address. Its
// spelling is narrower than the rules of addresses, and there is one comma only, so that no part of it can be
// taken for another picture.
bool is_embedded_picture(QStringView address)
{
    const qsizetype comma = address.indexOf(u',');
    const QStringView head = address.first(std::max<qsizetype>(comma, 0));
    if (!head.startsWith("data:image/"_L1) || !head.endsWith(";base64"_L1))
        return false;
    QByteArray code = address.sliced(comma + 1).toLatin1();
    code.removeIf(is_blank);
    const auto content
        = QByteArray::fromBase64Encoding(std::move(code), QByteArray::AbortOnBase64DecodingErrors);
    // Readers go by the content, so the name of the format tells nothing.
    const QByteArray format = VqRasterFormat(*content);
    return content && !format.isEmpty() && VqIsWholeRaster(*content, format)
        && VqCheckRasterSize(*content, format) == 0;
}

// Every url(...) has to be a fragment.
bool style_stays_inside(const QString& style)
{
    static const QRegularExpression leads_out(uR"(\\|@import|url\s*\((?!\s*["']?\s*#))"_s,
                                              QRegularExpression::CaseInsensitiveOption);
    return !style.contains(leads_out);
}

bool attribute_stays_inside(QStringView element, const QXmlStreamAttribute& attribute)
{
    if (attribute.name() == "href"_L1 || attribute.name() == "src"_L1) {
        const QStringView address = attribute.value().trimmed();
        // An image takes even a fragment for the name of a file.
        const bool is_fragment = address.startsWith(u'#') && element != "image"_L1;
        return is_fragment || is_embedded_picture(address);
    }
    // Attributes of other languages are notes of drawing programs.
    return !attribute.prefix().isEmpty() || style_stays_inside(attribute.value().toString());
}

bool document_type_stays_inside(const QXmlStreamReader& reader)
{
    const bool is_public_svg = reader.dtdPublicId().startsWith("-//W3C//DTD SVG "_L1)
        && reader.dtdSystemId().startsWith("http://www.w3.org/"_L1);
    if (!reader.dtdSystemId().isEmpty() && !is_public_svg)
        return false;
    return std::ranges::all_of(reader.entityDeclarations(), [](const QXmlStreamEntityDeclaration& entity) {
        return entity.systemId().isEmpty() && entity.publicId().isEmpty();
    });
}

class Walk
{
public:
    // As Qt Svg reads it: a prefix that nothing declares is no error.
    explicit Walk(const QByteArray& text) : m_reader(text) { m_reader.setNamespaceProcessing(false); }

    /// Every token stays inside, up to the end.
    bool StaysInside()
    {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (!token_stays_inside())
                return false;
        }
        return !m_reader.hasError() && m_expansion.IsBounded();
    }

private:
    bool token_stays_inside()
    {
        switch (m_reader.tokenType()) {
        case QXmlStreamReader::StartElement:
            return enter_element();
        case QXmlStreamReader::EndElement:
            return leave_element();
        case QXmlStreamReader::Characters:
            if (m_style_levels > 0)
                m_style += m_reader.text();
            return true;
        case QXmlStreamReader::DTD:
            return document_type_stays_inside(m_reader);
        case QXmlStreamReader::ProcessingInstruction:
            return m_reader.processingInstructionTarget() != "xml-stylesheet"_L1;
        case QXmlStreamReader::EntityReference:
            return false;
        default:
            return true;
        }
    }

    bool enter_element()
    {
        const QXmlStreamAttributes attributes = m_reader.attributes();
        const QStringView name = m_reader.name();
        if (m_style_levels > 0 || name == "style"_L1)
            ++m_style_levels;
        m_expansion.Enter(name, attributes);
        return std::ranges::all_of(attributes, [name](const QXmlStreamAttribute& attribute) {
            return attribute_stays_inside(name, attribute);
        });
    }

    bool leave_element()
    {
        m_expansion.Leave();
        if (m_style_levels == 0)
            return true;
        --m_style_levels;
        if (m_style_levels > 0)
            return true;
        m_expansion.AddStyle(m_style);
        return style_stays_inside(std::exchange(m_style, QString()));
    }

    QXmlStreamReader m_reader;
    CVqSvgExpansion m_expansion;
    QString m_style;        // of the style element and what is in it, which may come in several pieces
    int m_style_levels = 0; // 1 in a style element, more in what is in it
};

}

bool VqIsSelfContainedSvg(const QByteArray& text)
{
    const std::string_view view = without_mark_and_blanks(text);
    if (!view.starts_with('<'))
        return false;
    return !needs_a_closer_look(view) || Walk(text).StaysInside();
}
