#include "tests/quick_backend/toolbar/CoreBar.h"
#include "tests/quick_backend/toolbar/LooksFixture.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

/// The frame of a button on a toolbar that has looks.
class CVqQuickControlItemTest : public LooksFixture
{
protected:
    CVqQuickControlItemTest() { bar.area().SetLooks(looks.get()); }

    QQuickItem* Look() { return LookOf(button); }
    CVqQuickToolbarArea* AreaOfFrame()
    {
        return qobject_cast<CVqQuickToolbarArea*>(button.Item()->parentItem());
    }

    std::unique_ptr<CVqQuickToolbarLooks> looks = MakeLooks();
    CoreBar bar;
    CVqQuickButton& button = bar.AddButton("open");
};

}

TEST_F(CVqQuickControlItemTest, HasTheLookOfItsKind)
{
    ASSERT_TRUE(Look());
    EXPECT_EQ(Look()->objectName(), u"button"_s);
}

TEST_F(CVqQuickControlItemTest, GivesItsControlToItsLook)
{
    EXPECT_EQ(Look()->property("control").value<CVqQuickControl*>(), &button);
    EXPECT_EQ(Look()->property("shown").toString(), u"open"_s);
}

TEST_F(CVqQuickControlItemTest, LetsItsLookFillIt)
{
    button.SetControlPos({10, 5, 110, 35});
    EXPECT_EQ(Look()->size(), QSizeF(100, 30));

    looks = MakeLooks("other ");
    bar.area().SetLooks(looks.get());

    EXPECT_EQ(Look()->size(), QSizeF(100, 30));
    EXPECT_EQ(Look()->position(), QPointF(0, 0));
}

TEST_F(CVqQuickControlItemTest, HasNoLookOutsideAnArea)
{
    CVqQuickButton loose;
    QQuickItem parent;

    loose.CreateUI(reinterpret_cast<vq_uint64>(&parent));

    EXPECT_FALSE(LookOf(loose));
}

TEST_F(CVqQuickControlItemTest, HasNoLookInAnAreaWithoutLooks)
{
    CoreBar plain;

    EXPECT_FALSE(LookOf(plain.AddButton("save")));
}

TEST_F(CVqQuickControlItemTest, GetsItsLookWhenItComesIntoAnAreaWithLooks)
{
    CVqQuickButton loose;
    loose.CreateUI(0);

    loose.Item()->setParentItem(&bar.area());

    EXPECT_TRUE(LookOf(loose));
}

TEST_F(CVqQuickControlItemTest, KeepsItsLookIntoThePickerAndBack)
{
    bar.AddSized("wide", 300);
    const QQuickItem* frame = button.Item();
    const QPointer<QQuickItem> look(Look());

    bar.Stretch(30);
    EXPECT_EQ(AreaOfFrame(), &bar.popup());
    EXPECT_EQ(button.Item(), frame);
    EXPECT_EQ(Look(), look);
    bar.Stretch(600);

    EXPECT_EQ(AreaOfFrame(), &bar.area());
    EXPECT_EQ(button.Item(), frame);
    EXPECT_EQ(Look(), look);
}

TEST_F(CVqQuickControlItemTest, KeepsItsLookInAnAreaWithoutLooks)
{
    const QPointer<QQuickItem> look(Look());
    CoreBar plain;

    button.Item()->setParentItem(&plain.area());

    EXPECT_TRUE(look);
    button.Item()->setParentItem(&bar.area());
}

TEST_F(CVqQuickControlItemTest, LosesItsLookWithTheLooks)
{
    const QPointer<QQuickItem> look(Look());

    looks.reset();

    EXPECT_FALSE(look);
    EXPECT_TRUE(button.Item());
}

TEST_F(CVqQuickControlItemTest, LosesItsLookInThePickerWithTheLooks)
{
    bar.AddSized("wide", 300);
    bar.Stretch(30);
    const QPointer<QQuickItem> look(Look());

    looks.reset();

    EXPECT_FALSE(look);
    EXPECT_FALSE(bar.popup().Looks());
}

TEST_F(CVqQuickControlItemTest, EndsItsLookWithTheControl)
{
    auto* control = &bar.AddButton("save");
    const QPointer<QQuickItem> look(LookOf(*control));
    bar.toolbar.RemoveControl(*control);

    delete control;

    EXPECT_FALSE(look);
}

TEST_F(CVqQuickControlItemTest, ShowsNothingForALookThatIsNoItem)
{
    const std::unique_ptr<QObject> odd
        = Make("ToolbarLooks { button: Component { QtObject { required property QuickControl control } } }");

    bar.area().SetLooks(qobject_cast<CVqQuickToolbarLooks*>(odd.get()));

    EXPECT_FALSE(Look());
}

TEST_F(CVqQuickControlItemTest, TakesLooksWrittenInCpp)
{
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick\nimport K7.Arbor.QuickBackend\nItem { required property QuickControl control }",
        QUrl());
    CVqQuickToolbarLooks written;
    written.setProperty("button", QVariant::fromValue(&component));

    bar.area().SetLooks(&written);

    EXPECT_TRUE(Look());
    bar.area().SetLooks(nullptr);
}

TEST_F(CVqQuickControlItemTest, LivesOnWhenItsLookIsDeletedByOthers)
{
    delete Look();

    button.SetControlPos({0, 0, 50, 50});

    EXPECT_EQ(button.Item()->size(), QSizeF(50, 50));
}
