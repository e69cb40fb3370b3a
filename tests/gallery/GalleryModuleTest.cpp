#include "gallery/GalleryModule.h"

#include "tests/gallery/QmlTypes.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQml>

#include <gtest/gtest.h>

namespace {

int session_type()
{
    return qmlTypeId("K7.Arbor.Gallery", 1, 0, "Session");
}

/// Types are numbered as they are registered.
int next_number()
{
    return qmlRegisterType<QObject>("GalleryModuleTest", 1, 0, "Counter");
}

void import(const QByteArray& imports)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(imports + "\nQtObject {}", QUrl());
    const std::unique_ptr<QObject> object(component.create());
    EXPECT_TRUE(object) << component.errorString().toStdString();
}

}

// In a process of its own, since what is registered stays.
TEST(GalleryModule, NothingIsRegisteredUntilInit)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");

    EXPECT_EXIT(
        {
            Gallery::AddRegistrators();
            const bool before = session_type() >= 0;
            Quick::Register::Init();
            std::_Exit(!before && session_type() >= 0 ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST(GalleryModule, AnImportDoesNotRegisterTheTypesAgain)
{
    RegisterQmlTypes();
    import("import QtQml\nimport QtQuick\nimport K7.Arbor.QuickBackend");
    const int before = next_number();

    import("import QtQml\nimport K7.Arbor.Gallery");

    EXPECT_EQ(next_number(), before + 1);
}
