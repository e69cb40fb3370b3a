#include "quick_backend/CVqQuickMenu.h"
#include "tests/contract/MenuContract.h"
#include "tests/quick_backend/ShadowRows.h"

namespace {

/// The Qt Quick menu, seen by a view that follows the signals of its rows.
class QuickTraits
{
public:
    CVqAbstractMenu& Menu() { return m_menu; }

    std::string Rows() const
    {
        EXPECT_EQ(m_shadow.Stale(), "");
        return m_shadow.Text();
    }

private:
    CVqQuickMenu m_menu;
    ShadowRows m_shadow{*m_menu.Rows()};
};

}

INSTANTIATE_TYPED_TEST_SUITE_P(QtQuick, MenuContract, QuickTraits);

// Keys belong to an identifier, so what one item of it does to them its namesakes are not told; rows are.
TEST(CVqQuickMenuContract, RepeatedIdentifiersKeepTheRowsToo)
{
    CVqQuickMenu menu;
    const ShadowRows shadow(*menu.Rows());
    RandomMenu random(menu, RandomMenu::Ids::Repeated, 815);

    for (int step = 1; step <= 5'000 && !HasFailure(); ++step) {
        random.Step();
        if (step % 50 == 0) {
            SCOPED_TRACE(step);
            EXPECT_EQ(shadow.Text(), ModelRows(menu));
        }
    }
}
