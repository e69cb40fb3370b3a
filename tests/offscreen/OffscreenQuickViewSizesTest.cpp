#include "offscreen/OffscreenQuickView.h"
#include "tests/offscreen/QmlFolder.h"

#include <QQuickItem>

#include <gtest/gtest.h>

using View = OffscreenQuickView;

namespace {

QByteArray item_of(double width, double height)
{
    return "Item { width: " + QByteArray::number(width) + "; height: " + QByteArray::number(height) + " }";
}

struct ViewSize
{
    const char* m_name;
    QSize m_size;
};

}

class OffscreenQuickViewSizes : public testing::Test
{
protected:
    void Load(double width, double height) { m_view.setSource(m_folder.Scene(item_of(width, height))); }

    QSizeF RootSize() const { return m_view.rootObject()->size(); }

    QmlFolder m_folder;
    View m_view;
};

TEST_F(OffscreenQuickViewSizes, ANewViewTakesTheSizeOfTheRoot)
{
    Load(120, 80);

    EXPECT_EQ(m_view.size(), QSize(120, 80));
    EXPECT_EQ(m_view.initialSize(), QSize(120, 80));
    EXPECT_EQ(m_view.grab().size(), QSize(120, 80));
}

TEST_F(OffscreenQuickViewSizes, AViewWithASizeTakesThatOfTheRootToo)
{
    m_view.resize(200, 100);

    Load(50, 40);

    EXPECT_EQ(m_view.size(), QSize(50, 40));
}

TEST_F(OffscreenQuickViewSizes, AnotherSourceSizesTheViewAgain)
{
    Load(120, 80);

    Load(30, 90);

    EXPECT_EQ(m_view.size(), QSize(30, 90));
    EXPECT_EQ(m_view.initialSize(), QSize(30, 90));
}

TEST_F(OffscreenQuickViewSizes, ARootOfNoSizeHasAnInitialSizeOfZeroAndAHintOfTheWindow)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.resize(200, 100);

    Load(0, 0);

    EXPECT_EQ(m_view.initialSize(), QSize(0, 0));
    EXPECT_EQ(m_view.sizeHint(), QSize(200, 100));
}

TEST_F(OffscreenQuickViewSizes, ARootOfNoSizeTakesTheViewsSizeAway)
{
    m_view.resize(200, 100);

    Load(0, 0);

    EXPECT_EQ(m_view.size(), QSize(0, 0));
    EXPECT_EQ(m_view.sizeHint(), QSize(0, 0));
}

TEST_F(OffscreenQuickViewSizes, AViewWithARealSizeKeepsItAndSizesTheRootAtTheNextResize)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.resize(200, 100);

    Load(50, 50);
    EXPECT_EQ(m_view.size(), QSize(200, 100));
    EXPECT_EQ(RootSize(), QSizeF(50, 50));

    m_view.resize(200, 100);
    EXPECT_EQ(m_view.size(), QSize(200, 100));
    EXPECT_EQ(RootSize(), QSizeF(200, 100));
}

TEST_F(OffscreenQuickViewSizes, SetResizeModeSizesTheRootToAViewThatKeptItsSize)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.resize(200, 100);
    Load(50, 50);
    m_view.setResizeMode(View::SizeViewToRootObject);
    m_view.resize(200, 100);

    m_view.setResizeMode(View::SizeRootObjectToView);

    EXPECT_EQ(m_view.size(), QSize(200, 100));
    EXPECT_EQ(RootSize(), QSizeF(200, 100));
}

TEST_F(OffscreenQuickViewSizes, SetResizeModeSizesTheViewToTheRoot)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.resize(200, 100);
    Load(50, 50);

    m_view.setResizeMode(View::SizeViewToRootObject);

    EXPECT_EQ(m_view.size(), QSize(50, 50));
    EXPECT_EQ(m_view.resizeMode(), View::SizeViewToRootObject);
}

TEST_F(OffscreenQuickViewSizes, SetResizeModeWithThePresentModeDoesNothing)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.resize(200, 100);
    Load(50, 50);

    m_view.setResizeMode(View::SizeRootObjectToView);

    EXPECT_EQ(RootSize(), QSizeF(50, 50));
}

TEST_F(OffscreenQuickViewSizes, SetResizeModeWithoutARootOnlyStoresIt)
{
    m_view.resize(200, 100);

    m_view.setResizeMode(View::SizeRootObjectToView);

    EXPECT_EQ(m_view.resizeMode(), View::SizeRootObjectToView);
    EXPECT_EQ(m_view.size(), QSize(200, 100));
}

TEST_F(OffscreenQuickViewSizes, TheModeIsSetByProperty)
{
    m_view.setProperty("resizeMode", 1);

    EXPECT_EQ(m_view.resizeMode(), View::SizeRootObjectToView);
    EXPECT_EQ(m_view.property("resizeMode").value<View::ResizeMode>(), View::SizeRootObjectToView);
}

TEST_F(OffscreenQuickViewSizes, AResizeInSizeViewToRootObjectLeavesTheRoot)
{
    Load(50, 40);

    m_view.resize(200, 100);

    EXPECT_EQ(m_view.size(), QSize(200, 100));
    EXPECT_EQ(RootSize(), QSizeF(50, 40));
}

TEST_F(OffscreenQuickViewSizes, ARootThatChangesItsSizeLeavesTheView)
{
    Load(50, 40);

    m_view.rootObject()->setSize({70, 60});

    EXPECT_EQ(m_view.size(), QSize(50, 40));
    EXPECT_EQ(m_view.initialSize(), QSize(50, 40));
    EXPECT_EQ(m_view.sizeHint(), QSize(70, 60));
}

TEST_F(OffscreenQuickViewSizes, TheHintOfAViewWithoutARootIsItsSize)
{
    m_view.resize(33, 44);

    EXPECT_EQ(m_view.sizeHint(), QSize(33, 44));
}

TEST_F(OffscreenQuickViewSizes, TheHintIsThatOfTheRootWhereTheViewIsLarger)
{
    Load(50, 40);

    m_view.resize(200, 100);

    EXPECT_EQ(m_view.sizeHint(), QSize(50, 40));
}

TEST_F(OffscreenQuickViewSizes, InitialSizeStaysWhenTheNextRootIsNoItem)
{
    Load(50, 40);

    m_view.setSource(m_folder.Scene("QtObject {}"));

    EXPECT_EQ(m_view.initialSize(), QSize(50, 40));
    EXPECT_EQ(m_view.size(), QSize(50, 40));
}

TEST_F(OffscreenQuickViewSizes, TheRootIsNotSizedWhenAllOfTheViewsSizeIsTakenFromIt)
{
    m_view.setResizeMode(View::SizeRootObjectToView);

    Load(50, 40);

    EXPECT_EQ(m_view.size(), QSize(50, 40));
    EXPECT_EQ(RootSize(), QSizeF(50, 40));
}

TEST_F(OffscreenQuickViewSizes, AFractionIsTakenFromTheRootWithTheViewsSize)
{
    m_view.setResizeMode(View::SizeRootObjectToView);

    Load(50.75, 40.25);

    EXPECT_EQ(m_view.size(), QSize(50, 40));
    EXPECT_EQ(RootSize(), QSizeF(50, 40));
}

TEST_F(OffscreenQuickViewSizes, ARootThatEndsWithItsNewWidthIsNotSizedFurther)
{
    Load(50, 40);
    QObject::connect(m_view.rootObject(), &QQuickItem::widthChanged, &m_view,
                     [&] { delete m_view.rootObject(); });

    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.resize(200, 100);

    EXPECT_EQ(m_view.rootObject(), nullptr);
    EXPECT_EQ(m_view.size(), QSize(200, 100));
}

class OffscreenQuickViewWithoutSize : public OffscreenQuickViewSizes,
                                      public testing::WithParamInterface<ViewSize>
{ };

TEST_P(OffscreenQuickViewWithoutSize, TakesTheSizeOfTheRootInBothModes)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.resize(GetParam().m_size);

    Load(60, 50);

    EXPECT_EQ(m_view.size(), QSize(60, 50));
}

INSTANTIATE_TEST_SUITE_P(Views, OffscreenQuickViewWithoutSize,
                         testing::Values(ViewSize{"Of1x100", {1, 100}}, ViewSize{"Of100x1", {100, 1}},
                                         ViewSize{"Of0x100", {0, 100}}, ViewSize{"Of100x0", {100, 0}},
                                         ViewSize{"Of1x1", {1, 1}}),
                         [](const auto& row) { return row.param.m_name; });

TEST_F(OffscreenQuickViewSizes, AViewOf2By2HasARealSize)
{
    m_view.setResizeMode(View::SizeRootObjectToView);
    m_view.resize(2, 2);

    Load(60, 50);

    EXPECT_EQ(m_view.size(), QSize(2, 2));
}
