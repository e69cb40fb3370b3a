#include "offscreen/OffscreenQuickView.h"

#include "tests/offscreen/QmlFolder.h"
#include "tests/offscreen/StatusLog.h"

#include <QPointer>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>

#include <gmock/gmock.h>

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

using View = OffscreenQuickView;

TEST(OffscreenQuickView, ANewViewHasNoSourceAndNothingToTell)
{
    const View view;

    EXPECT_EQ(view.source(), QUrl());
    EXPECT_EQ(view.status(), View::Null);
    EXPECT_EQ(view.rootObject(), nullptr);
    EXPECT_EQ(view.resizeMode(), View::SizeViewToRootObject);
    EXPECT_EQ(view.initialSize(), QSize());
    EXPECT_FALSE(view.initialSize().isValid());
}

TEST(OffscreenQuickView, ErrorsWithoutAComponentAreEmpty)
{
    const View view;

    EXPECT_THAT(view.errors(), IsEmpty());
}

TEST(OffscreenQuickView, ALocalFileIsReadyWhenSetSourceReturns)
{
    QmlFolder folder;
    View view;
    const QUrl url = folder.Scene("Item {}");

    view.setSource(url);

    EXPECT_EQ(view.status(), View::Ready);
    EXPECT_EQ(view.source(), url);
    EXPECT_NE(view.rootObject(), nullptr);
    EXPECT_THAT(view.errors(), IsEmpty());
}

TEST(OffscreenQuickView, AGoodSourceTellsReadyOnce)
{
    QmlFolder folder;
    View view;
    const StatusLog log(view);

    view.setSource(folder.Scene("Item {}"));

    EXPECT_THAT(log.Values(), ElementsAre(View::Ready));
}

TEST(OffscreenQuickView, TheSignalComesWhenTheRootIsInItsPlace)
{
    QmlFolder folder;
    View view;
    QQuickItem* told_root = nullptr;
    View::Status told_status = View::Null;
    QObject::connect(&view, &View::statusChanged, &view, [&] {
        told_root = view.rootObject();
        told_status = view.status();
    });

    view.setSource(folder.Scene("Item {}"));

    EXPECT_NE(told_root, nullptr);
    EXPECT_EQ(told_root, view.rootObject());
    EXPECT_EQ(told_status, View::Ready);
}

TEST(OffscreenQuickView, TheRootIsAChildOfTheViewAndOfItsContentItem)
{
    QmlFolder folder;
    View view;

    view.setSource(folder.Scene("Item {}"));

    EXPECT_EQ(view.rootObject()->parent(), &view);
    EXPECT_EQ(view.rootObject()->parentItem(), view.contentItem());
    EXPECT_EQ(view.rootObject()->window(), &view);
}

TEST(OffscreenQuickView, TheRootIsNamedRootItem)
{
    QmlFolder folder;
    View view;

    view.setSource(folder.Scene("Item { objectName: \"mine\" }"));

    EXPECT_EQ(view.rootObject()->objectName(), u"rootItem"_s);
}

TEST(OffscreenQuickView, EmptyUrlAfterAGoodSourceDropsTheRootWithoutASignal)
{
    QmlFolder folder;
    View view;
    view.setSource(folder.Scene("Item {}"));
    const QPointer<QQuickItem> root = view.rootObject();
    const StatusLog log(view);

    view.setSource(QUrl());

    EXPECT_EQ(root, nullptr);
    EXPECT_EQ(view.rootObject(), nullptr);
    EXPECT_EQ(view.status(), View::Null);
    EXPECT_EQ(view.source(), QUrl());
    EXPECT_THAT(view.errors(), IsEmpty());
    EXPECT_THAT(log.Values(), IsEmpty());
}

TEST(OffscreenQuickView, EmptyUrlOnANewViewDoesNothing)
{
    View view;
    const StatusLog log(view);

    view.setSource(QUrl());

    EXPECT_EQ(view.status(), View::Null);
    EXPECT_THAT(log.Values(), IsEmpty());
}

TEST(OffscreenQuickView, ASecondSetSourceWithTheSameUrlLoadsAgain)
{
    QmlFolder folder;
    View view;
    const QUrl url = folder.Scene("Item { property int number: 1 }");
    view.setSource(url);
    const QPointer<QQuickItem> first = view.rootObject();
    first->setProperty("number", 2);
    const StatusLog log(view);

    view.setSource(url);

    EXPECT_EQ(first, nullptr);
    ASSERT_NE(view.rootObject(), nullptr);
    EXPECT_EQ(view.rootObject()->property("number"), 1);
    EXPECT_THAT(log.Values(), ElementsAre(View::Ready));
}

TEST(OffscreenQuickView, AnotherSourceTakesThePlaceOfTheFirst)
{
    QmlFolder folder;
    View view;
    view.setSource(folder.Scene("Item { property int number: 1 }"));
    const QPointer<QQuickItem> first = view.rootObject();
    const QUrl url = folder.Scene("Item { property int number: 2 }");

    view.setSource(url);

    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(view.source(), url);
    EXPECT_EQ(view.rootObject()->property("number"), 2);
    EXPECT_EQ(view.contentItem()->childItems(), QList<QQuickItem*>{view.rootObject()});
}

TEST(OffscreenQuickView, ASourceSetByPropertyIsLoaded)
{
    QmlFolder folder;
    View view;
    const QUrl url = folder.Scene("Item {}");

    const bool is_set = view.setProperty("source", url);

    EXPECT_TRUE(is_set);
    EXPECT_EQ(view.property("source").toUrl(), url);
    EXPECT_EQ(view.property("status").value<View::Status>(), View::Ready);
}

TEST(OffscreenQuickView, ARootThatDeletesItselfLeavesNoRootObject)
{
    QmlFolder folder;
    View view;
    view.setSource(folder.Scene("Item {}"));

    delete view.rootObject();

    EXPECT_EQ(view.rootObject(), nullptr);
    EXPECT_EQ(view.status(), View::Error);
    EXPECT_EQ(view.sizeHint(), view.size());
}

TEST(OffscreenQuickView, ASourceAfterARootThatDeletedItselfLoads)
{
    QmlFolder folder;
    View view;
    const QUrl url = folder.Scene("Item {}");
    view.setSource(url);
    delete view.rootObject();

    view.setSource(url);

    EXPECT_EQ(view.status(), View::Ready);
    EXPECT_NE(view.rootObject(), nullptr);
}

TEST(OffscreenQuickView, AnErrorMayBeAnsweredWithAnotherSourceInTheSignal)
{
    QmlFolder folder;
    View view;
    const StatusLog log(view);
    const QUrl fallback = folder.Scene("Item {}");
    QObject::connect(&view, &View::statusChanged, &view, [&](View::Status status) {
        if (status == View::Error)
            view.setSource(fallback);
    });

    view.setSource(folder.Scene("Item {"));

    EXPECT_EQ(view.source(), fallback);
    EXPECT_EQ(view.status(), View::Ready);
    EXPECT_THAT(log.Values(), ElementsAre(View::Error, View::Ready));
}

TEST(OffscreenQuickView, ASourceMayBeDroppedInTheSignal)
{
    QmlFolder folder;
    View view;
    QObject::connect(&view, &View::statusChanged, &view, [&] { view.setSource(QUrl()); });

    view.setSource(folder.Scene("Item {}"));

    EXPECT_EQ(view.status(), View::Null);
    EXPECT_EQ(view.rootObject(), nullptr);
}
