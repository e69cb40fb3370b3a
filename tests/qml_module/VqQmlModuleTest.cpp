#include "qml_module/VqQmlModule.h"

#include "arbor_qml_support.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQml>

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace {

int type_id(const char* name)
{
    return qmlTypeId("K7.Arbor", 1, 0, name);
}

/// Types are numbered as they are registered.
int next_number()
{
    return qmlRegisterType<QObject>("VqQmlModuleTest", 1, 0, "Counter");
}

void import(const QByteArray& imports)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(imports + "\nQtObject {}", QUrl());
    const std::unique_ptr<QObject> object(component.create());
    EXPECT_TRUE(object) << component.errorString().toStdString();
}

/// Ends a process of its own, since what is registered stays.
[[noreturn]] void exit_with(bool is_good)
{
    std::_Exit(is_good ? 0 : 1);
}

/// How many types `work` registers.
template <typename Work>
int registered_by(Work work)
{
    const int before = next_number();
    work();
    return next_number() - before - 1;
}

class VqQmlModule : public testing::Test
{
protected:
    VqQmlModule() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

}

TEST_F(VqQmlModule, NothingIsRegisteredUntilInit)
{
    EXPECT_EXIT(
        {
            const int by_adding = registered_by(&VQ_AddQmlModule);
            const int by_init = registered_by(&Quick::Register::Init);
            exit_with(by_adding == 0 && by_init >= 4);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(VqQmlModule, InitWithoutItRegistersNothing)
{
    EXPECT_EXIT(exit_with(registered_by(&Quick::Register::Init) == 0), testing::ExitedWithCode(0), "");
}

TEST_F(VqQmlModule, ImportAloneFindsItToo)
{
    EXPECT_EXIT(
        {
            import("import QtQml\nimport K7.Arbor");
            exit_with(type_id("GuiSupport") >= 0);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(VqQmlModule, RegistersEachType)
{
    VQ_AddQmlModule();
    Quick::Register::Init();

    for (const char* name : {"AbstractListModel", "FilePathApi", "GuiSupport", "SortFilterProxyModel"})
        EXPECT_GE(type_id(name), 0) << name;
}

TEST_F(VqQmlModule, SecondInitRegistersNothingMore)
{
    VQ_AddQmlModule();
    Quick::Register::Init();

    VQ_AddQmlModule();

    EXPECT_EQ(registered_by(&Quick::Register::Init), 0);
}

TEST_F(VqQmlModule, ImportAfterInitFindsTheSameSingleton)
{
    VQ_AddQmlModule();
    Quick::Register::Init();
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport K7.Arbor\nQtObject { property QtObject found: GuiSupport }",
                      QUrl());

    const std::unique_ptr<QObject> object(component.create());

    ASSERT_TRUE(object) << component.errorString().toStdString();
    EXPECT_EQ(object->property("found").value<QObject*>(),
              engine.singletonInstance<QObject*>("K7.Arbor", "GuiSupport"));
}

TEST_F(VqQmlModule, EachEngineHasSingletonsOfItsOwn)
{
    VQ_AddQmlModule();
    Quick::Register::Init();
    std::array<QQmlEngine, 2> engines;

    for (const char* name : {"FilePathApi", "GuiSupport"})
        EXPECT_NE(engines[0].singletonInstance<QObject*>("K7.Arbor", name),
                  engines[1].singletonInstance<QObject*>("K7.Arbor", name))
            << name;
}
