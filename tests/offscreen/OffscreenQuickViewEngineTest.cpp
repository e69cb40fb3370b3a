#include "offscreen/OffscreenQuickView.h"
#include "tests/offscreen/QmlFolder.h"

#include <QPointer>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlIncubationController>
#include <QQuickItem>

#include <gmock/gmock.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;

using View = OffscreenQuickView;

namespace {

// The text that the root of shows_given() took from its context.
QString text_of(const View& view)
{
    return view.rootObject()->property("text").toString();
}

QUrl shows_given(QmlFolder& folder)
{
    return folder.Scene("Item { property string text: given }");
}

}

TEST(OffscreenQuickViewEngine, AViewMakesAnEngineOfItsOwn)
{
    const View view;

    ASSERT_NE(view.rootContext(), nullptr);
    EXPECT_EQ(view.rootContext()->engine()->parent(), &view);
}

TEST(OffscreenQuickViewEngine, NullActsAsNoEngine)
{
    const View view(nullptr);

    ASSERT_NE(view.rootContext(), nullptr);
    EXPECT_EQ(view.rootContext()->engine()->parent(), &view);
    EXPECT_EQ(view.status(), View::Null);
}

TEST(OffscreenQuickViewEngine, ABorrowedEngineIsUsedAsItIs)
{
    QmlFolder folder;
    QQmlEngine engine;
    View view(&engine);

    view.setSource(folder.Scene("Item {}"));

    EXPECT_EQ(view.rootContext(), engine.rootContext());
    EXPECT_EQ(qmlEngine(view.rootObject()), &engine);
    EXPECT_EQ(engine.parent(), nullptr);
}

TEST(OffscreenQuickViewEngine, TheEngineOfTheViewGoesWithIt)
{
    auto view = std::make_unique<View>();
    const QPointer<QQmlEngine> engine = view->rootContext()->engine();

    view.reset();

    EXPECT_EQ(engine, nullptr);
}

TEST(OffscreenQuickViewEngine, ABorrowedEngineOutlivesTheView)
{
    QmlFolder folder;
    const QPointer<QQmlEngine> engine = new QQmlEngine;
    {
        View view(engine);
        view.setSource(folder.Scene("Item {}"));
    }

    ASSERT_NE(engine, nullptr);
    View second(engine);
    second.setSource(folder.Scene("Item {}"));
    EXPECT_EQ(second.status(), View::Ready);
    delete engine;
}

TEST(OffscreenQuickViewEngine, ABorrowedEngineThatIsGoneGivesError)
{
    QmlFolder folder;
    auto engine = std::make_unique<QQmlEngine>();
    View view(engine.get());

    engine.reset();
    view.setSource(folder.Scene("Item {}"));

    EXPECT_EQ(view.status(), View::Error);
    EXPECT_EQ(view.rootObject(), nullptr);
    EXPECT_TRUE(view.errors().isEmpty());
    EXPECT_EQ(view.rootContext(), nullptr);
}

TEST(OffscreenQuickViewEngine, TheEngineTakesTheControllerOfTheWindow)
{
    const View view;

    EXPECT_EQ(view.rootContext()->engine()->incubationController(), view.incubationController());
}

TEST(OffscreenQuickViewEngine, ABorrowedEngineWithoutAControllerTakesThatOfTheWindow)
{
    QQmlEngine engine;
    const View view(&engine);

    EXPECT_EQ(engine.incubationController(), view.incubationController());
}

TEST(OffscreenQuickViewEngine, ABorrowedEngineKeepsItsController)
{
    QQmlIncubationController controller;
    QQmlEngine engine;
    engine.setIncubationController(&controller);

    const View view(&engine);

    EXPECT_EQ(engine.incubationController(), &controller);
}

TEST(OffscreenQuickViewEngine, ContextPropertiesReachTheFile)
{
    QmlFolder folder;
    View view;
    view.rootContext()->setContextProperty(u"given"_s, u"from the root context"_s);

    view.setSource(shows_given(folder));

    EXPECT_EQ(text_of(view), u"from the root context"_s);
}

TEST(OffscreenQuickViewEngine, AContextThatWasSetReachesTheFile)
{
    QmlFolder folder;
    QQmlEngine engine;
    QQmlContext context(engine.rootContext());
    context.setContextProperty(u"given"_s, u"from a context of its own"_s);
    View view(&engine);

    view.setRootContext(&context);
    view.setSource(shows_given(folder));

    EXPECT_EQ(view.rootContext(), &context);
    EXPECT_EQ(text_of(view), u"from a context of its own"_s);
    EXPECT_EQ(qmlContext(view.rootObject())->parentContext(), &context);
}

TEST(OffscreenQuickViewEngine, SetRootContextLeavesThePresentRoot)
{
    QmlFolder folder;
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(u"given"_s, u"first"_s);
    QQmlContext context(engine.rootContext());
    context.setContextProperty(u"given"_s, u"second"_s);
    View view(&engine);
    view.setSource(shows_given(folder));
    const QPointer<QQuickItem> root = view.rootObject();

    view.setRootContext(&context);

    EXPECT_EQ(view.rootObject(), root);
    EXPECT_EQ(text_of(view), u"first"_s);
}

TEST(OffscreenQuickViewEngine, NullSetsTheContextBackToThatOfTheEngine)
{
    QmlFolder folder;
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(u"given"_s, u"first"_s);
    QQmlContext context(engine.rootContext());
    context.setContextProperty(u"given"_s, u"second"_s);
    View view(&engine);
    view.setRootContext(&context);

    view.setRootContext(nullptr);
    view.setSource(shows_given(folder));

    EXPECT_EQ(view.rootContext(), engine.rootContext());
    EXPECT_EQ(text_of(view), u"first"_s);
}

TEST(OffscreenQuickViewEngine, AContextThatIsGoneGivesWayToThatOfTheEngine)
{
    QmlFolder folder;
    View view;
    view.rootContext()->setContextProperty(u"given"_s, u"first"_s);
    auto context = std::make_unique<QQmlContext>(view.rootContext());
    view.setRootContext(context.get());

    context.reset();
    view.setSource(shows_given(folder));

    EXPECT_EQ(text_of(view), u"first"_s);
}

TEST(OffscreenQuickViewEngine, TheRootGoesWithTheView)
{
    QmlFolder folder;
    QQmlEngine engine;
    auto view = std::make_unique<View>(&engine);
    view->setSource(folder.Scene("Item {}"));
    const QPointer<QQuickItem> root = view->rootObject();

    view.reset();

    EXPECT_EQ(root, nullptr);
}

TEST(OffscreenQuickViewEngine, TheEngineOfTheViewGoesBeforeItsRoot)
{
    QmlFolder folder;
    auto view = std::make_unique<View>();
    view->setSource(folder.Scene("Item {}"));
    QStringList gone;
    QObject::connect(view->rootContext()->engine(), &QObject::destroyed, [&] { gone << u"engine"_s; });
    QObject::connect(view->rootObject(), &QObject::destroyed, [&] { gone << u"root"_s; });

    view.reset();

    EXPECT_EQ(gone, QStringList({u"engine"_s, u"root"_s}));
}

TEST(OffscreenQuickViewEngine, TheRootHearsOfItsEndOnce)
{
    QmlFolder folder;
    QObject keeper;
    auto view = std::make_unique<View>();
    view->rootContext()->setContextProperty(u"keeper"_s, &keeper);
    view->setSource(folder.Scene("Item { Component.onDestruction: keeper.objectName += 'gone' }"));

    view.reset();

    EXPECT_EQ(keeper.objectName(), u"gone"_s);
}

TEST(OffscreenQuickViewEngine, AViewGoesWithWhatItsRootMade)
{
    QmlFolder folder;
    auto view = std::make_unique<View>();
    view->setSource(folder.Scene("Item {\n"
                                 "Repeater { model: 3; Rectangle { width: 5; height: index } }\n"
                                 "Loader { sourceComponent: Text { text: 'inside' } }\n"
                                 "Timer { running: true; repeat: true; interval: 1 }\n"
                                 "NumberAnimation on opacity { loops: Animation.Infinite; to: 0 } }"));
    const QPointer<QQuickItem> child = view->rootObject()->childItems().first();

    view.reset();

    EXPECT_EQ(child, nullptr);
}

TEST(OffscreenQuickViewEngine, ViewsWithOneEngineHaveRootsOfTheirOwn)
{
    QmlFolder folder;
    QQmlEngine engine;
    View left(&engine);
    View right(&engine);
    const QUrl url = folder.Scene("Item {}");
    left.setSource(url);
    right.setSource(url);
    const QPointer<QQuickItem> right_root = right.rootObject();

    left.setSource(QUrl());

    EXPECT_EQ(left.status(), View::Null);
    EXPECT_NE(right_root, nullptr);
    EXPECT_EQ(right.rootObject(), right_root);
}
