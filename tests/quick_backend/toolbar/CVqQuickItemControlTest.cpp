#include "quick_backend/toolbar/CVqQuickItemControl.h"

#include "tests/quick_backend/toolbar/CoreBar.h"

#include <QQmlEngine>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace {

class CVqQuickItemControlTest : public testing::Test
{
protected:
    QPointer<QQuickItem> content = CoreBar::SizedItem(80, 20);
    std::unique_ptr<CVqQuickItemControl> control = std::make_unique<CVqQuickItemControl>(content);
};

}

TEST_F(CVqQuickItemControlTest, IsAGeneralControl)
{
    EXPECT_EQ(control->GetKind(), CVqQuickControl::General);
    EXPECT_EQ(control->type(), CVqQuickControl::General);
    EXPECT_EQ(control->Content(), content);
}

TEST_F(CVqQuickItemControlTest, OwnsItsContent)
{
    EXPECT_EQ(QQmlEngine::objectOwnership(content), QQmlEngine::CppOwnership);

    control.reset();

    EXPECT_FALSE(content);
}

TEST_F(CVqQuickItemControlTest, WantsTheImplicitSizeOfItsContent)
{
    content->setSize({300, 300});

    EXPECT_EQ(WantedSize(*control), QSize(80, 20));
}

TEST_F(CVqQuickItemControlTest, WantsTheSizeOfAContentWithoutAnImplicitOne)
{
    content->setImplicitWidth(0);
    content->setImplicitHeight(0);
    content->setSize({33.2, 44});

    EXPECT_EQ(WantedSize(*control), QSize(34, 44));
}

TEST_F(CVqQuickItemControlTest, FollowsTheImplicitSize)
{
    const QSignalSpy told(control.get(), &CVqQuickControl::lookChanged);

    content->setImplicitWidth(90);

    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(WantedSize(*control), QSize(90, 20));
}

TEST_F(CVqQuickItemControlTest, FollowsTheSizeOfAContentWithoutAnImplicitOne)
{
    content->setImplicitWidth(0);
    content->setImplicitHeight(0);
    const QSignalSpy told(control.get(), &CVqQuickControl::lookChanged);

    content->setWidth(70);

    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(WantedSize(*control).width(), 70);
}

TEST_F(CVqQuickItemControlTest, TellsNothingWhenItsLookSizesAContentWithAnImplicitSize)
{
    const QSignalSpy told(control.get(), &CVqQuickControl::lookChanged);

    content->setSize({60, 10});

    EXPECT_EQ(told.count(), 0);
}

TEST_F(CVqQuickItemControlTest, WantsNoNegativeSize)
{
    content->setImplicitWidth(0);
    content->setImplicitHeight(0);
    content->setSize({-5, -5});

    EXPECT_EQ(WantedSize(*control), QSize(0, 0));
}

TEST_F(CVqQuickItemControlTest, HangsItsContentIntoItsFrame)
{
    control->CreateUI(0);

    EXPECT_EQ(content->parentItem(), control->Item());
}

TEST_F(CVqQuickItemControlTest, KeepsItsContentWithoutAFrame)
{
    control->CreateUI(0);

    control->DestroyUI();

    ASSERT_TRUE(content);
    EXPECT_EQ(content->parentItem(), nullptr);
}

TEST_F(CVqQuickItemControlTest, TakesItsContentIntoANewFrame)
{
    control->CreateUI(0);
    control->CreateUI(0);

    EXPECT_EQ(content->parentItem(), control->Item());
}

TEST_F(CVqQuickItemControlTest, OutlivesAContentThatSomebodyElseDeletes)
{
    control->CreateUI(0);

    delete content;

    EXPECT_EQ(control->Content(), nullptr);
    EXPECT_EQ(WantedSize(*control), QSize(0, 0));
    control->DestroyUI();
    EXPECT_NE(control->CreateUI(0), 0U);
}
