#include "AbstractGui/VqHiddenStores.h"
#include "tests/loading/CleanUpRecords.h"
#include "tests/loading/LoadedModule.h"
#include "tests/support/ToolOutput.h"

#include <QObject>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <exception>
#include <functional>
#include <list>
#include <memory>
#include <thread>
#include <typeinfo>
#include <unistd.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using ResourceRows = QList<std::pair<QString, QString>>;

template <typename Object>
const Object& object(std::size_t step)
{
    return *static_cast<const Object*>(LoadedModule::instance().m_objects.at(step - 1));
}

std::string type_name(const std::exception& error)
{
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(error).name(), nullptr, nullptr, nullptr), &std::free);
    return name.get();
}

// Registered ahead of the library's clean-ups, so it runs behind them.
void check_reverse_order()
{
    std::vector<void*> expected = CleanUpRecords::Registered(LIBRARY_FILE);
    std::reverse(expected.begin(), expected.end());
    _exit(expected.size() == 12 && CleanUpRecords::Run(LIBRARY_FILE) == expected ? 0 : 1);
}

}

TEST(ModuleLoading, TwelveObjectsComeToLifeInTheirOrder)
{
    const LoadedModule& module = LoadedModule::instance();

    QStringList names;
    for (const void* object : module.m_objects)
        names += module.NameOf(object);

    EXPECT_EQ(names,
              QStringList({u"hidden_menu_commands"_s, u"personal_hidden_buttons"_s,
                           u"system_hidden_buttons"_s, u"hidden_button_observers"_s, u"invalid_arguments"_s,
                           u"legacy_buffer_conversion_exception"_s, u"legacy_processing_exception"_s,
                           u"mkl_exception"_s, u"ipp_exception"_s, u"abort_exception"_s,
                           u"resourcePrefixes"_s, u"registrators"_s}))
        << names.join(u'\n').toStdString();
}

TEST(ModuleLoading, OneSourceAloneHasInitialisers)
{
    const QStringList initialisers = Symbols().filter(u" _GLOBAL__sub_I_"_s);

    EXPECT_THAT(initialisers, SizeIs(1)) << initialisers.join(u'\n').toStdString();
}

TEST(ModuleLoading, StoresOfHiddenNamesAreEmpty)
{
    ASSERT_THAT(LoadedModule::instance().m_objects, SizeIs(12));

    EXPECT_TRUE(object<VqHiddenStore>(1).empty());
    EXPECT_TRUE(object<VqHiddenStore>(2).empty());
    EXPECT_TRUE(object<VqHiddenStore>(3).empty());
    EXPECT_TRUE(object<std::list<SVqToolbarButtonHiddenCallback*>>(4).empty());
}

TEST(ModuleLoading, ExceptionObjectsTellTheirTexts)
{
    ASSERT_THAT(LoadedModule::instance().m_objects, SizeIs(12));

    EXPECT_STREQ(object<std::exception>(5).what(), "invalid arguments");
    EXPECT_STREQ(object<std::exception>(6).what(), "legacy buffer conversion exception");
    EXPECT_STREQ(object<std::exception>(7).what(), "legacy processing exception");
    EXPECT_STREQ(object<std::exception>(8).what(), "MKL exception");
    EXPECT_STREQ(object<std::exception>(9).what(), "IPP exception");
    EXPECT_STREQ(object<std::exception>(10).what(), "abort");
}

TEST(ModuleLoading, ExceptionObjectsHaveTheirTypes)
{
    ASSERT_THAT(LoadedModule::instance().m_objects, SizeIs(12));

    EXPECT_EQ(type_name(object<std::exception>(5)), "Rasterus::InvalidArguments");
    for (const std::size_t step : {6, 7, 8, 9})
        EXPECT_EQ(type_name(object<std::exception>(step)), "std::runtime_error") << step;
    EXPECT_EQ(type_name(object<std::exception>(10)), "Rasterus::AbortException");
}

TEST(ModuleLoading, ResourcePrefixesHaveTheirTwoRows)
{
    ASSERT_THAT(LoadedModule::instance().m_objects, SizeIs(12));

    EXPECT_EQ(object<ResourceRows>(11),
              ResourceRows({{u"/tile_assets/"_s, u"branch9/src/tile_assets/"_s},
                            {u"/arbor_qml_support/"_s, u"branch9/src/arbor_qml_support/Resources/"_s}}));
}

TEST(ModuleLoading, RegistratorListIsEmpty)
{
    ASSERT_THAT(LoadedModule::instance().m_objects, SizeIs(12));

    EXPECT_TRUE(object<std::list<std::function<void()>>>(12).empty());
}

TEST(ModuleLoading, InitWithNoRegistratorReturnsWithoutEffect)
{
    const LoadedModule& module = LoadedModule::instance();
    const auto init = reinterpret_cast<void (*)()>(dlsym(module.m_handle, "_ZN5Quick8Register4InitEv"));
    ASSERT_NE(init, nullptr);
    const int qobjects = CountNewQObjects();

    EXPECT_NO_THROW(init());

    EXPECT_EQ(CountNewQObjects(), qobjects);
}

TEST(ModuleLoading, NoThreadIsStarted)
{
    EXPECT_EQ(LoadedModule::instance().m_new_threads, 0);
}

TEST(ModuleLoading, NothingIsKeptForEachThread)
{
    const QByteArray segments = ToolOutput(QStringLiteral(READELF), {u"-lW"_s, QStringLiteral(LIBRARY_FILE)});

    EXPECT_TRUE(segments.contains(" LOAD "));
    EXPECT_FALSE(segments.contains(" TLS "));
}

TEST(ModuleLoading, LibraryAsksNoFunctionThatRegistersWithQml)
{
    const QStringList registering = Symbols().filter(u"qmlregister"_s, Qt::CaseInsensitive);

    EXPECT_THAT(registering, IsEmpty()) << registering.join(u'\n').toStdString();
}

TEST(ModuleLoading, NoQObjectIsMade)
{
    EXPECT_EQ(LoadedModule::instance().m_new_qobjects, 0);
}

TEST(ModuleLoading, CountsSeeAThreadAndAQObject)
{
    const int threads = CountThreads();
    const int qobjects = CountNewQObjects();
    int seen = 0;

    std::thread([&] { seen = CountThreads(); }).join();
    const QObject object;

    EXPECT_EQ(seen, threads + 1);
    EXPECT_EQ(CountNewQObjects(), qobjects + 1);
}

TEST(ModuleLoading, CleanUpRunsInReverseOrder)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");

    const auto load_and_exit = [] {
        std::atexit(check_reverse_order);
        LoadedModule::instance();
        std::exit(2);
    };

    EXPECT_EXIT(load_and_exit(), testing::ExitedWithCode(0), "");
}

TEST(ModuleLoading, ClosingAndOpeningAgainDoesNoHarm)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");

    const auto close_and_open = [] {
        const bool is_closed = dlclose(LoadedModule::instance().m_handle) == 0;
        const bool is_open = dlopen(LIBRARY_FILE, RTLD_NOW) != nullptr;
        std::exit(is_closed && is_open ? 0 : 1);
    };

    EXPECT_EXIT(close_and_open(), testing::ExitedWithCode(0), "");
}
