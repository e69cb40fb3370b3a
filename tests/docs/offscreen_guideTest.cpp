#include "docs/snippets/offscreen_guide.h"

#include <QEventLoop>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int g_longest_wait = 5000; // ms

void wait_for_frame(OffscreenQuickView& view)
{
    QEventLoop loop;
    QObject::connect(&view, &OffscreenQuickView::sceneRendered, &loop, &QEventLoop::quit);
    QTimer::singleShot(g_longest_wait, &loop, [&loop] { loop.exit(1); });
    EXPECT_EQ(loop.exec(), 0);
}

class OffscreenGuide : public ::testing::Test
{
protected:
    OffscreenGuide()
    {
        QFile file(m_folder.filePath(u"page.qml"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("import QtQuick\nRectangle { width: 30; height: 20; color: \"red\" }\n");
        m_page = QUrl::fromLocalFile(file.fileName());
    }

    QTemporaryDir m_folder;
    QUrl m_page;
    OffscreenQuickView m_view;
};

}

TEST_F(OffscreenGuide, APageLoadedAtASizeFillsTheView)
{
    load_at_size(m_view, m_page, {64, 48});

    EXPECT_EQ(m_view.size(), QSize(64, 48));
    EXPECT_EQ(m_view.rootObject()->size(), QSizeF(64, 48));
    EXPECT_EQ(m_view.grab().pixelColor(63, 47), QColor(Qt::red));
}

TEST_F(OffscreenGuide, EachFrameIsHandedOn)
{
    QList<QColor> colors;
    load_at_size(m_view, m_page, {64, 48});

    show_each_frame(m_view, [&colors](const QImage& image) { colors << image.pixelColor(0, 0); });
    wait_for_frame(m_view);
    m_view.rootObject()->setProperty("color", QColor(Qt::blue));
    wait_for_frame(m_view);

    EXPECT_EQ(colors.first(), QColor(Qt::red));
    EXPECT_EQ(colors.last(), QColor(Qt::blue));
}

TEST_F(OffscreenGuide, AContextThatWasCurrentIsCurrentAgain)
{
    QOpenGLContext context;
    QOffscreenSurface surface;
    surface.create();
    load_at_size(m_view, m_page, {64, 48});
    ASSERT_TRUE(context.create() && context.makeCurrent(&surface));

    const QImage picture = grab_beside(m_view);

    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(QOpenGLContext::currentContext(), &context);
}
