#include "system/VqVariantStorage.h"
#include "tests/AbstractGui/RandomStoredMenu.h"
#include "tests/AbstractGui/StoredMenuLoss.h"
#include "tests/AbstractGui/StoredMenus.h"
#include "tests/AbstractGui/TestBitmapPool.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Random menus go through either form, in memory and through files of both kinds, and come back.

namespace {

constexpr unsigned menus = 500;

struct InMemory
{
    static constexpr const char* name = "InMemory";

    template <class Container>
    static Container Carried(Container container)
    {
        return container;
    }
};

/// Writes to a file and reads it back.
template <class Write, class Read>
auto carried_by_file(Write write, Read read)
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    EXPECT_EQ(write(file), EVqStorageResult::Ok);
    EXPECT_TRUE(file.seek(0));
    return read(file);
}

struct ThroughCbor
{
    static constexpr const char* name = "ThroughCbor";

    template <class Container>
    static Container Carried(const Container& container)
    {
        return carried_by_file([&](QIODevice& file) { return VQ_WriteCbor(file, container); },
                               [](QIODevice& file) {
                                   Container read;
                                   EXPECT_EQ(VQ_ReadCbor(file, read), EVqStorageResult::Ok);
                                   return read;
                               });
    }
};

struct ThroughJson
{
    static constexpr const char* name = "ThroughJson";

    template <class Container>
    static Container Carried(const Container& container)
    {
        return carried_by_file([&](QIODevice& file) { return VQ_WriteJson(file, container); },
                               [](QIODevice& file) {
                                   Container read;
                                   EXPECT_EQ(VQ_ReadJson(file, read), EVqStorageResult::Ok);
                                   return read;
                               });
    }
};

template <class TheForm, class TheCarrier>
struct Route
{
    using Form = TheForm;
    using Carrier = TheCarrier;
};

struct RouteName
{
    template <class TheRoute>
    static std::string GetName(int)
    {
        return std::string(TheRoute::Form::name) + TheRoute::Carrier::name;
    }
};

CVqStringW image_file(int index)
{
    return CVqStringW(VQ_TEXT("arbor-none-")).AddInt(index).AddString(VQ_TEXT(".png"));
}

// The images lie in one folder, the module in another.
TestBitmapPool& use_images()
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/arbor-none/bin/app.so"));
    for (int index = 0; index <= RandomStoredMenu::images; ++index)
        pool.SetSource(vq_uint32(index), CVqStringW(VQ_TEXT("/arbor-none/img/")) + image_file(index),
                       VQ_TEXT("res"));
    return pool;
}

/// The folder that stands before the file's name when it is handed to the pool.
template <class Form>
std::string image_folder();

template <>
std::string image_folder<LiteForm>()
{
    return "/arbor-none/img/";
}

template <>
std::string image_folder<TreeForm>()
{
    return "/arbor-none/bin"; // that of the module, without a separator
}

template <class Form>
std::vector<std::string> added_images(const std::vector<int>& images)
{
    std::vector<std::string> calls;
    int next = 100;
    for (const int index : images)
        calls.push_back("AddImage " + image_folder<Form>() + TestMenu::Plain(image_file(index))
                        + ", res, null = " + std::to_string(next++));
    return calls;
}

template <class TheRoute>
class StoredMenuRoundTrip : public testing::Test
{
protected:
    using Form = typename TheRoute::Form;

    static auto stored(TestMenu& menu)
    {
        typename Form::Container container;
        menu.Save(container);
        return TheRoute::Carrier::Carried(container);
    }
};

using Routes
    = testing::Types<Route<LiteForm, InMemory>, Route<LiteForm, ThroughCbor>, Route<LiteForm, ThroughJson>,
                     Route<TreeForm, InMemory>, Route<TreeForm, ThroughCbor>, Route<TreeForm, ThroughJson>>;
TYPED_TEST_SUITE(StoredMenuRoundTrip, Routes, RouteName);

}

TYPED_TEST(StoredMenuRoundTrip, RandomMenusComeBackAsTold)
{
    for (unsigned seed = 0; seed < menus; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestBitmapPool& pool = use_images();
        RandomStoredMenu source(seed);
        auto container = this->stored(source.Menu());
        TestMenu menu(TestMenu::BackEnd::None);

        menu.Load(container);

        const StoredMenuExpectation expected(source.Menu());
        ASSERT_EQ(LoadedMenu(menu).Lines(), expected.Lines());
        std::vector<std::string> calls = pool.TakeCalls();
        std::erase_if(calls, [](const std::string& call) { return !call.starts_with("AddImage"); });
        ASSERT_EQ(calls, added_images<typename TypeParam::Form>(expected.Images()));
    }
}

TYPED_TEST(StoredMenuRoundTrip, WhatWasLoadedIsSavedAlike)
{
    using Form = typename TypeParam::Form;
    for (unsigned seed = 0; seed < menus; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestBitmapPool::Fresh(); // without sources, so that images play no part
        RandomStoredMenu source(seed);
        TestMenu menu(TestMenu::BackEnd::None);
        auto once = this->stored(source.Menu());
        menu.Load(once);
        auto first = this->stored(menu);
        menu.Load(first);

        const auto second = this->stored(menu);

        ASSERT_EQ(Form::Show(second), Form::Show(first));
    }
}

TEST(StoredMenuForms, BothHoldTheSameFields)
{
    for (unsigned seed = 0; seed < menus; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestBitmapPool& pool = TestBitmapPool::Fresh();
        pool.SetModule(VQ_TEXT("/arbor-none/app.so"));
        for (int index = 0; index <= RandomStoredMenu::images; ++index)
            pool.SetSource(vq_uint32(index), image_file(index), VQ_TEXT("res"));
        RandomStoredMenu source(seed);
        CVqLiteVariantR lite;
        CVqVariant tree;

        source.Menu().Save(lite);
        source.Menu().Save(tree);

        ASSERT_EQ(LiteForm::Show(lite), "CVqMenu(" + TreeForm::Show(tree) + ")");
    }
}
