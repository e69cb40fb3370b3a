#include "offscreen/OffscreenQuickViewPrivate.h"

#include "tests/offscreen/QmlFolder.h"

#include <QMetaMethod>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

using View = OffscreenQuickView;

TEST(OffscreenQuickViewPrivate, ItsMetaObjectHasOneSlot)
{
    const QMetaObject& meta = OffscreenQuickViewPrivate::staticMetaObject;

    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(),
              "componentStatusChanged(QQmlComponent::Status)");
    EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    EXPECT_EQ(meta.method(meta.methodOffset()).parameterNames(), QByteArrayList{"status"});
}

TEST(OffscreenQuickViewPrivate, ItsFieldsLieInOrder)
{
    View view;
    const OffscreenQuickViewPrivate d(&view, nullptr);

    const std::vector<const void*> fields{&d.engine, &d.component,  &d.rootContext, &d.root,
                                          &d.source, &d.resizeMode, &d.initialSize, &d.q};

    EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), std::less<>()));
}

TEST(OffscreenQuickViewPrivate, ANewOneHasAnEngineAndNothingElse)
{
    View view;

    const OffscreenQuickViewPrivate d(&view, nullptr);

    EXPECT_EQ(d.parent(), nullptr);
    ASSERT_NE(d.engine, nullptr);
    EXPECT_EQ(d.engine->parent(), &view);
    EXPECT_EQ(d.component, nullptr);
    EXPECT_EQ(d.rootContext, nullptr);
    EXPECT_EQ(d.root, nullptr);
    EXPECT_EQ(d.source, QUrl());
    EXPECT_EQ(d.resizeMode, View::SizeViewToRootObject);
    EXPECT_EQ(d.initialSize, QSize());
    EXPECT_EQ(d.q, &view);
}

TEST(OffscreenQuickViewPrivate, AGivenEngineKeepsItsParent)
{
    View view;
    QQmlEngine engine;

    const OffscreenQuickViewPrivate d(&view, &engine);

    EXPECT_EQ(d.engine, &engine);
    EXPECT_EQ(engine.parent(), nullptr);
}

TEST(OffscreenQuickViewPrivate, TheComponentIsItsChildAndTheRootThatOfTheView)
{
    QmlFolder folder;
    View view;
    OffscreenQuickViewPrivate d(&view, nullptr);

    d.setSource(folder.Scene("Item {}"));

    ASSERT_NE(d.component, nullptr);
    EXPECT_EQ(d.component->parent(), &d);
    ASSERT_NE(d.root, nullptr);
    EXPECT_EQ(d.root->QObject::parent(), &view);
}

TEST(OffscreenQuickViewPrivate, AnotherSourceEndsTheComponentAtOnce)
{
    QmlFolder folder;
    View view;
    OffscreenQuickViewPrivate d(&view, nullptr);
    d.setSource(folder.Scene("Item {}"));
    const QPointer<QQmlComponent> former(d.component);

    d.setSource(QUrl());

    EXPECT_EQ(former, nullptr);
    EXPECT_EQ(d.component, nullptr);
    EXPECT_EQ(d.status(), View::Null);
}

TEST(OffscreenQuickViewPrivate, AComponentThatIsTellingItsStatusEndsAfterwards)
{
    QmlFolder folder;
    View view;
    OffscreenQuickViewPrivate d(&view, nullptr);
    QPointer<QQmlComponent> telling;
    QObject::connect(
        &view, &View::statusChanged, &view,
        [&] {
            telling = d.component;
            d.setSource(QUrl());
        },
        Qt::SingleShotConnection);

    d.setSource(folder.Scene("Item { this is none }"));
    const bool was_alive = telling;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_TRUE(was_alive);
    EXPECT_EQ(telling, nullptr);
    EXPECT_EQ(d.component, nullptr);
}

TEST(OffscreenQuickViewPrivate, WithoutItsEngineTheStatusIsAnError)
{
    View view;
    auto engine = std::make_unique<QQmlEngine>();
    const OffscreenQuickViewPrivate d(&view, engine.get());

    engine.reset();

    EXPECT_EQ(d.status(), View::Error);
}

TEST(OffscreenQuickViewPrivate, WithoutItsEngineASourceIsOnlyKept)
{
    QmlFolder folder;
    View view;
    auto engine = std::make_unique<QQmlEngine>();
    OffscreenQuickViewPrivate d(&view, engine.get());
    const QUrl url = folder.Scene("Item {}");

    engine.reset();
    d.setSource(url);

    EXPECT_EQ(d.source, url);
    EXPECT_EQ(d.component, nullptr);
    EXPECT_EQ(d.status(), View::Error);
}

TEST(OffscreenQuickViewPrivate, ARootThatDeletesItselfLeavesNoPointerBehind)
{
    QmlFolder folder;
    View view;
    OffscreenQuickViewPrivate d(&view, nullptr);
    d.setSource(folder.Scene("Item { width: 5; height: 4 }"));

    delete d.root.data();

    EXPECT_EQ(d.root, nullptr);
    EXPECT_EQ(d.status(), View::Error);
    EXPECT_EQ(d.rootSize(), QSize(0, 0));
}

TEST(OffscreenQuickViewPrivate, ARootThatSetsAnotherSourceWhileItIsMadeGivesWay)
{
    QmlFolder folder;
    View view;
    view.rootContext()->setContextProperty(u"view"_s, &view);
    const QUrl second = folder.Write(u"Second.qml"_s, "import QtQuick; Item { width: 7; height: 7 }");

    view.setSource(
        folder.Scene("Item { Component.onCompleted: view.source = Qt.resolvedUrl('Second.qml') }"));

    EXPECT_EQ(view.source(), second);
    EXPECT_EQ(view.status(), View::Ready);
    EXPECT_EQ(view.size(), QSize(7, 7));
    EXPECT_EQ(view.contentItem()->childItems().size(), 1);
}
