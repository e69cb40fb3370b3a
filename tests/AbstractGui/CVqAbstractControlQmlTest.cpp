#include "AbstractGui/SVqControlStateInfo.h"
#include "AbstractGui/VqControlCodes.h"
#include "tests/AbstractGui/TestControl.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

// A control as QML code uses it.

namespace {

const char bound_object[] = R"(
import QtQml

QtObject {
    id: root

    required property QtObject control
    property string shown: control.type + " " + control.state + " " + control.bitmap + " " + control.label
    property string told

    property Connections watch: Connections {
        target: root.control

        function onTypeChanged() { root.told += "type " }
        function onStateChanged() { root.told += "state " }
        function onBitmapChanged() { root.told += "bitmap " }
        function onLabelChanged() { root.told += "label " }
    }

    function write(name, value) { control[name] = value }
}
)";

class CVqAbstractControlQml : public testing::Test
{
protected:
    CVqAbstractControlQml()
    {
        m_control.FillStates(3);
        QQmlComponent component(&m_engine);
        component.setData(bound_object, QUrl());
        m_object.reset(component.createWithInitialProperties(
            {{u"control"_s, QVariant::fromValue<QObject*>(&m_control)}}));
        EXPECT_TRUE(m_object) << component.errorString().toStdString();
    }

    /// Type, state, image and label as a binding gives them.
    std::string Shown() { return m_object->property("shown").toString().toStdString(); }

    /// The signals that reached QML.
    std::string Told() { return m_object->property("told").toString().toStdString(); }

    void Write(const QString& name, const QVariant& value)
    {
        QMetaObject::invokeMethod(m_object.get(), "write", Q_ARG(QVariant, name), Q_ARG(QVariant, value));
    }

    TestControl m_control;
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_object;
};

}

TEST_F(CVqAbstractControlQml, PropertiesCanBeRead)
{
    EXPECT_EQ(Shown(), "0 0 10 text0");
}

TEST_F(CVqAbstractControlQml, BindingsFollowTheCurrentState)
{
    m_control.setState(2);

    EXPECT_EQ(Shown(), "0 2 12 text2");
    EXPECT_EQ(Told(), "state bitmap label ");
}

TEST_F(CVqAbstractControlQml, BindingsFollowTheCodes)
{
    CVqStringW text(VQ_TEXT("New"));
    int bitmap = 99;

    m_control.Set(vq_control_text, 0, &text);
    m_control.Set(vq_control_bitmap, 0, &bitmap);

    EXPECT_EQ(Shown(), "0 0 99 New");
    EXPECT_EQ(Told(), "label bitmap ");
}

TEST_F(CVqAbstractControlQml, BindingsFollowAWrittenState)
{
    SVqControlStateInfo info{99, VQ_TEXT("New"), nullptr, nullptr};

    m_control.Command(vq_control_write_state, 0, &info);

    EXPECT_EQ(Shown(), "0 0 99 New"); // one expression, so the image's signal brings the label along
    EXPECT_EQ(Told(), "bitmap ");
}

TEST_F(CVqAbstractControlQml, QmlWritesEachProperty)
{
    Write(u"type"_s, 3);
    Write(u"state"_s, 1);
    Write(u"bitmap"_s, 99);
    Write(u"label"_s, u"New"_s);

    EXPECT_EQ(Shown(), "3 1 99 New");
    EXPECT_EQ(m_control.type(), 3);
    EXPECT_EQ(m_control.state(), 1);
    EXPECT_EQ(m_control.State(1).m_bitmap, 99);
    EXPECT_EQ(TestMenu::Plain(m_control.State(1).m_text), "New");
    EXPECT_EQ(Told(), "type state bitmap label bitmap label ");
}

TEST_F(CVqAbstractControlQml, QmlIsNotToldOfTheSameValue)
{
    Write(u"type"_s, 0);
    Write(u"state"_s, 0);
    Write(u"bitmap"_s, 10);
    Write(u"label"_s, u"text0"_s);

    EXPECT_EQ(Told(), "");
}

TEST_F(CVqAbstractControlQml, EnabledAndVisibleAreToldAsAStateThatStays)
{
    m_control.Enable(false);
    m_control.SetControlVisibility(false);

    EXPECT_EQ(Told(), "state state ");
    EXPECT_EQ(Shown(), "0 0 10 text0");
}

TEST_F(CVqAbstractControlQml, AStateThatThereIsNotShowsNothing)
{
    Write(u"state"_s, 1000);
    Write(u"bitmap"_s, 5);
    Write(u"label"_s, u"New"_s);

    EXPECT_EQ(Shown(), "0 1000 -1 ");
    EXPECT_EQ(Told(), "state bitmap label ");
}

TEST_F(CVqAbstractControlQml, ControlOutlivesTheObjectThatUsesIt)
{
    m_object.reset();
    m_engine.collectGarbage();

    m_control.setState(1);

    EXPECT_EQ(m_control.bitmap(), 11);
}

TEST(CVqAbstractControlInQmlContext, BindingsFollowAContextObject)
{
    TestControl control;
    control.FillStates(2);
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(u"control"_s, &control);
    QQmlComponent component(&engine);
    component.setData("import QtQml\nQtObject { property string shown: control.label + control.bitmap }",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    ASSERT_TRUE(object) << component.errorString().toStdString();
    EXPECT_EQ(object->property("shown").toString(), u"text010"_s);

    control.setState(1);

    EXPECT_EQ(object->property("shown").toString(), u"text111"_s);
}
