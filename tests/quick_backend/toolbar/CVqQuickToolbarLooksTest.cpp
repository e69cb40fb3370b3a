#include "quick_backend/toolbar/CVqQuickButton.h"
#include "tests/quick_backend/toolbar/LooksFixture.h"

using namespace Qt::StringLiterals;

namespace {

class CVqQuickToolbarLooksTest : public LooksFixture
{
protected:
    /// The object name of what the component for `kind` makes.
    static QString Made(const CVqQuickToolbarLooks& looks, CVqQuickControl::Kind kind)
    {
        CVqQuickButton control;
        const std::unique_ptr<QObject> made(looks.Of(kind)->createWithInitialProperties(
            {{u"control"_s, QVariant::fromValue<CVqQuickControl*>(&control)}}));
        return made->objectName();
    }
};

}

TEST_F(CVqQuickToolbarLooksTest, HasNoComponentsAtFirst)
{
    const CVqQuickToolbarLooks looks;

    for (const auto kind : {CVqQuickControl::Button, CVqQuickControl::TextButton, CVqQuickControl::Separator,
                            CVqQuickControl::Picker, CVqQuickControl::General})
        EXPECT_EQ(looks.Of(kind), nullptr) << kind;
}

TEST_F(CVqQuickToolbarLooksTest, HasAComponentForEachKind)
{
    const std::unique_ptr<CVqQuickToolbarLooks> looks = MakeLooks();

    EXPECT_EQ(Made(*looks, CVqQuickControl::Button), u"button"_s);
    EXPECT_EQ(Made(*looks, CVqQuickControl::TextButton), u"text"_s);
    EXPECT_EQ(Made(*looks, CVqQuickControl::Separator), u"separator"_s);
    EXPECT_EQ(Made(*looks, CVqQuickControl::Picker), u"picker"_s);
    EXPECT_EQ(Made(*looks, CVqQuickControl::General), u"general"_s);
}

TEST_F(CVqQuickToolbarLooksTest, HasNoComponentForAKindThatThereIsNot)
{
    EXPECT_EQ(MakeLooks()->Of(CVqQuickControl::Kind(17)), nullptr);
}
