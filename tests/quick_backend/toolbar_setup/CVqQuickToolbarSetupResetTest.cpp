#include "tests/quick_backend/toolbar_setup/SetupBars.h"

using testing::ElementsAre;
using namespace Qt::StringLiterals;

namespace {

class CVqQuickToolbarSetupReset : public SetupSession
{ };

}

TEST_F(CVqQuickToolbarSetupReset, ResetPutsTheFactoryStateBackAndShowsAll)
{
    setup->setShown(Named(first, "open"), false);
    setup->move(Named(first, "undo"), &second, nullptr);
    setup->addCommand(u"Paste"_s, &first, nullptr);
    setup->remove(Named(first, "save"));
    setup->move(Named(first, "zoom"), &second, nullptr);

    setup->reset();
    Settle();

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_EQ(Order(second), "cut copy");
    EXPECT_EQ(Named(first, "zoom")->GetKind(), CVqQuickControl::General);
}

TEST_F(CVqQuickToolbarSetupReset, ResetIsUndoneByCancel)
{
    setup->move(Named(first, "undo"), &second, nullptr);
    setup->setShown(Named(first, "open"), false);
    setup->remove(Named(second, "cut"));
    setup->accept();
    Settle();
    const std::string before = Everything();
    setup->begin();

    setup->reset();
    Settle();
    ASSERT_NE(Everything(), before);
    setup->cancel();
    Settle();

    EXPECT_EQ(Everything(), before);
}

TEST_F(CVqQuickToolbarSetupReset, TheApplicationHearsOfEachRebuiltBar)
{
    std::vector<CVqQuickButtonToolbar*> rebuilt;
    setup->SetRebuiltFunction([&rebuilt](CVqQuickButtonToolbar& bar) { rebuilt.push_back(&bar); });

    setup->reset();

    EXPECT_THAT(rebuilt, ElementsAre(&first, &second));
}

TEST_F(CVqQuickToolbarSetupReset, OutsideOfASessionThereIsNoReset)
{
    setup->remove(Named(first, "undo"));
    setup->accept();

    setup->reset();

    EXPECT_EQ(Order(first), "open save - zoom");
}
