#include "system/VqVariantStorage.h"
#include "tests/AbstractGui/StoredMenus.h"
#include "tests/support/SmallStack.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace {

constexpr int siblings = 100'000;
constexpr int levels = 1'000;

int length_of(const CVqMenuItem* item)
{
    int length = 0;
    for (; item; item = item->nextItem())
        ++length;
    return length;
}

int depth_of(const CVqMenuItem* item)
{
    int depth = 0;
    for (; item; item = item->subItem())
        ++depth;
    return depth;
}

template <class Form>
class LargeStoredMenus : public testing::Test
{
protected:
    /// Saves the menu and loads it into another one, in a thread of 1 MiB stack.
    void save_and_load()
    {
        run_in_small_stack([this] {
            typename Form::Container stored;
            m_menu.Save(stored);
            m_result = m_loaded.Load(stored);
        });
    }

    TestMenu m_menu;
    TestMenu m_loaded;
    int m_result = -1;
};

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(LargeStoredMenus, Forms, FormName);

}

TYPED_TEST(LargeStoredMenus, HundredThousandSiblingsComeBack)
{
    for (int i = 1; i <= siblings; ++i)
        this->m_menu.AppendMenuItem(static_cast<vq_uint32>(i), 0, VQ_TEXT("Item"), VQ_TEXT("command"), 0);

    this->save_and_load();

    EXPECT_EQ(this->m_result, 0);
    EXPECT_EQ(length_of(this->m_loaded.Root()->subItem()), siblings);
}

TYPED_TEST(LargeStoredMenus, HundredThousandLonelyAcceleratorsComeBack)
{
    this->m_menu.AppendSeparator(siblings + 1, 0);
    // Built from its end, since appending walks the whole chain.
    for (vq_uint32 id = siblings; id > 0; --id) {
        CVqMenuItem* item = this->m_menu.Manipulators().create_item_accel(id, VQ_TEXT("command"), nullptr);
        item->setNextItem(this->m_menu.LonelyAccels());
        this->m_menu.LonelyAccels() = item;
        this->m_menu.MainTable().AddAccelKey(id, id & 0x7FFF, static_cast<vq_wchar>(id >> 15), 0);
    }

    this->save_and_load();

    EXPECT_EQ(length_of(this->m_loaded.LonelyAccels()), siblings);
}

TYPED_TEST(LargeStoredMenus, ThousandLevelsOfPopupsComeBackInASmallStack)
{
    for (int i = 1; i <= levels; ++i)
        this->m_menu.AppendPopup(static_cast<vq_uint32>(i), static_cast<vq_uint32>(i - 1), VQ_TEXT("Popup"));

    this->save_and_load();

    EXPECT_EQ(this->m_result, 0);
    EXPECT_EQ(depth_of(this->m_loaded.Root()->subItem()), levels);
}

// A popup takes two levels of the stored form.
TYPED_TEST(LargeStoredMenus, ThousandLevelsOfPopupsComeBackFromBytes)
{
    for (int i = 1; i <= levels; ++i)
        this->m_menu.AppendPopup(static_cast<vq_uint32>(i), static_cast<vq_uint32>(i - 1), VQ_TEXT("Popup"));
    typename TypeParam::Container stored;
    this->m_menu.Save(stored);
    QBuffer bytes;
    bytes.open(QBuffer::ReadWrite);

    ASSERT_EQ(VQ_WriteCbor(bytes, stored), EVqStorageResult::Ok);
    bytes.seek(0);
    ASSERT_EQ(VQ_ReadCbor(bytes, stored), EVqStorageResult::Ok);

    this->m_loaded.Load(stored);
    EXPECT_EQ(depth_of(this->m_loaded.Root()->subItem()), levels);
}
