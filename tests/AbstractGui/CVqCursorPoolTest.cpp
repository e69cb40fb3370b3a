#include "AbstractGui/CVqCursorPool.h"

#include "tests/support/VirtualSlot.h"

#include <QPixmap>

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

class Pool : public CVqCursorPool
{
public:
    Pool() = default;
    Pool(const Pool& other) = default;

    static CVqCursorPool*& Registered() { return s_pInstance; }
};

Qt::CursorShape shape_of(Pool& pool, vq_uint64 id)
{
    return pool.get(id).shape();
}

QString resource_of(const Pool& pool, vq_uint64 id)
{
    QString resource;
    pool.getResource(id, &resource);
    return resource;
}

/// A pool with all fields of entry 5 set.
struct CVqCursorPoolTest : testing::Test
{
    CVqCursorPoolTest()
    {
        m_pool.set(5, u":/lasso.png"_s);
        m_pool.set(5, 77);
        m_pool.set(5, QCursor(Qt::WaitCursor));
    }

    Pool m_pool;
};

}

TEST_F(CVqCursorPoolTest, NewPoolIsEmpty)
{
    EXPECT_EQ(Pool().size(), 0u);
}

TEST_F(CVqCursorPoolTest, SetCursorComesBack)
{
    EXPECT_EQ(shape_of(m_pool, 5), Qt::WaitCursor);
}

TEST_F(CVqCursorPoolTest, UnknownKeyGivesTheArrowAndMakesNoEntry)
{
    const QCursor cursor = m_pool.get(6);

    EXPECT_EQ(cursor.shape(), Qt::ArrowCursor);
    EXPECT_EQ(m_pool.size(), 1u);
}

TEST_F(CVqCursorPoolTest, NumberAndTextOfTheResourceComeBack)
{
    QString resource;

    EXPECT_EQ(m_pool.getResource(5, &resource), 77);

    EXPECT_EQ(resource, u":/lasso.png"_s);
}

TEST_F(CVqCursorPoolTest, ResourceMayBeAskedWithoutItsText)
{
    EXPECT_EQ(m_pool.getResource(5, nullptr), 77);
}

TEST_F(CVqCursorPoolTest, ResourceOfAnUnknownKeyIsZeroAndLeavesTheText)
{
    QString resource = u"before"_s;

    EXPECT_EQ(m_pool.getResource(6, &resource), 0);
    EXPECT_EQ(m_pool.getResource(6, nullptr), 0);

    EXPECT_EQ(resource, u"before"_s);
    EXPECT_EQ(m_pool.size(), 1u);
}

TEST_F(CVqCursorPoolTest, SetCursorLeavesTheResource)
{
    m_pool.set(5, QCursor(Qt::CrossCursor));

    EXPECT_EQ(shape_of(m_pool, 5), Qt::CrossCursor);
    EXPECT_EQ(resource_of(m_pool, 5), u":/lasso.png"_s);
    EXPECT_EQ(m_pool.getResource(5, nullptr), 77);
}

TEST_F(CVqCursorPoolTest, SetTextDiscardsTheCursorAndLeavesTheNumber)
{
    m_pool.set(5, u":/wand.png"_s);

    EXPECT_EQ(shape_of(m_pool, 5), QCursor().shape());
    EXPECT_EQ(resource_of(m_pool, 5), u":/wand.png"_s);
    EXPECT_EQ(m_pool.getResource(5, nullptr), 77);
}

TEST_F(CVqCursorPoolTest, SetNumberDiscardsTheCursorAndLeavesTheText)
{
    m_pool.set(5, -3);

    EXPECT_EQ(shape_of(m_pool, 5), QCursor().shape());
    EXPECT_EQ(resource_of(m_pool, 5), u":/lasso.png"_s);
    EXPECT_EQ(m_pool.getResource(5, nullptr), -3);
}

TEST_F(CVqCursorPoolTest, EachSetMakesAnEntryWithDefaults)
{
    m_pool.set(1, u"text"_s);
    m_pool.set(2, 2);
    m_pool.set(3, QCursor(Qt::IBeamCursor));

    EXPECT_EQ(m_pool.size(), 4u);
    EXPECT_EQ(m_pool.getResource(1, nullptr), 0);
    EXPECT_EQ(resource_of(m_pool, 2), QString());
    EXPECT_EQ(resource_of(m_pool, 3), QString());
    EXPECT_EQ(m_pool.getResource(3, nullptr), 0);
}

TEST_F(CVqCursorPoolTest, BareShapeIsTakenForANumber)
{
    m_pool.set(5, Qt::CrossCursor);

    EXPECT_EQ(m_pool.getResource(5, nullptr), int(Qt::CrossCursor));
    EXPECT_EQ(shape_of(m_pool, 5), QCursor().shape());
}

TEST_F(CVqCursorPoolTest, KeysStandInAscendingOrder)
{
    constexpr vq_uint64 largest = std::numeric_limits<vq_uint64>::max();
    m_pool.set(largest, 1);
    m_pool.set(3, 1);

    EXPECT_EQ(m_pool[0], 3u);
    EXPECT_EQ(m_pool[1], 5u);
    EXPECT_EQ(m_pool[2], largest);
}

TEST_F(CVqCursorPoolTest, KeyBehindTheLastIsZeroWhichIsAKeyAsWell)
{
    m_pool.set(0, 1);

    EXPECT_EQ(m_pool[0], 0u);
    EXPECT_EQ(m_pool[m_pool.size()], 0u);
    EXPECT_EQ(m_pool[std::numeric_limits<vq_uint64>::max()], 0u);
}

TEST_F(CVqCursorPoolTest, KeyOfAnEmptyPoolIsZero)
{
    EXPECT_EQ(Pool()[0], 0u);
}

TEST_F(CVqCursorPoolTest, CopyHoldsAllEntriesOnItsOwn)
{
    Pool copy(m_pool);

    m_pool.set(5, QCursor(Qt::CrossCursor));

    EXPECT_EQ(copy.size(), 1u);
    EXPECT_EQ(shape_of(copy, 5), Qt::WaitCursor);
    EXPECT_EQ(resource_of(copy, 5), u":/lasso.png"_s);
    EXPECT_EQ(copy.getResource(5, nullptr), 77);
}

TEST_F(CVqCursorPoolTest, InstanceIsOneAndRegistered)
{
    CVqCursorPool& pool = CVqCursorPool::instance();

    EXPECT_EQ(&CVqCursorPool::instance(), &pool);
    EXPECT_EQ(Pool::Registered(), &pool);
}

TEST_F(CVqCursorPoolTest, InstanceIsTheRegisteredPoolUntilThatDies)
{
    CVqCursorPool* const before = &CVqCursorPool::instance();
    {
        Pool own;
        Pool::Registered() = &own;

        EXPECT_EQ(&CVqCursorPool::instance(), &own);
    }
    EXPECT_EQ(Pool::Registered(), nullptr);
    EXPECT_EQ(&CVqCursorPool::instance(), before);
}

TEST_F(CVqCursorPoolTest, OnlyDerivedClassesMakeAndDestroyPools)
{
    EXPECT_FALSE(std::is_default_constructible_v<CVqCursorPool>);
    EXPECT_FALSE(std::is_destructible_v<CVqCursorPool>);
}

// In a process that has not asked for the pool before.
TEST(CVqCursorPoolInstance, NothingIsRegisteredBeforeTheFirstCall)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");

    EXPECT_EXIT(std::_Exit(Pool::Registered() == nullptr ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(CVqCursorPoolInstance, IsDestroyedAtExitWithTheCursorsInIt)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto leave_a_cursor = [] {
        CVqCursorPool::instance().set(1, QCursor(QPixmap(3, 2), 1, 1));
        std::exit(0);
    };

    EXPECT_EXIT(leave_a_cursor(), testing::ExitedWithCode(0), "");
}

TEST(CVqCursorPoolSlots, OperationsStandInTheirOrder)
{
    using Text = void (CVqCursorPool::*)(vq_uint64, QString);
    using Number = void (CVqCursorPool::*)(vq_uint64, int);
    using Cursor = void (CVqCursorPool::*)(vq_uint64, QCursor);

    EXPECT_EQ(VirtualSlot(&CVqCursorPool::size), 0u);
    EXPECT_EQ(VirtualSlot(&CVqCursorPool::get), 1u);
    EXPECT_EQ(VirtualSlot(&CVqCursorPool::getResource), 2u);
    EXPECT_EQ(VirtualSlot(static_cast<Text>(&CVqCursorPool::set)), 3u);
    EXPECT_EQ(VirtualSlot(static_cast<Number>(&CVqCursorPool::set)), 4u);
    EXPECT_EQ(VirtualSlot(static_cast<Cursor>(&CVqCursorPool::set)), 5u);
    EXPECT_EQ(VirtualSlot(&CVqCursorPool::operator[]), 6u);
}
