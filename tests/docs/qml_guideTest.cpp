#include "docs/snippets/qml_guide.h"

#include "docs/snippets/qml_guide/Layers.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class QmlGuide : public testing::Test
{
protected:
    QmlGuide() { prepare_qml(); }

    std::unique_ptr<QObject> Make(const QString& name, const QVariantMap& properties = {})
    {
        QQmlComponent component(&m_engine, u"ArborGuide"_s, name);
        std::unique_ptr<QObject> object(component.createWithInitialProperties(properties));
        EXPECT_TRUE(object) << component.errorString().toStdString();
        return object;
    }

    QQmlEngine m_engine;
};

}

TEST_F(QmlGuide, TheSwatchTellsItsColour)
{
    const auto swatch = Make(u"ColourName"_s);

    EXPECT_EQ(swatch->property("text").toString(), u"#2f67a8"_s);
}

TEST_F(QmlGuide, TheSwatchDarkensItsColour)
{
    const auto swatch = Make(u"ColourName"_s, {{u"argb"_s, 0xff306080}});

    QMetaObject::invokeMethod(swatch.get(), "darken");

    EXPECT_EQ(swatch->property("text").toString(), u"#183040"_s);
    EXPECT_EQ(swatch->property("color").value<QColor>().name(), u"#183040"_s);
}

TEST_F(QmlGuide, TheMiddleOfTheSliderIsFiftyPixels)
{
    const auto slider = Make(u"BrushSlider"_s, {{u"position"_s, 0.5}});

    EXPECT_NEAR(slider->property("width500").toDouble(), 50, 1e-9);
}

TEST_F(QmlGuide, TheFieldTakesNumbersOnly)
{
    const auto field = Make(u"NumberInput"_s);

    field->setProperty("text", u"-12"_s);
    EXPECT_TRUE(field->property("acceptableInput").toBool());
    EXPECT_EQ(field->property("number"), -12);
    field->setProperty("text", u"12 px"_s);
    EXPECT_FALSE(field->property("acceptableInput").toBool());
}

TEST_F(QmlGuide, TheFolderIsToldWithWhetherItIsWritable)
{
    const auto text = Make(u"ExportFolder"_s, {{u"folder"_s, QString::fromStdString(testing::TempDir())}});

    EXPECT_TRUE(text->property("writable").toBool());
}

TEST_F(QmlGuide, TheListShowsTheLayersThatAreSearchedFor)
{
    Layers layers;
    layers.Update(QVariantList{QVariantMap{{u"name"_s, u"sky"_s}}, QVariantMap{{u"name"_s, u"sea"_s}},
                               QVariantMap{{u"name"_s, u"hill"_s}}});
    const auto view
        = Make(u"LayerView"_s, {{u"layers"_s, QVariant::fromValue(&layers)}, {u"search"_s, u"s"_s}});

    auto* model = view->property("model").value<QAbstractItemModel*>();

    ASSERT_TRUE(model);
    ASSERT_EQ(model->rowCount(), 2);
    EXPECT_EQ(model->index(0, 0).data(Qt::UserRole + 1), u"sea"_s);
    EXPECT_EQ(model->index(1, 0).data(Qt::UserRole + 1), u"sky"_s);
}
