#include "DelayedProgressWndBase.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace {

/// Opens what derived classes see.
class Slots : public QmlSupport::CVqDelayedProgressWndBase
{
public:
    static std::size_t OfTheLastOfQObject() { return VirtualSlot(&Slots::disconnectNotify); }
    static std::size_t OfTheClock() { return VirtualSlot(&Slots::currentTimeMs); }
    static std::size_t OfTheChange() { return VirtualSlot(&Slots::positionChanged); }
};

}

TEST(CVqDelayedProgressWndBaseSlots, OperationsKeepTheirsBehindThoseOfQObject)
{
    using Base = QmlSupport::CVqDelayedProgressWndBase;
    const std::size_t last_of_qobject = Slots::OfTheLastOfQObject();

    EXPECT_EQ(VirtualSlot(&Base::GetHandle), last_of_qobject + 1);
    EXPECT_EQ(VirtualSlot(&Base::setTitle), last_of_qobject + 2);
    EXPECT_EQ(VirtualSlot(&Base::setRange), last_of_qobject + 3);
    EXPECT_EQ(VirtualSlot(&Base::setDelay), last_of_qobject + 4);
    EXPECT_EQ(VirtualSlot(&Base::setSuppressOtherWnds), last_of_qobject + 5);
    EXPECT_EQ(VirtualSlot(&Base::setFlags), last_of_qobject + 6);
    EXPECT_EQ(VirtualSlot(&Base::getFlags), last_of_qobject + 7);
    EXPECT_EQ(Slots::OfTheClock(), last_of_qobject + 8);
    EXPECT_EQ(Slots::OfTheChange(), last_of_qobject + 9);
}
