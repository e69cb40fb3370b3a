#include "qml_module/CVqGuiSupportScript.h"

#include "qml/CVqGuiSupport.h"

#include <QMetaMethod>
#include <QPointer>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Such as "HSLFromRGB(uchar,uchar,uchar)".
QString signature(const QMetaMethod& method)
{
    return QString::fromLatin1(method.methodSignature()).replace(u"vq_uint8"_s, u"uchar"_s);
}

QStringList signatures(const QMetaObject& meta)
{
    QStringList all;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        all << signature(meta.method(index));
    return all;
}

const QStringList g_stand_ins = signatures(CVqGuiSupportScript::staticMetaObject);

}

TEST(CVqGuiSupportScript, GivesHueSaturationAndLightnessInThisOrder)
{
    CVqGuiSupport support;
    CVqGuiSupportScript script(&support);

    EXPECT_EQ(script.HSLFromRGB(255, 255, 0), (QList<double>{1.0F / 6, 1, 0.5}));
}

TEST(CVqGuiSupportScript, GivesHueSaturationAndValueInThisOrder)
{
    CVqGuiSupport support;
    CVqGuiSupportScript script(&support);

    EXPECT_EQ(script.HSVFromRGB(127, 0, 0), (QList<double>{0, 1, 127 / 255.0F}));
}

TEST(CVqGuiSupportScript, LeavesNotANumberAsItIs)
{
    CVqGuiSupport support;
    CVqGuiSupportScript script(&support);

    const QList<double> black = script.HSVFromRGB(0, 0, 0);

    ASSERT_EQ(black.size(), 3);
    EXPECT_TRUE(std::isnan(black[1]));
}

TEST(CVqGuiSupportScript, GivesRedGreenAndBlueInThisOrder)
{
    CVqGuiSupport support;
    CVqGuiSupportScript script(&support);

    EXPECT_EQ(script.RGBFromHSL(1.0F / 12, 1, 0.5F), (QList<int>{255, 128, 0}));
    EXPECT_EQ(script.RGBFromHSV(1.0F / 12, 1, 1), (QList<int>{255, 128, 0}));
}

TEST(CVqGuiSupportScript, StandsInForOperationsOfTheSameNamesAndArguments)
{
    const QStringList operations = signatures(CVqGuiSupport::staticMetaObject);

    for (const QString& stand_in : g_stand_ins)
        EXPECT_TRUE(operations.contains(stand_in)) << stand_in.toStdString();
}

TEST(CVqGuiSupportScript, StandsInForEachOperationThatGivesATuple)
{
    const QMetaObject& meta = CVqGuiSupport::staticMetaObject;

    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        const bool gives_tuple = QByteArrayView(method.typeName()).startsWith("std::tuple");
        EXPECT_EQ(g_stand_ins.contains(signature(method)), gives_tuple)
            << method.methodSignature().toStdString();
    }
}

TEST(CVqGuiSupportScript, GoesWithItsOwner)
{
    auto support = std::make_unique<CVqGuiSupport>();
    const QPointer<CVqGuiSupportScript> script = new CVqGuiSupportScript(support.get());

    support.reset();

    EXPECT_FALSE(script);
}
