#include <QGuiApplication>
#include <QOpenGLContext>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(Display, TestsThatAskForItRunOnX)
{
    EXPECT_EQ(QGuiApplication::platformName(), u"xcb"_s);
}

TEST(Display, OpenGLIsThere)
{
    QOpenGLContext context;

    EXPECT_TRUE(context.create());
}
