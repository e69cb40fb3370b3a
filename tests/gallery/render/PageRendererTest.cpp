#include "gallery/render/PageRenderer.h"

#include "tests/gallery/PageFolder.h"
#include "tests/support/CaptureMessages.h"
#include "tests/support/PictureCompare.h"

#include <QPainter>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {

/// Four corners of different colours, one of them half transparent and one left out.
constexpr auto g_corners = R"(import QtQuick
Item {
    id: root
    property color first: "red"
    width: 40; height: 20
    Rectangle { width: 10; height: 5; color: root.first }
    Rectangle { x: root.width - 10; width: 10; height: 5; color: "#0000ff" }
    Rectangle { y: root.height - 5; width: 10; height: 5; color: "#80ffffff" }
})";

QImage corners(const QSize& size, const QColor& first)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(0, 0, 10, 5, first);
    painter.fillRect(size.width() - 10, 0, 10, 5, QColor(0, 0, 255));
    painter.fillRect(0, size.height() - 5, 10, 5, QColor(255, 255, 255, 128));
    return image;
}

class PageRenderer : public testing::Test
{
protected:
    QImage Draw(const QByteArray& qml, const QSize& size = {}, const QList<Gallery::RenderValue>& values = {})
    {
        return m_renderer.Draw(m_folder.Page(qml), size, values);
    }

    QString PagePath() const { return m_folder.Path(u"page.qml"_s); }

    PageFolder m_folder;
    QQmlEngine m_engine;
    Gallery::PageRenderer m_renderer{m_engine};
};

struct Case
{
    const char* name;
    const char* qml;
    QSize size;
    const char* error; // behind the path of the page where it begins with a colon
};

}

TEST_F(PageRenderer, OpenGLIsThere)
{
    EXPECT_EQ(Gallery::WhyNoPages(), QString());
}

TEST_F(PageRenderer, APageHasItsOwnSize)
{
    EXPECT_TRUE(EqualPictures(Draw(g_corners), corners({40, 20}, Qt::red)));
    EXPECT_EQ(m_renderer.Errors(), QStringList());
}

TEST_F(PageRenderer, ASizeIsGivenToThePage)
{
    EXPECT_TRUE(EqualPictures(Draw(g_corners, {61, 33}), corners({61, 33}, Qt::red)));
}

TEST_F(PageRenderer, AValueIsGivenToThePage)
{
    EXPECT_TRUE(EqualPictures(Draw(g_corners, {}, {{u"first"_s, u"#00ff00"_s}}),
                              corners({40, 20}, QColor(0, 255, 0))));
}

TEST_F(PageRenderer, SizeAndValueGoTogether)
{
    EXPECT_TRUE(EqualPictures(Draw(g_corners, {61, 33}, {{u"first"_s, u"#00ff00"_s}}),
                              corners({61, 33}, QColor(0, 255, 0))));
}

TEST_F(PageRenderer, ARequiredPropertyCanBeGiven)
{
    const QImage picture = Draw(
        "import QtQuick\nRectangle { required property color ground; width: 4; height: 4; color: ground }",
        {}, {{u"ground"_s, u"blue"_s}});

    EXPECT_EQ(picture.pixelColor(1, 1), QColor(Qt::blue)) << m_renderer.Errors().join(u'\n').toStdString();
}

TEST_F(PageRenderer, OnePixelIsAPicture)
{
    const QImage picture = Draw("import QtQuick\nRectangle { width: 9; height: 9; color: \"red\" }", {1, 1});

    EXPECT_EQ(picture.size(), QSize(1, 1));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(PageRenderer, APictureThatComesLaterMakesThePageLarger)
{
    m_folder.Picture(u"red.png"_s, {40, 30}, Qt::red);

    const QImage picture = Draw("import QtQuick\nImage { asynchronous: true; source: \"red.png\" }");

    EXPECT_EQ(picture.size(), QSize(40, 30));
    EXPECT_EQ(picture.pixelColor(39, 29), QColor(Qt::red));
}

TEST_F(PageRenderer, WhatLayoutsMoveInTheirFirstFrameIsInPlace)
{
    const QImage picture = Draw(R"(import QtQuick
        import QtQuick.Layouts
        RowLayout {
            spacing: 0
            Rectangle { Layout.fillWidth: true; Layout.fillHeight: true; color: "red" }
            Rectangle { Layout.fillWidth: true; Layout.fillHeight: true; color: "blue" }
        })",
                                {40, 20});

    EXPECT_EQ(picture.pixelColor(19, 19), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(20, 0), QColor(Qt::blue));
}

TEST_F(PageRenderer, LayersAndControlsAreComplete)
{
    const QImage picture = Draw(R"(import QtQuick
        import QtQuick.Controls.Basic
        Rectangle {
            color: "white"
            Rectangle { width: 20; height: 40; color: "red"; layer.enabled: true }
            Button { x: 40; width: 60; height: 40; text: "OK"; background: Rectangle { color: "blue" } }
        })",
                                {100, 40});

    EXPECT_EQ(picture.pixelColor(10, 20), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(30, 20), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(42, 2), QColor(Qt::blue));
}

TEST_F(PageRenderer, TwoPagesInARowDoNotDisturbEachOther)
{
    const QImage first = Draw(g_corners);
    const QImage second = m_renderer.Draw(
        m_folder.Page("import QtQuick\nRectangle { width: 9; height: 9; color: \"red\" }", u"second.qml"_s),
        {});

    EXPECT_TRUE(EqualPictures(first, corners({40, 20}, Qt::red)));
    EXPECT_EQ(second.size(), QSize(9, 9));
    EXPECT_EQ(second.pixelColor(8, 8), QColor(Qt::red));
}

TEST_F(PageRenderer, WarningsOfTheCodeDoNotFail)
{
    const CaptureMessages warnings(QtWarningMsg);

    const QImage picture = Draw("import QtQuick\nItem {\n    width: 4; height: 4\n    x: nowhere.x\n}");

    EXPECT_EQ(picture.size(), QSize(4, 4));
    EXPECT_EQ(m_renderer.Errors(), QStringList());
    EXPECT_EQ(warnings.Texts().size(), 1);
    EXPECT_TRUE(warnings.Texts().value(0).endsWith(u"ReferenceError: nowhere is not defined"_s));
}

TEST_F(PageRenderer, AnErrorIsForgottenWithTheNextPage)
{
    Draw("import QtQuick\nItem {");

    m_renderer.Draw(m_folder.Page(g_corners, u"second.qml"_s), {});

    EXPECT_EQ(m_renderer.Errors(), QStringList());
}

class FailingPages : public PageRenderer, public testing::WithParamInterface<Case>
{ };

TEST_P(FailingPages, GiveNoPictureAndAReason)
{
    const QImage picture = Draw(GetParam().qml, GetParam().size);

    const QString error = QString::fromUtf8(GetParam().error);
    EXPECT_TRUE(picture.isNull());
    EXPECT_EQ(m_renderer.Errors(), QStringList{error.startsWith(u':') ? PagePath() + error : error});
}

INSTANTIATE_TEST_SUITE_P(
    PageRenderer, FailingPages,
    testing::Values(
        Case{"SyntaxError", "import QtQuick\nItem {\n    width: 4\n", {8, 8}, ":4: Expected token `}'"},
        Case{
            "UnknownType", "import QtQuick\nItem {\n    Wobble { }\n}\n", {8, 8}, ":3: Wobble is not a type"},
        Case{"UnknownModule", "import Wobble\nItem { }\n", {8, 8}, ":1: module \"Wobble\" is not installed"},
        Case{"NoItem",
             "import QtQml\nQtObject { }\n",
             {8, 8},
             ": the root is no item, so there is nothing to draw."},
        Case{"AWindow",
             "import QtQuick\nWindow { }\n",
             {8, 8},
             ": the root is no item, so there is nothing to draw."},
        Case{"NoSizeAtAll",
             "import QtQuick\nItem { }\n",
             {},
             "The page has no size of its own: --size gives one."},
        Case{"NoHeight",
             "import QtQuick\nItem { width: 40 }\n",
             {},
             "The page has no size of its own: --size gives one."},
        Case{"TooWide",
             "import QtQuick\nItem { width: 16385; height: 2 }\n",
             {},
             "A picture of 16385x2 pixels is too large: each side has 16384 at most."}),
    [](const auto& row) { return row.param.name; });

TEST_F(PageRenderer, AMissingFileIsToldWithItsAddress)
{
    const QImage picture = m_renderer.Draw(QUrl(u"qrc:///nowhere/a.qml"_s), {8, 8});

    EXPECT_TRUE(picture.isNull());
    EXPECT_EQ(m_renderer.Errors(), QStringList{u"qrc:/nowhere/a.qml: No such file or directory"_s});
}

TEST_F(PageRenderer, AJobIsDrawnAndWritten)
{
    m_folder.Page(g_corners);

    const bool done = m_renderer.Render({PagePath(), m_folder.Path(u"a.png"_s), {}, {}});

    EXPECT_TRUE(done) << m_renderer.Errors().join(u'\n').toStdString();
    EXPECT_TRUE(EqualPictures(QImage(m_folder.Path(u"a.png"_s)), corners({40, 20}, Qt::red)));
}

TEST_F(PageRenderer, APictureThatCannotBeWrittenIsTold)
{
    m_folder.Page(g_corners);
    const QString out = m_folder.Path(u"nowhere/a.png"_s);

    const bool done = m_renderer.Render({PagePath(), out, {}, {}});

    EXPECT_FALSE(done);
    EXPECT_EQ(m_renderer.Errors(), QStringList{out + u" cannot be written: No such file or directory."_s});
}
