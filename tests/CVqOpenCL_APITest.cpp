#include "CVqOpenCL_API.h"

#include <gtest/gtest.h>

#include <memory>

using ptrWrap = CVqOpenCL_API::ptrWrap;

namespace {

class Counted final : public CVqOpenCL_API::IVqObject
{
public:
    explicit Counted(int* deleted) : m_deleted(deleted) { }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() override { ++*m_deleted; }

private:
    int* const m_deleted;
};

}

TEST(CVqOpenCL_API, NewPtrWrapHoldsNull)
{
    const ptrWrap wrap;

    EXPECT_EQ(wrap.m_pObject, nullptr);
}

TEST(CVqOpenCL_API, PtrWrapDeletesThroughTheVirtualDestructor)
{
    int deleted = 0;

    {
        const ptrWrap wrap(new Counted(&deleted));
        EXPECT_EQ(deleted, 0);
    }

    EXPECT_EQ(deleted, 1);
}

TEST(CVqOpenCL_API, AssignmentCopiesThePointer)
{
    int deleted = 0;
    ptrWrap from(new Counted(&deleted));
    ptrWrap to;

    to = from;

    EXPECT_EQ(to.m_pObject, from.m_pObject);
    EXPECT_NE(to.m_pObject, nullptr);
    EXPECT_EQ(deleted, 0);
    from.m_pObject = nullptr;
}

TEST(CVqOpenCL_API, AssignmentDeletesNothing)
{
    int deleted = 0;
    ptrWrap to(new Counted(&deleted));
    const std::unique_ptr<CVqOpenCL_API::IVqObject> held(to.m_pObject);

    to = ptrWrap();

    EXPECT_EQ(to.m_pObject, nullptr);
    EXPECT_EQ(deleted, 0);
}

TEST(CVqOpenCL_API, CopyHoldsTheSamePointer)
{
    int deleted = 0;
    ptrWrap from(new Counted(&deleted));

    {
        const ptrWrap copy(from);
        EXPECT_EQ(copy.m_pObject, from.m_pObject);
        from.m_pObject = nullptr;
    }

    EXPECT_EQ(deleted, 1);
}
