#include "offscreen/OffscreenQuickView.h"
#include "tests/offscreen/QmlFolder.h"

#include <QQmlContext>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;

using View = OffscreenQuickView;

namespace {

constexpr double g_infinity = std::numeric_limits<double>::infinity();

struct RootSize
{
    const char* m_name;
    QSizeF m_size;
    QSize m_expected;
};

constexpr auto name_of = [](const auto& row) { return row.param.m_name; };

}

class OffscreenQuickViewRounding : public testing::Test
{
protected:
    // A window of 200 x 100 that no root changes on its own.
    void SetUp() override
    {
        m_view.setResizeMode(View::SizeRootObjectToView);
        m_view.resize(200, 100);
    }

    QQuickItem& Load(QSizeF size)
    {
        m_view.rootContext()->setContextProperty(u"given"_s, size);
        m_view.setSource(m_folder.Scene("Item { width: given.width; height: given.height }"));
        return *m_view.rootObject();
    }

    QmlFolder m_folder;
    View m_view;
};

class OffscreenQuickViewRootSize : public OffscreenQuickViewRounding,
                                   public testing::WithParamInterface<RootSize>
{ };

TEST_P(OffscreenQuickViewRootSize, GivesTheInitialSize)
{
    Load(GetParam().m_size);

    EXPECT_EQ(m_view.initialSize(), GetParam().m_expected);
}

TEST_P(OffscreenQuickViewRootSize, GivesTheHintUnlessItIsEmpty)
{
    Load(GetParam().m_size);

    EXPECT_EQ(m_view.sizeHint(), GetParam().m_expected.isEmpty() ? QSize(200, 100) : GetParam().m_expected);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, OffscreenQuickViewRootSize,
    testing::Values(RootSize{"Whole", {50, 40}, {50, 40}}, RootSize{"Fractions", {50.99, 40.01}, {50, 40}},
                    RootSize{"BelowOne", {0.99, 40}, {0, 40}}, RootSize{"Negative", {-50, -40}, {0, 0}},
                    RootSize{"NegativeWidth", {-50, 40}, {0, 40}},
                    RootSize{"NegativeHeight", {50, -40}, {50, 0}},
                    RootSize{"NegativeBelowOne", {-0.5, -0.5}, {0, 0}},
                    RootSize{"ZeroHeight", {50, 0}, {50, 0}}, RootSize{"Zero", {0, 0}, {0, 0}},
                    RootSize{"Infinite", {g_infinity, 40}, {std::numeric_limits<int>::max(), 40}}),
    name_of);

class OffscreenQuickViewSizedToRoot : public OffscreenQuickViewRounding,
                                      public testing::WithParamInterface<RootSize>
{ };

TEST_P(OffscreenQuickViewSizedToRoot, TakesWholePixelsUnlessOnePartIsNegative)
{
    Load(GetParam().m_size);

    m_view.setResizeMode(View::SizeViewToRootObject);

    EXPECT_EQ(m_view.size(), GetParam().m_expected);
}

INSTANTIATE_TEST_SUITE_P(Sizes, OffscreenQuickViewSizedToRoot,
                         testing::Values(RootSize{"Whole", {50, 40}, {50, 40}},
                                         RootSize{"Fractions", {50.99, 40.01}, {50, 40}},
                                         RootSize{"BelowOne", {0.99, 40}, {0, 40}},
                                         RootSize{"Zero", {0, 0}, {0, 0}},
                                         RootSize{"NegativeBelowOne", {-0.5, 40}, {0, 40}},
                                         RootSize{"NegativeWidth", {-50, 40}, {200, 100}},
                                         RootSize{"NegativeHeight", {50, -40}, {200, 100}},
                                         RootSize{"Negative", {-1, -1}, {200, 100}}),
                         name_of);

namespace {

struct FuzzySize
{
    const char* m_name;
    double m_root;
    double m_expected;
};

}

class OffscreenQuickViewFuzzySize : public OffscreenQuickViewRounding,
                                    public testing::WithParamInterface<FuzzySize>
{ };

TEST_P(OffscreenQuickViewFuzzySize, KeepsAWidthThatIsEqualToTwelveDigits)
{
    const QQuickItem& root = Load({GetParam().m_root, 100});

    m_view.resize(200, 100);

    EXPECT_EQ(root.width(), GetParam().m_expected);
}

TEST_P(OffscreenQuickViewFuzzySize, KeepsAHeightThatIsEqualToTwelveDigits)
{
    const QQuickItem& root = Load({10, GetParam().m_root});

    m_view.resize(10, 200);

    EXPECT_EQ(root.height(), GetParam().m_expected);
}

INSTANTIATE_TEST_SUITE_P(Sizes, OffscreenQuickViewFuzzySize,
                         testing::Values(FuzzySize{"Equal", 200, 200},
                                         FuzzySize{"WithinOnePart", 200 + 1.9e-10, 200 + 1.9e-10},
                                         FuzzySize{"BelowWithinOnePart", 200 - 1.9e-10, 200 - 1.9e-10},
                                         FuzzySize{"BeyondOnePart", 200 + 2.1e-10, 200},
                                         FuzzySize{"BelowBeyondOnePart", 200 - 2.1e-10, 200},
                                         FuzzySize{"Other", 50, 200}),
                         name_of);

TEST_F(OffscreenQuickViewRounding, NothingButZeroIsEqualToZero)
{
    const QQuickItem& root = Load({1e-13, 1e-13});

    m_view.resize(0, 0);

    EXPECT_EQ(root.size(), QSizeF(0, 0));
}

TEST_F(OffscreenQuickViewRounding, TheWidthIsSetBeforeTheHeight)
{
    m_view.setSource(m_folder.Scene("Item { property string order\n"
                                    "onWidthChanged: order += 'w' + width\n"
                                    "onHeightChanged: order += 'h' + height }"));

    m_view.resize(30, 40);

    EXPECT_EQ(m_view.rootObject()->property("order").toString(), u"w30h40"_s);
}

TEST_F(OffscreenQuickViewRounding, APartThatIsEqualIsNotSet)
{
    m_view.setSource(m_folder.Scene("Item { width: 30; height: 10; property string order\n"
                                    "onWidthChanged: order += 'w' + width\n"
                                    "onHeightChanged: order += 'h' + height }"));
    m_view.rootObject()->setProperty("order", QString());

    m_view.resize(30, 40);

    EXPECT_EQ(m_view.rootObject()->property("order").toString(), u"h40"_s);
}
