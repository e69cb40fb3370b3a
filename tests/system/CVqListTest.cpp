#include "system/CVqList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <vector>

namespace {

std::vector<void*> data_of(const CVqList& list)
{
    std::vector<void*> data;
    for (auto* node = list.GetFirst(); node; node = node->GetNext())
        data.push_back(list.GetData(node));
    return data;
}

}

class CVqListTest : public testing::Test
{
protected:
    int m_a = 0, m_b = 0, m_c = 0;
    CVqList m_list{EVqKeyType::Pointer};
};

TEST_F(CVqListTest, ANewListHasNoEnds)
{
    EXPECT_EQ(m_list.GetFirst(), nullptr);
    EXPECT_EQ(m_list.GetLast(), nullptr);
}

TEST_F(CVqListTest, AppendAddsAtTheEndAndReturnsTheNode)
{
    auto* first = m_list.Append(&m_a);
    auto* second = m_list.Append(&m_b);

    EXPECT_EQ(m_list.GetFirst(), first);
    EXPECT_EQ(m_list.GetLast(), second);
    EXPECT_EQ(first->GetNext(), second);
    EXPECT_EQ(second->GetNext(), nullptr);
    EXPECT_EQ(m_list.GetData(second), &m_b);
}

TEST_F(CVqListTest, InsertAddsImmediatelyBefore)
{
    auto* a = m_list.Append(&m_a);
    m_list.Append(&m_b);

    auto* front = m_list.Insert(a, &m_c);
    m_list.Insert(m_list.GetLast(), nullptr);

    EXPECT_EQ(m_list.GetFirst(), front);
    EXPECT_EQ(data_of(m_list), (std::vector<void*>{&m_c, &m_a, nullptr, &m_b}));
}

TEST_F(CVqListTest, InsertBeforeNothingIsRefused)
{
    m_list.Append(&m_a);

    EXPECT_EQ(m_list.Insert(nullptr, &m_b), nullptr);
    EXPECT_EQ(data_of(m_list), (std::vector<void*>{&m_a}));
}

TEST_F(CVqListTest, FindGivesTheFirstNodeOfEqualData)
{
    auto* first = m_list.Append(&m_a);
    m_list.Append(&m_a);

    EXPECT_EQ(m_list.Find(&m_a), first);
    EXPECT_EQ(m_list.Find(&m_b), nullptr);
}

TEST_F(CVqListTest, GetDataOfNothingIsNull)
{
    EXPECT_EQ(m_list.GetData(nullptr), nullptr);
}

TEST_F(CVqListTest, DeleteNodeUnlinksAtEachPlace)
{
    auto* a = m_list.Append(&m_a);
    auto* b = m_list.Append(&m_b);
    auto* c = m_list.Append(&m_c);

    EXPECT_TRUE(m_list.DeleteNode(b));
    EXPECT_EQ(data_of(m_list), (std::vector<void*>{&m_a, &m_c}));
    EXPECT_TRUE(m_list.DeleteNode(a));
    EXPECT_EQ(m_list.GetFirst(), c);
    EXPECT_TRUE(m_list.DeleteNode(c));
    EXPECT_EQ(m_list.GetFirst(), nullptr);
    EXPECT_EQ(m_list.GetLast(), nullptr);
}

TEST_F(CVqListTest, NodesOfAnotherListAreRefused)
{
    CVqList other;
    auto* foreign = other.Append(&m_a);
    m_list.Append(&m_b);

    EXPECT_FALSE(m_list.DeleteNode(nullptr));
    EXPECT_FALSE(m_list.DeleteNode(foreign));
    EXPECT_EQ(m_list.Insert(foreign, &m_c), nullptr);
    EXPECT_EQ(data_of(other), (std::vector<void*>{&m_a}));
    EXPECT_EQ(data_of(m_list), (std::vector<void*>{&m_b}));
}

TEST_F(CVqListTest, RandomOperationsMatchAVector)
{
    std::mt19937 random(20240607);
    std::vector<int> values(4000);
    std::vector<void*> model;
    for (int& value : values) {
        const std::size_t at = model.empty() ? 0 : random() % (model.size() + 1);
        auto* node = m_list.GetFirst();
        for (std::size_t i = 0; i < at && node; ++i)
            node = node->GetNext();
        if (random() % 3 == 0 && node) {
            m_list.DeleteNode(node);
            model.erase(model.begin() + static_cast<std::ptrdiff_t>(at));
        } else {
            node ? m_list.Insert(node, &value) : m_list.Append(&value);
            model.insert(model.begin() + static_cast<std::ptrdiff_t>(at), &value);
        }
    }

    EXPECT_EQ(data_of(m_list), model);
    EXPECT_EQ(m_list.GetData(m_list.GetLast()), model.back());
}

TEST_F(CVqListTest, AMillionNodesGoWithoutRecursion)
{
    CVqList list;
    for (int i = 0; i < 1'000'000; ++i)
        list.Append(&m_a);

    EXPECT_NE(list.GetLast(), nullptr);
}
