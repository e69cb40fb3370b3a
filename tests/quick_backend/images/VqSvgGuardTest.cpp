#include "quick_backend/images/VqSvgGuard.h"

#include "tests/quick_backend/images/ImageSamples.h"

#include <ostream>
#include <string>

namespace {

struct SvgRow
{
    const char* name;
    QByteArray text;
};

void PrintTo(const SvgRow& row, std::ostream* out)
{
    *out << row.name;
}

const auto g_name_of = [](const auto& row) { return std::string(row.param.name); };

QByteArray of(const QByteArray& content)
{
    return Svg(4, 4, content);
}

QByteArray utf16(const QByteArray& text)
{
    const QString wide = QString::fromUtf8(text);
    return QByteArray("\xFF\xFE")
        + QByteArray(reinterpret_cast<const char*>(wide.utf16()), wide.size() * qsizetype(sizeof(char16_t)));
}

QByteArray picture_address(const QByteArray& bytes, const QByteArray& format = "png")
{
    return of("<image href=\"data:image/" + format + ";base64," + bytes.toBase64() + "\"/>");
}

QByteArray png()
{
    return Encoded(SampleImage(2, 2), "png");
}

// Its own prefix is the only one declared.
QByteArray without_declaration(const QByteArray& content)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"4\" height=\"4\">" + content + "</svg>";
}

}

class VqSvgGuardInside : public testing::TestWithParam<SvgRow>
{ };

TEST_P(VqSvgGuardInside, IsSelfContained)
{
    EXPECT_TRUE(VqIsSelfContainedSvg(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, VqSvgGuardInside,
    testing::Values(
        SvgRow{"Plain", StencilSvg()}, //
        SvgRow{"MarkAndBlanks", "\xEF\xBB\xBF\n " + StencilSvg()},
        SvgRow{"Declaration", R"(<?xml version="1.0" encoding="UTF-8"?>)" + StencilSvg()},
        SvgRow{"Comment", "<!-- url(http://a/b) href=\"http://a\" -->" + StencilSvg()},
        SvgRow{"Fragment", of(R"(<use xlink:href="#a"/>)")},
        SvgRow{"FragmentPaint", of("<rect fill=\"url(#a)\" style=\"stroke: url( '#b' )\"/>")},
        SvgRow{"StyleElement", of("<style>rect { fill: url(#a) } .curl { fill: red }</style>")},
        SvgRow{"EmbeddedPng", picture_address(png())},
        SvgRow{"EmbeddedPngInLines",
               of("<image href=\" data:image/png;base64,\n" + png().toBase64().insert(8, "\n ") + "\"/>")},
        SvgRow{"EmbeddedWebp", picture_address(Encoded(SampleImage(2, 2), "webp"), "webp")},
        SvgRow{"FragmentOfAnUndeclaredPrefix", without_declaration(R"(<use xlink:href="#a"/>)")},
        SvgRow{"EmbeddedJpeg", picture_address(Encoded(SampleImage(2, 2), "jpeg"), "jpeg")},
        SvgRow{
            "PublicType",
            R"(<!DOCTYPE svg PUBLIC "-//W3C//DTD SVG 1.1//EN" "http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd">)"
                + StencilSvg()},
        SvgRow{"InnerEntity",
               R"(<!DOCTYPE svg [<!ENTITY colour "red">]>)" + of(R"(<rect fill="&colour;"/>)")},
        SvgRow{"NoteOfAProgram",
               R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:i="urn:i" i:file="C:\a.png" width="1"/>)"},
        SvgRow{"Text", of("<text>Look at http://example.org or url(a)</text>")}),
    g_name_of);

class VqSvgGuardOutside : public testing::TestWithParam<SvgRow>
{ };

TEST_P(VqSvgGuardOutside, IsRefused)
{
    EXPECT_FALSE(VqIsSelfContainedSvg(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, VqSvgGuardOutside,
    testing::Values(
        SvgRow{"Nothing", ""}, SvgRow{"NoMarkup", "plain"}, SvgRow{"Compressed", "\x1F\x8B\x08"},
        SvgRow{"NetworkImage", of(R"(<image href="http://127.0.0.1/a.png"/>)")},
        SvgRow{"NetworkImageByXlink", of(R"(<image xlink:href="https://127.0.0.1/a.png"/>)")},
        SvgRow{"FileImage", of(R"(<image xlink:href="file:///etc/hostname"/>)")},
        SvgRow{"RelativeImage", of(R"(<image href="a.png"/>)")},
        SvgRow{"ImageInAnotherPrefix",
               R"(<svg xmlns:q="http://www.w3.org/1999/xlink"><image q:href="a"/></svg>)"},
        SvgRow{"ImageInAnUndeclaredPrefix", without_declaration(R"(<image xlink:href="a.png"/>)")},
        SvgRow{"ImageBehindAnUndeclaredPrefix", of(R"(<x:g/><image xlink:href="a.png"/>)")},
        SvgRow{"ImageOfAPrefix", without_declaration(R"(<q:image xlink:href="a.png"/>)")},
        SvgRow{"ImageNamedLikeAFragment", of(R"(<image href="#/../a.png"/>)")},
        SvgRow{"ImageOfAPrefixNamedLikeAFragment", of(R"(<q:image href="#/../a.png"/>)")},
        SvgRow{"ImageBehindTheEnd", of("") + R"(<image href="a.png"/>)"},
        SvgRow{"CutText", of(R"(<use href="#a"/>)").chopped(1)},
        SvgRow{"Link", of(R"(<a href="http://127.0.0.1/"/>)")},
        SvgRow{"Source", of(R"(<audio src="a.ogg"/>)")}, //
        SvgRow{"Script", of(R"(<script href="a.js"/>)")},
        SvgRow{"PaintFromAFile", of("<rect fill=\"url(other.svg#a)\"/>")},
        SvgRow{"PaintInCapitals", of("<rect style=\"fill:URL ( http://a/b )\"/>")},
        SvgRow{"PaintInQuotes", of("<rect style=\"fill:url('http://a/b#c')\"/>")},
        SvgRow{"SecondPaint", of("<rect style=\"fill:url(#a);stroke:url(b)\"/>")},
        SvgRow{"PaintHiddenByAReference", of("<rect style=\"fill:u&#114;l(http://a/b)\"/>")},
        SvgRow{"PaintHiddenByABackslash", of("<rect style=\"fill:u\\72l(http://a/b)\"/>")},
        SvgRow{"PaintHiddenByAnEntity",
               "<!DOCTYPE svg [<!ENTITY u \"url(http://a/b)\">]>" + of(R"(<rect fill="&u;"/>)")},
        SvgRow{"Import", of("<style>@import 'a.css';</style>")},
        SvgRow{"ImportInCapitals", of("<style>@IMPORT 'a.css';</style>")},
        SvgRow{"FontOfAStyle", of("<style>@font-face { src: url(a.ttf) }</style>")},
        SvgRow{"StyleInPieces", of("<style>rect { fill: ur<![CDATA[l(http://a/b) }]]></style>")},
        SvgRow{"StyleAroundAnElement", of("<style>rect { fill: url(http://a/b) }<x/></style>")},
        SvgRow{"StyleInAnElementOfAStyle", of("<style><x>rect { fill: url(http://a/b) }</x></style>")},
        SvgRow{"StyleSheet", R"(<?xml-stylesheet href="a.css" type="text/css"?>)" + StencilSvg()},
        SvgRow{"OtherType", R"(<!DOCTYPE svg SYSTEM "http://127.0.0.1/a.dtd">)" + StencilSvg()},
        SvgRow{"PublicTypeElsewhere",
               R"(<!DOCTYPE svg PUBLIC "-//W3C//DTD SVG 1.1//EN" "http://127.0.0.1/a.dtd">)" + StencilSvg()},
        SvgRow{"OuterEntity", R"(<!DOCTYPE svg [<!ENTITY a SYSTEM "file:///etc/hostname">]>)" + StencilSvg()},
        SvgRow{"EmbeddedSvg", picture_address(of(R"(<image href="http://a/b"/>)"), "svg+xml")},
        SvgRow{"EmbeddedSvgUnderAnotherName", picture_address(of(R"(<image href="http://a/b"/>)"))},
        SvgRow{"EmbeddedSvgBehindAPicture",
               of("<image href=\"data:image/png;base64," + png().toBase64() + ";base64,"
                  + of(R"(<image href="a"/>)").toBase64() + "\"/>")},
        SvgRow{"EmbeddedPictureThatIsCut", picture_address(png().chopped(20))},
        SvgRow{"EmbeddedPictureWithAPath",
               of("<image href=\"data:image/png;base64," + png().toBase64() + "/../../a.png\"/>")},
        SvgRow{"EmbeddedPictureInCapitals",
               of("<image href=\"DATA:image/png;base64," + png().toBase64() + "\"/>")},
        SvgRow{"EmbeddedText", of(R"(<image href="data:text/plain,a"/>)")},
        SvgRow{"ReferenceInACircle", of(R"(<g id="a"><use href="#a"/></g>)")},
        SvgRow{"OtherCode", utf16(of(R"(<image href="http://a/b"/>)"))},
        SvgRow{"OtherCodeWithoutMark", utf16(of(R"(<image href="http://a/b"/>)")).sliced(2)},
        SvgRow{"DeclaredCode",
               R"(<?xml version="1.0" encoding="ISO-8859-1"?>)" + of(R"(<image href="http://a/b"/>)")}),
    g_name_of);
