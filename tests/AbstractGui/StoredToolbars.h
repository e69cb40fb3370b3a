#pragma once

#include "tests/AbstractGui/StoredControls.h"
#include "tests/support/TestButtonToolbar.h"

#include <string>

inline int save_toolbar(CVqAbstractButtonToolbar& bar, CVqLiteVariantR& out)
{
    return bar.Save(out);
}

inline int save_toolbar(CVqAbstractButtonToolbar& bar, CVqVariant& out)
{
    bar.Save(out, nullptr);
    return 0;
}

inline int load_toolbar(CVqAbstractButtonToolbar& bar, CVqLiteVariantR& in)
{
    return bar.Load(in);
}

inline int load_toolbar(CVqAbstractButtonToolbar& bar, CVqVariant& in)
{
    return bar.Load(in, nullptr);
}

/// The record of a button with one state, which can be read in full.
inline Stored stored_button(const vq_wchar* entry, const vq_wchar* name)
{
    return {entry, Stored::Children{{VQ_TEXT("State0"), stored_state()}, {VQ_TEXT("name"), name}}};
}

/// A stored toolbar of these entries, in the level that the form has around them.
template <class Form>
typename Form::Container stored_toolbar(Stored::Children entries);

template <>
inline CVqLiteVariantR stored_toolbar<LiteForm>(Stored::Children entries)
{
    return LiteForm::Make({{VQ_TEXT("CVqAbstractButtonToolbar"), std::move(entries)}});
}

template <>
inline CVqVariant stored_toolbar<TreeForm>(Stored::Children entries)
{
    return TreeForm::Make(entries);
}

/// The names of the entries alone, such as "a00open a01", of what a toolbar has saved.
inline std::string entry_names(const CVqVariant& tree)
{
    std::string out;
    for (int i = 0; i < tree.GetCount(); ++i)
        out += (out.empty() ? "" : " ") + TestMenu::Plain(tree.IndexPtr(i)->GetName());
    return out;
}

inline std::string entry_names(CVqLiteVariantR lite)
{
    std::string out;
    lite.CurrentLevelBegin();
    for (; lite.IsNextValue(); lite.NextValue()) {
        vq_wchar name[255] = {};
        lite.GetCurrentName(name, 255);
        out += (out.empty() ? "" : " ") + TestMenu::Plain(name);
    }
    return out;
}
