#include "quick_backend/images/CVqSvgExpansion.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

struct TextRow
{
    const char* name;
    QByteArray content;
};

void PrintTo(const TextRow& row, std::ostream* out)
{
    *out << row.name;
}

const auto g_name_of = [](const auto& row) { return std::string(row.param.name); };

bool is_bounded(const QByteArray& content)
{
    CVqSvgExpansion expansion;
    QXmlStreamReader reader("<svg>" + content + "</svg>");
    QString name;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            name = reader.name().toString();
            expansion.Enter(name, reader.attributes());
        } else if (reader.isEndElement()) {
            expansion.Leave();
        } else if (reader.isCharacters() && name == QLatin1String("style")) {
            expansion.AddStyle(reader.text().toString());
        }
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    return expansion.IsBounded();
}

QByteArray repeated(const QByteArray& text, int times)
{
    return text.repeated(times);
}

// Ten of `reference` in each of `levels` elements, of which each refers to the next one. "%" in both stands
// for a number.
QByteArray tenfold(const QByteArray& element, const QByteArray& reference, int levels)
{
    QByteArray text;
    for (int level = 0; level < levels; ++level) {
        const QByteArray number = QByteArray::number(level);
        text += '<' + element + " id=\"a" + number + "\">"
            + repeated(QByteArray(reference).replace('%', QByteArray::number(level + 1)), 10) + "</" + element
            + '>';
    }
    return text + '<' + element + " id=\"a" + QByteArray::number(levels) + "\"><rect/></" + element + '>';
}

QByteArray chain(int length)
{
    QByteArray text = "<g id=\"a0\"/>";
    for (int at = 1; at <= length; ++at)
        text += "<g id=\"a" + QByteArray::number(at) + "\"><use href=\"#a" + QByteArray::number(at - 1)
            + "\"/></g>";
    return text;
}

// Classes that refer to patterns, whose content has the next class.
QByteArray tenfold_by_classes(int levels)
{
    QByteArray style;
    for (int level = 0; level <= levels; ++level)
        style += ".c" + QByteArray::number(level) + " { fill: url(#a" + QByteArray::number(level) + ") } ";
    return "<style>" + style + "</style>" + tenfold("pattern", "<rect class=\"c%\"/>", levels);
}

QByteArray path_with_markers(int points)
{
    return "<marker id=\"m\">" + repeated("<rect/>", 100) + "</marker><path marker-mid=\"url(#m)\" d=\"M0 0"
        + repeated(" 1 1", points) + "\"/>";
}

QByteArray nested(int levels)
{
    return repeated("<g>", levels) + repeated("</g>", levels);
}

}

class CVqSvgExpansionBounded : public testing::TestWithParam<TextRow>
{ };

TEST_P(CVqSvgExpansionBounded, IsFine)
{
    EXPECT_TRUE(is_bounded(GetParam().content));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CVqSvgExpansionBounded,
    testing::Values(
        TextRow{"Nothing", ""}, //
        TextRow{"ManyElementsWithoutReferences", repeated("<rect/>", 150'000)},
        TextRow{"Uses", tenfold("g", "<use href=\"#a%\"/>", 3)}, TextRow{"UsesInARow", chain(30)}, //
        TextRow{"UseOfNothing", R"(<use href="#none"/><use href=""/>)"},
        TextRow{"ManyElementsOfOneGradient",
                R"(<linearGradient id="a"><stop/></linearGradient>)"
                    + repeated("<rect fill=\"url(#a)\"/>", 50'000)},
        TextRow{"GradientsOfEachOther",
                R"(<linearGradient id="a" href="#b"/><radialGradient id="b" href="#a"/>)"},
        TextRow{
            "ClassOfAnother",
            R"(<style>.a { fill: url(#p) } .b { fill: red }</style><pattern id="p"><rect class="b"/></pattern>)"},
        TextRow{"LinkToWhatItStandsIn", R"(<g id="a"><a href="#a"/><animate href="#a"/></g>)"},
        TextRow{"Markers", path_with_markers(100)}, //
        TextRow{"Nested", nested(999)}),
    g_name_of);

class CVqSvgExpansionUnbounded : public testing::TestWithParam<TextRow>
{ };

TEST_P(CVqSvgExpansionUnbounded, IsTooMuch)
{
    EXPECT_FALSE(is_bounded(GetParam().content));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CVqSvgExpansionUnbounded,
    testing::Values(
        TextRow{"UsesOfUses", tenfold("g", "<use href=\"#a%\"/>", 9)},
        TextRow{"UsesByAnotherPrefix", tenfold("g", "<use xmlns:x=\"urn:x\" x:href=\"#a%\"/>", 9)},
        TextRow{"UsesInARow", chain(31)}, //
        TextRow{"UseOfItself", R"(<g id="a"><use href="#a"/></g>)"},
        TextRow{"UsesOfEachOther", R"(<g id="a"><use href="#b"/></g><g id="b"><use href="#a"/></g>)"},
        TextRow{"UseOfTheSecondOfAName", R"(<g id="a"/><g id="a"><use href="#a"/></g>)"},
        TextRow{"PatternsOfPatterns", tenfold("pattern", "<rect fill=\"url(#a%)\"/>", 9)},
        TextRow{"MasksOfMasks", tenfold("mask", "<rect style=\"mask: url( '#a%' )\"/>", 9)},
        TextRow{"PatternsByClasses", tenfold_by_classes(9)},
        TextRow{"PatternOfItselfByAStyle",
                "<style>rect { fill: url(#p) }</style><pattern id=\"p\"><rect/></pattern>"},
        TextRow{"MarkersOfALongPath", path_with_markers(2000)}, TextRow{"NestedTooDeep", nested(1000)},
        TextRow{"NestedWithoutEnd", nested(100'000)}),
    g_name_of);

TEST(CVqSvgExpansion, TextWithoutElementsIsBounded)
{
    EXPECT_TRUE(CVqSvgExpansion().IsBounded());
}
