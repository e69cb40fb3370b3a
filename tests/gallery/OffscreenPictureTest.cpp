#include "gallery/OffscreenPicture.h"

#include "gallery/script/Screenshots.h"
#include "gallery/script/WaitFor.h"
#include "tests/gallery/PageFolder.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class OffscreenPicture : public testing::Test
{
protected:
    OffscreenPicture()
    {
        qmlRegisterType<Gallery::OffscreenPicture>("PictureTest", 1, 0, "OffscreenPicture");
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport PictureTest\n"
                          "Window { width: 100; height: 60; OffscreenPicture { anchors.fill: parent; "
                          "sceneSize: '40x20' } }",
                          QUrl());
        m_window.reset(qobject_cast<QQuickWindow*>(component.create()));
        EXPECT_TRUE(m_window) << component.errorString().toStdString();
        m_picture = m_window->findChild<Gallery::OffscreenPicture*>();
    }

    void Show(const QByteArray& qml) { m_picture->SetSource(m_folder.Page(qml)); }

    PageFolder m_folder;
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    Gallery::OffscreenPicture* m_picture = nullptr;
};

constexpr auto g_half = "import QtQuick\nItem { Rectangle { objectName: 'half'; width: parent.width / 2; "
                        "height: parent.height; color: 'red' } }";

}

TEST_F(OffscreenPicture, HasThePictureAtOnce)
{
    Show(g_half);

    EXPECT_EQ(m_picture->Problem(), QString());
    ASSERT_EQ(m_picture->Image().size(), QSize(40, 20));
    EXPECT_EQ(m_picture->Image().pixelColor(5, 10), QColor(Qt::red));
    EXPECT_EQ(m_picture->Image().pixelColor(35, 10).alpha(), 0);
}

TEST_F(OffscreenPicture, AnotherSizeIsDrawnAtOnce)
{
    Show(g_half);

    m_picture->SetSceneSize({80, 50});

    EXPECT_EQ(m_picture->Image().size(), QSize(80, 50));
    EXPECT_EQ(m_picture->Image().pixelColor(35, 45), QColor(Qt::red));
}

TEST_F(OffscreenPicture, AChangeOfTheSceneIsAFrame)
{
    Show("import QtQuick\nRectangle { color: 'red'; Timer { running: true; interval: 1; onTriggered: "
         "parent.color = 'blue' } }");

    while (m_picture->Frames() < 20 && m_picture->Image().pixelColor(5, 5) != QColor(Qt::blue))
        Gallery::WaitFor(*m_picture, &Gallery::OffscreenPicture::FrameTaken, 20s);

    EXPECT_EQ(m_picture->Image().pixelColor(5, 5), QColor(Qt::blue));
    EXPECT_GT(m_picture->Frames(), 0);
}

TEST_F(OffscreenPicture, ThePictureLiesInTheMiddleOfTheItem)
{
    Show("import QtQuick\nRectangle { color: 'red' }");
    m_window->show();
    Gallery::WaitForFrame(*m_window);

    const QImage shown = m_window->grabWindow();

    EXPECT_EQ(shown.pixelColor(50, 30), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(31, 21), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(28, 30), QColor(Qt::white));
    EXPECT_EQ(shown.pixelColor(50, 42), QColor(Qt::white));
}

TEST_F(OffscreenPicture, AFileWithAnErrorIsToldWithItsLine)
{
    Show("import QtQuick\nItem {\n");

    EXPECT_TRUE(m_picture->Image().isNull());
    EXPECT_TRUE(m_picture->Problem().startsWith(m_folder.Path(u"page.qml"_s) + u":3: "_s))
        << m_picture->Problem().toStdString();
}
