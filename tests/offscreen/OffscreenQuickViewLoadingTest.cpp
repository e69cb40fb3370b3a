#include "offscreen/OffscreenQuickView.h"
#include "tests/offscreen/QmlFolder.h"
#include "tests/offscreen/SlowServer.h"
#include "tests/offscreen/StatusLog.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>

#include <gmock/gmock.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

using View = OffscreenQuickView;

/// An address that is not there at once.
class OffscreenQuickViewLoading : public testing::Test
{
protected:
    OffscreenQuickViewLoading() { m_engine.setNetworkAccessManagerFactory(&m_server); }

    // Answers, and lets the view hear it.
    void Arrive()
    {
        m_server.Release();
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_view->status() != View::Loading; }, 20'000));
    }

    SlowServer m_server;
    QQmlEngine m_engine;
    std::unique_ptr<View> m_view = std::make_unique<View>(&m_engine);
    QUrl m_good = m_server.Add(u"good.qml"_s, "import QtQuick\nItem { width: 30; height: 20 }");
    QUrl m_bad = m_server.Add(u"bad.qml"_s, "import QtQuick\nItem { width: }");
    QUrl m_no_item = m_server.Add(u"no_item.qml"_s, "import QtQml\nQtObject {}");
    QUrl m_missing = m_good.resolved(QUrl(u"missing.qml"_s));
};

TEST_F(OffscreenQuickViewLoading, IsToldAtOnceWithoutARoot)
{
    const StatusLog log(*m_view);

    m_view->setSource(m_good);

    EXPECT_THAT(log.Values(), ElementsAre(View::Loading));
    EXPECT_EQ(m_view->status(), View::Loading);
    EXPECT_EQ(m_view->source(), m_good);
    EXPECT_EQ(m_view->rootObject(), nullptr);
    EXPECT_THAT(m_view->errors(), IsEmpty());
}

TEST_F(OffscreenQuickViewLoading, EndsInReadyWithTheRootInItsPlace)
{
    const StatusLog log(*m_view);
    m_view->setSource(m_good);

    Arrive();

    EXPECT_THAT(log.Values(), ElementsAre(View::Loading, View::Ready));
    ASSERT_NE(m_view->rootObject(), nullptr);
    EXPECT_EQ(m_view->rootObject()->parentItem(), m_view->contentItem());
    EXPECT_EQ(m_view->size(), QSize(30, 20));
}

TEST_F(OffscreenQuickViewLoading, EndsInErrorForABadFile)
{
    const StatusLog log(*m_view);
    m_view->setSource(m_bad);

    Arrive();

    EXPECT_THAT(log.Values(), ElementsAre(View::Loading, View::Error));
    ASSERT_EQ(m_view->errors().size(), 1);
    EXPECT_EQ(m_view->errors().first().line(), 2);
}

TEST_F(OffscreenQuickViewLoading, EndsInErrorForAMissingFile)
{
    const StatusLog log(*m_view);
    m_view->setSource(m_missing);

    Arrive();

    EXPECT_THAT(log.Values(), ElementsAre(View::Loading, View::Error));
    ASSERT_EQ(m_view->errors().size(), 1);
    EXPECT_EQ(m_view->errors().first().url(), m_missing);
}

TEST_F(OffscreenQuickViewLoading, EndsInErrorForARootThatIsNoItem)
{
    const StatusLog log(*m_view);
    m_view->setSource(m_no_item);

    Arrive();

    EXPECT_THAT(log.Values(), ElementsAre(View::Loading, View::Error));
    EXPECT_EQ(m_view->rootObject(), nullptr);
    EXPECT_THAT(m_view->errors(), IsEmpty());
}

TEST_F(OffscreenQuickViewLoading, DropsTheFormerRootAtOnce)
{
    QmlFolder folder;
    m_view->setSource(folder.Scene("Item {}"));

    m_view->setSource(m_good);

    EXPECT_EQ(m_view->rootObject(), nullptr);
    EXPECT_THAT(m_view->contentItem()->childItems(), IsEmpty());
}

TEST_F(OffscreenQuickViewLoading, IsForgottenByAnotherSource)
{
    QmlFolder folder;
    m_view->setSource(m_good);
    const QUrl local = folder.Scene("Item { property int number: 7 }");
    const StatusLog log(*m_view);

    m_view->setSource(local);
    Arrive();
    QCoreApplication::processEvents();

    EXPECT_THAT(log.Values(), ElementsAre(View::Ready));
    EXPECT_EQ(m_view->source(), local);
    EXPECT_EQ(m_view->rootObject()->property("number"), 7);
}

TEST_F(OffscreenQuickViewLoading, IsForgottenByAnEmptySourceWithoutASignal)
{
    m_view->setSource(m_good);
    const StatusLog log(*m_view);

    m_view->setSource(QUrl());
    Arrive();
    QCoreApplication::processEvents();

    EXPECT_EQ(m_view->status(), View::Null);
    EXPECT_THAT(log.Values(), IsEmpty());
}

TEST_F(OffscreenQuickViewLoading, UsesTheContextThatIsSetWhenTheFileArrives)
{
    QQmlContext context(m_engine.rootContext());
    context.setContextProperty(u"given"_s, 5);
    m_view->setSource(m_server.Add(u"given.qml"_s, "import QtQuick\nItem { width: given }"));

    m_view->setRootContext(&context);
    Arrive();

    EXPECT_EQ(m_view->rootObject()->width(), 5);
}

TEST_F(OffscreenQuickViewLoading, MayBeCutShortByTheEndOfTheView)
{
    m_view->setSource(m_good);

    m_view.reset();
    m_server.Release();
    QCoreApplication::processEvents();

    View other(&m_engine);
    other.setSource(m_good);
    EXPECT_TRUE(QTest::qWaitFor([&] { return other.status() == View::Ready; }, 20'000));
}
