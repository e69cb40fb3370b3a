#include "gallery/script/MouseStep.h"

#include "gallery/Session.h"
#include "tests/gallery/PageFixture.h"

using namespace Qt::StringLiterals;
using Gallery::MouseStep;
using Gallery::ParseMouseStep;

namespace {

class MouseStepTest : public PageFixture
{
protected:
    MouseStepTest() : PageFixture(u"PicturePage"_s) { }

    bool Send(const QString& text)
    {
        return Gallery::SendMouseStep(*ParseMouseStep(text), m_gallery.GetSession(), m_gallery.Window());
    }

    std::optional<QPointF> PlaceOf(const QString& name)
    {
        return Gallery::PlaceOf(m_gallery.GetSession(), m_gallery.Window(), name);
    }
};

}

TEST(MouseStep, AClickNamesOnePlace)
{
    const std::optional<MouseStep> step = ParseMouseStep(u"@click main/Tool(crop)"_s);

    ASSERT_TRUE(step);
    EXPECT_EQ(step->kind, MouseStep::Kind::Click);
    EXPECT_EQ(step->from, u"main/Tool(crop)"_s);
    EXPECT_EQ(ParseMouseStep(u"@right x"_s)->kind, MouseStep::Kind::RightClick);
}

TEST(MouseStep, ADragNamesTwo)
{
    const std::optional<MouseStep> step = ParseMouseStep(u"@drag a b:10"_s);

    ASSERT_TRUE(step);
    EXPECT_EQ(step->kind, MouseStep::Kind::Drag);
    EXPECT_EQ(step->to, u"b:10"_s);
}

TEST(MouseStep, AnythingElseIsNone)
{
    for (const QString& text :
         {u""_s, u"@click"_s, u"@click a b"_s, u"@drag a"_s, u"@wobble a"_s, u"Ctrl+S"_s})
        EXPECT_FALSE(ParseMouseStep(text)) << text.toStdString();
}

TEST_F(MouseStepTest, AControlIsFoundByToolbarAndName)
{
    const std::optional<QPointF> middle = PlaceOf(u"main/FileSave"_s);
    const std::optional<QPointF> right = PlaceOf(u"main/FileSave:100"_s);

    ASSERT_TRUE(middle && right);
    EXPECT_EQ(right->x() - middle->x(), 17);
    EXPECT_EQ(right->y(), middle->y());
}

TEST_F(MouseStepTest, AnItemIsFoundByItsName)
{
    EXPECT_TRUE(PlaceOf(u"pageSwitcher"_s));
    EXPECT_FALSE(PlaceOf(u"wobble"_s));
    EXPECT_FALSE(PlaceOf(u"main/wobble"_s));
    EXPECT_FALSE(PlaceOf(u"wobble/FileSave"_s));
}

TEST_F(MouseStepTest, AClickPressesAButton)
{
    EXPECT_TRUE(Send(u"@click main/FileSave"_s));

    EXPECT_EQ(m_gallery.GetSession().LastCommand(), u"FileSave"_s);
}

TEST_F(MouseStepTest, WhatDoesNotShowIsTold)
{
    EXPECT_FALSE(Send(u"@click wobble"_s));
    EXPECT_FALSE(Send(u"@drag main/FileSave wobble"_s));
}
