#include "quick_backend/CVqQuickMenu.h"
#include "tests/quick_backend/PoolFixture.h"
#include "tests/support/ExpectMessage.h"
#include "tests/support/PictureCompare.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTcpServer>

#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Pool = CVqAbstractBitmapPool;

constexpr int g_ready = 1;
constexpr int g_error = 3;

/// A window with one Image in its corner.
struct CVqQuickBitmapPoolQmlTest : PoolFixture
{
    CVqQuickBitmapPoolQmlTest()
    {
        m_pool.AddImageProvider(m_engine);
        QQmlComponent component(&m_engine);
        component.setData(
            "import QtQuick\nWindow { width: 40; height: 20; visible: true; color: 'white'; property "
            "alias image: image; Image { id: image } }",
            QUrl());
        m_window.reset(qobject_cast<QQuickWindow*>(component.create()));
        EXPECT_TRUE(m_window) << qPrintable(component.errorString());
        m_image = m_window->property("image").value<QQuickItem*>();
    }

    int Show(const QString& source) const
    {
        m_image->setProperty("source", source);
        return m_image->property("status").toInt();
    }

    QImage Shown() const
    {
        return m_window->grabWindow().copy(0, 0, int(m_image->width()), int(m_image->height()));
    }

    static QString Address(int index, const QString& query = {})
    {
        return u"image://arbor/"_s + QString::number(index) + query;
    }

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QQuickItem* m_image = nullptr;
};

}

TEST_F(CVqQuickBitmapPoolQmlTest, ImageShowsInItsNaturalSize)
{
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), TwoColourSvg().constData());

    EXPECT_EQ(Show(Address(index)), g_ready);

    EXPECT_TRUE(EqualPictures(Shown(), Columns({0xFFFF0000, 0xFF0000FF}, 1, 1)));
}

TEST_F(CVqQuickBitmapPoolQmlTest, ImageShowsInTheSizeOfItsSource)
{
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), TwoColourSvg().constData());
    m_image->setProperty("sourceSize", QSize(12, 6));

    EXPECT_EQ(Show(Address(index)), g_ready);

    EXPECT_TRUE(EqualPictures(Shown(), Columns({0xFFFF0000, 0xFF0000FF}, 6, 6)));
}

TEST_F(CVqQuickBitmapPoolQmlTest, ImageHasThePixelsOfADenseScreen)
{
    const auto is_sharp = [this] {
        QByteArray columns;
        for (int x = 0; x < 8; ++x)
            columns += "<rect width=\"1\" height=\"2\" x=\"" + QByteArray::number(x)
                + (x % 2 ? "\" fill=\"#00f\"/>" : "\" fill=\"#f00\"/>");
        m_image->setProperty("sourceSize", QSize(4, 1));
        Show(Address(Pool::AddImageSVG(VQ_TEXT("a"), Svg(8, 2, columns).constData())));
        const QImage shown = m_window->grabWindow().copy(0, 0, 8, 2);
        const QRgb red = 0xFFFF0000;
        const QRgb blue = 0xFF0000FF;
        return m_window->devicePixelRatio() == 2 && m_image->width() == 4
            && EqualPictures(shown, Columns({red, blue, red, blue, red, blue, red, blue}, 1, 2));
    };
    // The scale is read when a program starts.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    qputenv("QT_SCALE_FACTOR", "2");

    EXPECT_EXIT(std::_Exit(is_sharp() ? 0 : 1), testing::ExitedWithCode(0), "");

    qunsetenv("QT_SCALE_FACTOR");
}

TEST_F(CVqQuickBitmapPoolQmlTest, DisabledImageShowsInItsColour)
{
    const int index
        = Pool::AddImageSVG(VQ_TEXT("a"), Svg(4, 4, R"(<rect width="4" height="4"/>)").constData());

    EXPECT_EQ(Show(Address(index, u"?state=disabled"_s)), g_ready);

    EXPECT_TRUE(EqualPictures(Shown(), Columns({PaletteForTest::g_disabled}, 4, 4)));
}

TEST_F(CVqQuickBitmapPoolQmlTest, ImageTakesAColourOfItsWindow)
{
    const int index
        = Pool::AddImageSVG(VQ_TEXT("a"), Svg(4, 4, R"(<rect width="4" height="4"/>)").constData());

    EXPECT_EQ(Show(Address(index, u"?color=%2300ff00"_s)), g_ready);

    EXPECT_TRUE(EqualPictures(Shown(), Columns({0xFF00FF00}, 4, 4)));
}

TEST_F(CVqQuickBitmapPoolQmlTest, ReplacedImageShowsUnderAnotherRevision)
{
    const int index = Pool::AddImageSVG(VQ_TEXT("a"), StencilSvg().constData());
    Show(Address(index));

    Pool::ReplaceImageSVG(VQ_TEXT("a"), TwoColourSvg().constData());

    EXPECT_EQ(Show(Address(index, u"?revision=1"_s)), g_ready);
    EXPECT_TRUE(EqualPictures(Shown(), Columns({0xFFFF0000, 0xFF0000FF}, 1, 1)));
}

TEST_F(CVqQuickBitmapPoolQmlTest, UnknownImageShowsNothingWithQtsError)
{
    const ExpectMessage warning(QtWarningMsg, u"Failed to get image from provider: image://arbor/7"_s,
                                ExpectMessage::Match::Contains);

    EXPECT_EQ(Show(Address(7)), g_error);
}

TEST_F(CVqQuickBitmapPoolQmlTest, AsynchronousImageIsReadInAnotherThread)
{
    const int index = AddBytes(u"a.png"_s, Encoded(SampleImage(5, 3), "png"));
    m_image->setProperty("asynchronous", true);
    QSignalSpy status(m_image, SIGNAL(statusChanged(QQuickImageBase::Status)));

    Show(Address(index));
    while (m_image->property("status").toInt() != g_ready && status.wait()) { }

    EXPECT_TRUE(EqualPictures(Shown(), SampleImage(5, 3)));
}

TEST_F(CVqQuickBitmapPoolQmlTest, EngineMayOutliveThePool)
{
    auto engine = std::make_unique<QQmlEngine>();
    auto pool = std::make_unique<CVqQuickBitmapPool>();
    pool->AddImageProvider(*engine);

    pool.reset();

    EXPECT_NE(engine->imageProvider(u"arbor"_s), nullptr);
}

TEST_F(CVqQuickBitmapPoolQmlTest, NothingIsFetchedFromANetwork)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QString address = u"http://127.0.0.1:%1/a"_s.arg(server.serverPort());
    const QByteArray text = address.toLatin1();

    EXPECT_EQ(Add(address + u".png"_s), -13);
    for (const QByteArray& svg :
         {Svg(2, 2, "<image href=\"" + text + ".png\" width=\"2\" height=\"2\"/>"),
          "<svg width=\"2\" height=\"2\"><image xlink:href=\"" + text
              + ".png\" width=\"2\" height=\"2\"/></svg>",
          Svg(2, 2, "<use xlink:href=\"" + text + ".svg#a\"/>"),
          Svg(2, 2, "<style>@import url(" + text + ".css);</style>"),
          Svg(2, 2, "<rect width=\"2\" height=\"2\" fill=\"url(" + text + ".svg#a)\"/>"),
          "<?xml-stylesheet href=\"" + text + ".css\"?>" + Svg(2, 2, ""),
          "<!DOCTYPE svg SYSTEM \"" + text + ".dtd\">" + Svg(2, 2, ""),
          "<!DOCTYPE svg [<!ENTITY e SYSTEM \"" + text + "\">]>" + Svg(2, 2, "<text>&e;</text>")}) {
        EXPECT_EQ(AddBytes(u"a.svg"_s, svg), -9);
        EXPECT_TRUE(Pool::GetPixmapFromSVG(svg.constData(), 2, 2).isNull());
    }

    EXPECT_FALSE(server.waitForNewConnection(200));
}
