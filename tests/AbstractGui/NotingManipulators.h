#pragma once

#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/support/TestMenu.h"

#include <string>
#include <vector>

/// Tools of a menu that do as all do, note what storing and loading ask of them, and give a code of their
/// own.
class NotingManipulators final : public CVqAbstractMenu::SVqManipulators
{
    using Base = CVqAbstractMenu::SVqManipulators;

public:
    static constexpr int code = -77;

    void destroy_all(IVqMenuBase* base, CVqMenuItem* item) override
    {
        m_calls.emplace_back("destroy_all");
        Base::destroy_all(base, item);
    }

    void free_all(CVqMenuItem* item) override
    {
        ++m_frees;
        Base::free_all(item);
    }

    int create_all(IVqMenuBase* base, CVqMenuItem* item) override
    {
        return noted("create_all", Base::create_all(base, item));
    }

    void append_item(CVqMenuItem* parent, CVqMenuItem* item) override
    {
        m_calls.push_back("append_item " + std::to_string(item->id()));
        Base::append_item(parent, item);
    }

    void update_menustring(CVqMenuItem* item, const vq_wchar* text) override
    {
        m_calls.push_back("update_menustring " + std::to_string(item->id()) + " " + TestMenu::Plain(text));
        Base::update_menustring(item, text);
    }

    int save_to_variant(CVqAccelerators* table, CVqMenuItem* item, CVqLiteVariantW& out) override
    {
        return save(table, item, out);
    }

    int save_to_variant(CVqAccelerators* table, CVqMenuItem* item, CVqVariant& out) override
    {
        return save(table, item, out);
    }

    int load_from_variant(CVqAccelerators* table, CVqMenuItem* parent, CVqLiteVariantR& in) override
    {
        return load(table, parent, in);
    }

    int load_from_variant(CVqAccelerators* table, CVqMenuItem* parent, CVqVariant& in) override
    {
        return load(table, parent, in);
    }

    int save_accels_to_variant(CVqAccelerators* table, CVqMenuItem* item, CVqLiteVariantW& out) override
    {
        return noted("save_accels_to_variant", Base::save_accels_to_variant(table, item, out));
    }

    int save_accels_to_variant(CVqAccelerators* table, CVqMenuItem* item, CVqVariant& out) override
    {
        return noted("save_accels_to_variant", Base::save_accels_to_variant(table, item, out));
    }

    int load_accels_from_variant(CVqAccelerators* table, CVqMenuItem** head, CVqLiteVariantR& in) override
    {
        return noted("load_accels_from_variant", Base::load_accels_from_variant(table, head, in));
    }

    int load_accels_from_variant(CVqAccelerators* table, CVqMenuItem** head, CVqVariant& in) override
    {
        return noted("load_accels_from_variant", Base::load_accels_from_variant(table, head, in));
    }

    std::vector<std::string> m_calls; // of passes that end in a code: where they ended
    int m_frees = 0;

private:
    template <class Out>
    int save(CVqAccelerators* table, CVqMenuItem* item, Out& out)
    {
        m_calls.push_back("save_to_variant " + std::to_string(item->id()));
        Base::save_to_variant(table, item, out);
        return code;
    }

    template <class In>
    int load(CVqAccelerators* table, CVqMenuItem* parent, In& in)
    {
        m_calls.push_back("load_from_variant " + std::to_string(parent->id()));
        Base::load_from_variant(table, parent, in);
        return code;
    }

    int noted(const char* call, int)
    {
        m_calls.emplace_back(call);
        return code;
    }
};
