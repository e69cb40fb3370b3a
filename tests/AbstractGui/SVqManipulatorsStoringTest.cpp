#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/AbstractGui/StoredMenus.h"

#include <gtest/gtest.h>

#include <string>

// What the record passes of both forms do alike and what is not about a single record; records are tested
// with SVqMenuRecord, the differences of the forms with SVqManipulatorsLite and SVqManipulatorsVariant.

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

/// Gives a code for one popup, and notes how texts are split.
class NotingTools final : public Manipulators
{
public:
    int save_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item, CVqLiteVariantW& out) override
    {
        return result_for(item, Manipulators::save_to_variant(accelerators, item, out));
    }

    int save_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item, CVqVariant& out) override
    {
        return result_for(item, Manipulators::save_to_variant(accelerators, item, out));
    }

    const vq_wchar* handle_mnemonics_and_split(vq_wchar* destination, const vq_wchar* source,
                                               vq_wchar mnemonic, const vq_wchar* delimiters) override
    {
        m_delimiters = TestMenu::Plain(delimiters);
        return Manipulators::handle_mnemonics_and_split(destination, source, mnemonic, delimiters);
    }

    std::string m_delimiters;

private:
    static int result_for(const CVqMenuItem* item, int result)
    {
        return item && item->id() == 6 ? 77 : result;
    }
};

template <class Form>
class SVqManipulatorsStoring : public testing::Test
{
protected:
    int save(CVqMenuItem& first)
    {
        int result = 0;
        Form::Filled([&](auto& out) { result = m_tools.save_to_variant(nullptr, &first, out); });
        return result;
    }

    NotingTools m_tools;
    CVqMenuItem m_item;
};

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(SVqManipulatorsStoring, Forms, FormName);

}

TYPED_TEST(SVqManipulatorsStoring, ResultIsThatOfTheLastItemsSubItems)
{
    CVqMenuItem last;
    CVqMenuItem child;
    child.setId(6);
    this->m_item.setSubItem(&child);
    this->m_item.setNextItem(&last);

    EXPECT_EQ(this->save(this->m_item), 0);
    last.setSubItem(&child);
    EXPECT_EQ(this->save(this->m_item), 77);
}

TYPED_TEST(SVqManipulatorsStoring, TextIsSplitAtBellThenTab)
{
    this->save(this->m_item);

    EXPECT_EQ(this->m_tools.m_delimiters, "|>");
}
