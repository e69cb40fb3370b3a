#include "offscreen/OffscreenQuickView.h"
#include "tests/offscreen/QmlFolder.h"
#include "tests/offscreen/StatusLog.h"

#include <QPointer>
#include <QQmlContext>
#include <QQuickItem>

#include <gmock/gmock.h>

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

using View = OffscreenQuickView;

TEST(OffscreenQuickViewErrors, ASyntaxErrorGivesErrorWithItsLine)
{
    QmlFolder folder;
    View view;
    const StatusLog log(view);
    const QUrl url = folder.Scene("Item {\n    width: 5 5\n}");

    view.setSource(url);

    EXPECT_THAT(log.Values(), ElementsAre(View::Error));
    EXPECT_EQ(view.status(), View::Error);
    EXPECT_EQ(view.rootObject(), nullptr);
    EXPECT_EQ(view.source(), url);
    ASSERT_EQ(view.errors().size(), 1);
    EXPECT_EQ(view.errors().first().line(), 3);
    EXPECT_EQ(view.errors().first().url(), url);
}

TEST(OffscreenQuickViewErrors, AMissingFileGivesErrorWithItsAddress)
{
    QmlFolder folder;
    View view;
    const StatusLog log(view);
    QUrl url = folder.Scene("Item {}");
    url.setPath(url.path() + u".missing"_s);

    view.setSource(url);

    EXPECT_THAT(log.Values(), ElementsAre(View::Error));
    ASSERT_EQ(view.errors().size(), 1);
    EXPECT_EQ(view.errors().first().url(), url);
}

TEST(OffscreenQuickViewErrors, AnObjectThatCannotBeMadeGivesErrorWithItsReason)
{
    QmlFolder folder;
    View view;
    const StatusLog log(view);

    view.setSource(folder.Scene("Item { required property int number }"));

    EXPECT_THAT(log.Values(), ElementsAre(View::Error));
    EXPECT_EQ(view.rootObject(), nullptr);
    EXPECT_EQ(view.errors().size(), 1);
}

TEST(OffscreenQuickViewErrors, AGoodSourceHealsAnError)
{
    QmlFolder folder;
    View view;
    view.setSource(folder.Scene("Item {"));

    view.setSource(folder.Scene("Item {}"));

    EXPECT_EQ(view.status(), View::Ready);
    EXPECT_THAT(view.errors(), IsEmpty());
}

TEST(OffscreenQuickViewErrors, AnErrorDropsTheFormerRoot)
{
    QmlFolder folder;
    View view;
    view.setSource(folder.Scene("Item {}"));
    const QPointer<QQuickItem> root = view.rootObject();

    view.setSource(folder.Scene("Item {"));

    EXPECT_EQ(root, nullptr);
    EXPECT_EQ(view.rootObject(), nullptr);
}

struct NoItemRoot
{
    const char* m_name;
    const char* m_text;
};

class OffscreenQuickViewNoItemRoot : public testing::TestWithParam<NoItemRoot>
{ };

TEST_P(OffscreenQuickViewNoItemRoot, GivesErrorWithoutAnEntryInErrors)
{
    QmlFolder folder;
    View view;
    const StatusLog log(view);

    view.setSource(folder.Scene(GetParam().m_text + "{}"_ba));

    EXPECT_THAT(log.Values(), ElementsAre(View::Error));
    EXPECT_EQ(view.status(), View::Error);
    EXPECT_EQ(view.rootObject(), nullptr);
    EXPECT_THAT(view.errors(), IsEmpty());
}

TEST_P(OffscreenQuickViewNoItemRoot, IsDeleted)
{
    QmlFolder folder;
    View view;
    QObject keeper;
    view.rootContext()->setContextProperty(u"keeper"_s, &keeper);

    view.setSource(folder.Scene(GetParam().m_text
                                + "{ Component.onCompleted: keeper.objectName = 'made'\n"
                                  "Component.onDestruction: keeper.objectName += ', gone' }"_ba));

    EXPECT_EQ(keeper.objectName(), u"made, gone"_s);
}

INSTANTIATE_TEST_SUITE_P(Roots, OffscreenQuickViewNoItemRoot,
                         testing::Values(NoItemRoot{"AQtObject", "QtObject"},
                                         NoItemRoot{"AWindow", "Window"}),
                         [](const auto& row) { return row.param.m_name; });
