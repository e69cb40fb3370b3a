#include "AbstractGui/CVqAbstractBitmapPool.h"
#include "AbstractGui/CVqAbstractControl.h"
#include "AbstractGui/CVqTreeFieldWriter.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqLiteVariantW.h"
#include "system/CVqVariant.h"

#include <algorithm>

namespace {

constexpr int failed = -9;

CVqStringW state_name(vq_uint32 number)
{
    CVqStringW name;
    name.Format(VQ_TEXT("State%u"), number);
    return name;
}

// The stored command has no quote next to a parenthesis.
CVqStringW escaped(const CVqStringW& command)
{
    CVqStringW text(command);
    return text.Replace(VQ_TEXT("(\""), VQ_TEXT("((")).Replace(VQ_TEXT("\")"), VQ_TEXT("))"));
}

CVqStringW unescaped(const CVqStringW& stored)
{
    CVqStringW text(stored);
    return text.Replace(VQ_TEXT("(("), VQ_TEXT("(\"")).Replace(VQ_TEXT("))"), VQ_TEXT("\")"));
}

template <class Out>
void write_state(Out& out, const SVqControlState& state)
{
    CVqStringW file;
    CVqStringW resource;
    if (state.m_bitmap >= 0)
        CVqAbstractBitmapPool::GetImageSource(static_cast<vq_uint32>(state.m_bitmap), file, resource);
    out.Set(state.m_bitmap, VQ_TEXT("m_bitmap"));
    out.Set(escaped(state.m_command).GetString(), VQ_TEXT("m_command"));
    out.Set(state.m_text.GetString(), VQ_TEXT("m_text"));
    out.Set(state.m_tooltip.GetString(), VQ_TEXT("m_tooltip"));
    out.Set(file.GetString(), VQ_TEXT("m_filename"));
    out.Set(resource.GetString(), VQ_TEXT("m_resname"));
    out.Set(state.m_bkgcolor, VQ_TEXT("m_bkgcolor"));
    out.Set(state.m_frgcolor, VQ_TEXT("m_frgcolor"));
}

/// The fields of the level in which a reader stands.
class LiteFields
{
public:
    explicit LiteFields(const CVqLiteVariantR& in) : m_in(in) { }

    bool Has(const vq_wchar* name) const { return m_in.IsValueSet(name); }

    /// 0 and the empty text where there is none.
    int Number(const vq_wchar* name) const { return m_in.Get(name, 0); }
    CVqStringW Text(const vq_wchar* name) const
    {
        CVqStringW text;
        return m_in.GetCVqStringW(text, name, VQ_TEXT(""));
    }

private:
    const CVqLiteVariantR& m_in;
};

/// The same for the children of a tree's node.
class TreeFields
{
public:
    explicit TreeFields(const CVqVariant& in) : m_in(in) { }

    bool Has(const vq_wchar* name) const { return !m_in[name].IsEmpty(); }
    int Number(const vq_wchar* name) const { return m_in[name].GetVq_int32(nullptr); }
    CVqStringW Text(const vq_wchar* name) const { return m_in[name].GetCVqStringW(nullptr); }

private:
    const CVqVariant& m_in;
};

template <class Fields>
int read_image(const Fields& in)
{
    const CVqStringW file = in.Text(VQ_TEXT("m_filename"));
    if (file.IsEmpty())
        return -1;
    return CVqAbstractBitmapPool::AddImage(file, in.Text(VQ_TEXT("m_resname")), nullptr);
}

// Fields that are missing keep what the state held before. 0, or -9 when one of the texts is missing.
template <class Fields>
int read_state(const Fields& in, SVqControlState& state)
{
    int result = 0;
    const auto read_text = [&](const vq_wchar* name, CVqStringW& target) {
        const bool found = in.Has(name);
        if (found)
            target = in.Text(name);
        else
            result = failed;
        return found;
    };
    const auto read_colour = [&](const vq_wchar* name, vq_uint32& target) {
        if (in.Has(name))
            target = static_cast<vq_uint32>(in.Number(name));
    };
    if (read_text(VQ_TEXT("m_command"), state.m_command))
        state.m_command = unescaped(state.m_command);
    read_text(VQ_TEXT("m_text"), state.m_text);
    read_text(VQ_TEXT("m_tooltip"), state.m_tooltip);
    state.m_bitmap = read_image(in);
    read_colour(VQ_TEXT("m_bkgcolor"), state.m_bkgcolor);
    read_colour(VQ_TEXT("m_frgcolor"), state.m_frgcolor);
    return result;
}

}

// What both forms hold behind the states and the name, in this order.
template <class Out>
void CVqAbstractControl::write_size_and_flags(Out& out) const
{
    out.Set(m_size.m_iWidth, VQ_TEXT("m_Width"));
    out.Set(m_size.m_iHeight, VQ_TEXT("m_Height"));
    out.Set(m_bVisible, VQ_TEXT("m_Visibility"));
    out.Set(m_bTranslateTooltip ? 1 : 0, VQ_TEXT("TranslateTooltip"));
}

int CVqAbstractControl::Save(CVqLiteVariantW& out)
{
    if (out.LevelBegin(m_strName) != 0)
        return 0;
    for (vq_uint32 i = 0; i < used_states(); ++i) {
        if (out.LevelBegin(state_name(i)) != 0)
            continue;
        write_state(out, m_pStates[i]);
        out.LevelEnd();
    }
    out.Set(m_strName.GetString(), VQ_TEXT("name"));
    write_size_and_flags(out);
    out.Set(m_iType, VQ_TEXT("type"));
    out.LevelEnd();
    return 0;
}

int CVqAbstractControl::Save(CVqVariant& out)
{
    const bool could_change_type = out.EnableTypeChange(true);
    for (vq_uint32 i = 0; i < used_states(); ++i) {
        CVqVariant& record = out.Append(CVqVariant());
        record.SetName(state_name(i));
        CVqTreeFieldWriter fields(record);
        write_state(fields, m_pStates[i]);
    }
    CVqTreeFieldWriter fields(out);
    write_size_and_flags(fields);
    out.EnableTypeChange(could_change_type);
    out.SetName(m_strName);
    return 0;
}

// One state more. 0, or -9 when it lacks a text or there is no room for it.
template <class Fields>
int CVqAbstractControl::load_state(vq_uint32 number, const Fields& in)
{
    if (number >= MaxStates)
        return failed;
    m_uiStateCount = number + 1;
    return read_state(in, m_pStates[number]);
}

template <class Fields>
void CVqAbstractControl::load_flags_and_type(const Fields& in)
{
    if (in.Has(VQ_TEXT("m_Visibility")))
        SetControlVisibility(in.Number(VQ_TEXT("m_Visibility")) != 0);
    if (in.Has(VQ_TEXT("TranslateTooltip")))
        m_bTranslateTooltip = in.Number(VQ_TEXT("TranslateTooltip")) != 0;
    m_iType = in.Number(VQ_TEXT("type")); // never in what the tree form saves, so a tree resets it
}

int CVqAbstractControl::Load(CVqLiteVariantR& in)
{
    m_uiStateCount = 0;
    const LiteFields fields(in);
    m_size = {fields.Number(VQ_TEXT("m_Width")), fields.Number(VQ_TEXT("m_Height"))};

    int result = 0;
    // One entry of the level is left behind for each state. The first number beyond the room is read too, to
    // tell of it.
    for (vq_uint32 number = 0; number <= MaxStates; ++number) {
        if (!in.IsNextValue() || in.LevelBegin(state_name(number)) != 0)
            break;
        result = std::min(result, load_state(number, fields));
        in.LevelEnd();
        in.NextValue();
    }
    while (in.NextValue() == 0) { }

    m_strName = fields.Text(VQ_TEXT("name"));
    load_flags_and_type(fields);
    return m_uiStateCount == 0 ? failed : result;
}

int CVqAbstractControl::Load(const CVqVariant& in)
{
    m_uiStateCount = 0;
    const TreeFields fields(in);
    if (fields.Has(VQ_TEXT("m_Width")))
        m_size.m_iWidth = fields.Number(VQ_TEXT("m_Width"));
    if (fields.Has(VQ_TEXT("m_Height")))
        m_size.m_iHeight = fields.Number(VQ_TEXT("m_Height"));

    int result = 0;
    for (vq_uint32 number = 0; number <= MaxStates; ++number) {
        const CVqVariant& record = in[state_name(number)];
        if (record.IsEmpty())
            break;
        result = std::min(result, load_state(number, TreeFields(record)));
    }

    m_strName = in.GetName();
    load_flags_and_type(fields);
    return m_uiStateCount == 0 ? failed : result;
}
