#include "gallery/toolbar/ToolbarContent.h"

#include "gallery/Pages.h"
#include "gallery/Session.h"
#include "tests/gallery/QmlTypes.h"
#include "tests/gallery/RealMenu.h"
#include "tests/support/ExpectMessage.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using Gallery::ToolbarContent;

namespace {

class ToolbarContentTest : public testing::Test
{
protected:
    ToolbarContentTest()
    {
        RegisterQmlTypes();
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nWindow { width: 100; height: 100 }", QUrl());
        m_window.reset(qobject_cast<QQuickWindow*>(component.create()));
        EXPECT_TRUE(m_window);
    }

    Gallery::Session m_session{RealMenu()};
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

}

TEST_F(ToolbarContentTest, IsEmptyBeforeThereIsAnEngine)
{
    const ToolbarContent content(u"ColourField"_s);

    EXPECT_FALSE(content.Root());
    EXPECT_EQ(content.implicitWidth(), 0);
}

TEST_F(ToolbarContentTest, IsMadeInTheWindowOfAnEngine)
{
    ToolbarContent content(u"ColourField"_s);

    content.setParentItem(m_window->contentItem());

    ASSERT_TRUE(content.Root());
    EXPECT_EQ(content.implicitWidth(), 34);
    EXPECT_EQ(content.implicitHeight(), 34);
}

TEST_F(ToolbarContentTest, IsMadeOnce)
{
    ToolbarContent content(u"ColourField"_s);
    content.setParentItem(m_window->contentItem());
    const QQuickItem* root = content.Root();

    content.setParentItem(nullptr);
    content.setParentItem(m_window->contentItem());

    EXPECT_EQ(content.Root(), root);
}

TEST_F(ToolbarContentTest, ItsRootFillsIt)
{
    ToolbarContent content(u"ColourField"_s);
    content.setSize({50, 40});
    content.setParentItem(m_window->contentItem());
    EXPECT_EQ(content.Root()->size(), QSizeF(50, 40));

    content.setSize({60, 44});

    EXPECT_EQ(content.Root()->size(), QSizeF(60, 44));
}

TEST_F(ToolbarContentTest, OnAVerticalToolbarItIsNarrow)
{
    ToolbarContent content(u"ZoomSlider"_s);
    content.setParentItem(m_window->contentItem());
    EXPECT_GT(content.implicitWidth(), 100);

    content.SetVertical(true);

    EXPECT_EQ(content.implicitWidth(), 34);
}

TEST_F(ToolbarContentTest, AFileThatIsNotThereGivesAWarning)
{
    ToolbarContent content(u"Nowhere"_s);
    const ExpectMessage warning(QtWarningMsg, u"No such file or directory"_s, ExpectMessage::Match::Contains);

    content.setParentItem(m_window->contentItem());

    EXPECT_FALSE(content.Root());
}
