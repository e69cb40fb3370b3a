#include "offscreen/OffscreenQuickView.h"

#include <QMetaEnum>
#include <QMetaMethod>
#include <QQmlComponent>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

const QMetaObject& g_meta = OffscreenQuickView::staticMetaObject;

// Such as "signal statusChanged(Status)".
std::string text_of(const QMetaMethod& method)
{
    const char* kind = method.methodType() == QMetaMethod::Signal ? "signal " : "slot ";
    return kind + method.methodSignature().toStdString();
}

std::vector<std::string> methods()
{
    std::vector<std::string> texts;
    for (int index = g_meta.methodOffset(); index < g_meta.methodCount(); ++index)
        texts.push_back(text_of(g_meta.method(index)));
    return texts;
}

// Such as "QUrl source, read, write" and "..., notify x".
std::string text_of(const QMetaProperty& property)
{
    std::string text = std::string(property.typeName()) + " " + property.name();
    text += property.isReadable() ? ", read" : "";
    text += property.isWritable() ? ", write" : "";
    return property.hasNotifySignal() ? text + ", notify " + property.notifySignal().name().toStdString()
                                      : text;
}

std::vector<std::string> properties()
{
    std::vector<std::string> texts;
    for (int index = g_meta.propertyOffset(); index < g_meta.propertyCount(); ++index)
        texts.push_back(text_of(g_meta.property(index)));
    return texts;
}

// Such as "ResizeMode: SizeViewToRootObject 0, ...".
std::string text_of(const QMetaEnum& values)
{
    std::string text = std::string(values.name()) + ":";
    for (int index = 0; index < values.keyCount(); ++index)
        text += std::string(" ") + values.key(index) + " " + std::to_string(values.value(index));
    return text;
}

std::vector<std::string> enumerations()
{
    std::vector<std::string> texts;
    for (int index = g_meta.enumeratorOffset(); index < g_meta.enumeratorCount(); ++index)
        texts.push_back(text_of(g_meta.enumerator(index)));
    return texts;
}

}

TEST(OffscreenQuickViewMetaObject, HasOneSignalAndOneSlot)
{
    EXPECT_THAT(methods(), ElementsAre("signal statusChanged(Status)", "slot setSource(QUrl)"));
}

TEST(OffscreenQuickViewMetaObject, NamesTheParametersOfSignalAndSlot)
{
    EXPECT_THAT(g_meta.method(g_meta.methodOffset()).parameterNames(), ElementsAre("status"));
    EXPECT_THAT(g_meta.method(g_meta.methodOffset() + 1).parameterNames(), ElementsAre("url"));
}

TEST(OffscreenQuickViewMetaObject, HasThreePropertiesInTheirOrder)
{
    EXPECT_THAT(properties(),
                ElementsAre("OffscreenQuickView::ResizeMode resizeMode, read, write",
                            "OffscreenQuickView::Status status, read, notify statusChanged",
                            "QUrl source, read, write"));
}

TEST(OffscreenQuickViewMetaObject, HasTwoEnumerationsWithTheirValues)
{
    EXPECT_THAT(enumerations(),
                ElementsAre("ResizeMode: SizeViewToRootObject 0 SizeRootObjectToView 1",
                            "Status: Null 0 Ready 1 Loading 2 Error 3"));
}

TEST(OffscreenQuickViewMetaObject, TheEnumerationsAreMetaTypes)
{
    EXPECT_STREQ(QMetaType::fromType<OffscreenQuickView::ResizeMode>().name(),
                 "OffscreenQuickView::ResizeMode");
    EXPECT_STREQ(QMetaType::fromType<OffscreenQuickView::Status>().name(), "OffscreenQuickView::Status");
}

TEST(OffscreenQuickViewMetaObject, StatusHasTheNumbersOfAComponent)
{
    EXPECT_EQ(int(OffscreenQuickView::Null), int(QQmlComponent::Null));
    EXPECT_EQ(int(OffscreenQuickView::Ready), int(QQmlComponent::Ready));
    EXPECT_EQ(int(OffscreenQuickView::Loading), int(QQmlComponent::Loading));
    EXPECT_EQ(int(OffscreenQuickView::Error), int(QQmlComponent::Error));
}

TEST(OffscreenQuickViewMetaObject, DerivesFromTheWindow)
{
    EXPECT_EQ(g_meta.superClass(), &OffscreenQuickWindow::staticMetaObject);
}
