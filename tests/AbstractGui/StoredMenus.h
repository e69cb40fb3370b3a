#pragma once

#include "AbstractGui/CVqAbstractMenu.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqLiteVariantW.h"
#include "system/CVqVariant.h"
#include "tests/support/TestMenu.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// A named value, or a level of them, as a test writes it down to have it stored in either form.
///
///     Stored(VQ_TEXT("Root"), {StoredRecord({{VQ_TEXT("Id"), 5u}, {VQ_TEXT("Text"), VQ_TEXT("Open")}})})
struct Stored
{
    using Children = std::vector<Stored>;

    Stored(const vq_wchar* its_name, const vq_wchar* text) : name(its_name), value(CVqStringW(text)) { }
    Stored(const vq_wchar* its_name, bool flag) : name(its_name), value(flag) { }
    Stored(const vq_wchar* its_name, int number) : name(its_name), value(number) { }
    Stored(const vq_wchar* its_name, unsigned number) : name(its_name), value(number) { }
    Stored(const vq_wchar* its_name, Children children) : name(its_name), value(std::move(children)) { }

    CVqStringW name;
    std::variant<bool, int, unsigned, CVqStringW, Children> value;
};

inline Stored StoredRecord(Stored::Children fields)
{
    return {VQ_TEXT(""), std::move(fields)};
}

/// The lightweight form: how to put it together, show it, and have a menu or a record pass use it.
struct LiteForm
{
    using Container = CVqLiteVariantR;

    static constexpr const char* name = "Lite";

    static Container Make(const Stored::Children& fields)
    {
        return Filled([&](CVqLiteVariantW& writer) { write(writer, fields); });
    }

    /// The whole of a stored menu with these top-level items and lonely accelerators.
    static Container MakeMenu(Stored::Children items, Stored::Children lonely)
    {
        Stored::Children lists{{VQ_TEXT("Root"), std::move(items)}};
        if (!lonely.empty())
            lists.emplace_back(VQ_TEXT("LonelyAccels"), std::move(lonely));
        return Make({{VQ_TEXT("CVqMenu"), std::move(lists)}});
    }

    /// What `work` saves into the writer that it is given.
    template <class Work>
    static Container Filled(Work work)
    {
        CVqLiteVariantW writer;
        work(writer);
        Container container;
        writer.Finalize(container, 0);
        return container;
    }

    /// Entries with a blank between them: values as name=value, levels as name(entries). `|` is BEL, `>` TAB.
    static std::string Show(Container in)
    {
        std::string out;
        for (; in.IsNextValue(); in.NextValue()) {
            vq_wchar name[255] = {};
            in.GetCurrentName(name, 255);
            out += (out.empty() ? "" : " ") + TestMenu::Plain(name);
            if (Container level = in; level.CurrentLevelBegin() == 0) {
                out += "(" + Show(std::move(level)) + ")";
                continue;
            }
            CVqStringW text;
            out += "=" + TestMenu::Plain(in.GetCVqStringW(text, name, VQ_TEXT("")));
        }
        return out;
    }

private:
    static void write(CVqLiteVariantW& writer, const Stored::Children& fields)
    {
        for (const Stored& field : fields)
            std::visit([&](const auto& value) { write(writer, value, field.name); }, field.value);
    }

    template <class Value>
    static void write(CVqLiteVariantW& writer, const Value& value, const CVqStringW& name)
    {
        writer.Set(value, name);
    }

    static void write(CVqLiteVariantW& writer, const CVqStringW& value, const CVqStringW& name)
    {
        writer.Set(value.GetString(), name);
    }

    static void write(CVqLiteVariantW& writer, const Stored::Children& children, const CVqStringW& name)
    {
        writer.LevelBegin(name);
        write(writer, children);
        writer.LevelEnd();
    }
};

/// The same for the tree form. Levels have no run type.
struct TreeForm
{
    using Container = CVqVariant;

    static constexpr const char* name = "Tree";

    static Container Make(const Stored::Children& fields)
    {
        Container container;
        for (const Stored& field : fields)
            std::visit([&](const auto& value) { append(container, value, field.name); }, field.value);
        return container;
    }

    static Container MakeMenu(Stored::Children items, Stored::Children lonely)
    {
        Stored::Children lists{{VQ_TEXT("Root"), std::move(items)}};
        if (!lonely.empty())
            lists.emplace_back(VQ_TEXT("LonelyAccels"), std::move(lonely));
        return Make(lists);
    }

    template <class Work>
    static Container Filled(Work work)
    {
        Container out;
        work(out);
        return out;
    }

    static std::string Show(const Container& in)
    {
        std::string out;
        for (int i = 0; i < in.GetCount(); ++i) {
            const Container& child = *in.IndexPtr(i);
            out += (out.empty() ? "" : " ") + TestMenu::Plain(child.GetName());
            const bool level = child.GetType() == EVqVariantType::Level;
            out += level ? "(" + Show(child) + ")" : "=" + TestMenu::Plain(child.GetCVqStringW(nullptr));
        }
        return out;
    }

private:
    template <class Value>
    static void append(Container& out, const Value& value, const CVqStringW& name)
    {
        out.Append(Container(value, name));
    }

    static void append(Container& out, const Stored::Children& children, const CVqStringW& name)
    {
        Container level = Make(children);
        level.SetName(name);
        out.Append(level);
    }
};

/// Names the instances of a typed suite after their form.
struct FormName
{
    template <class Form>
    static std::string GetName(int)
    {
        return Form::name;
    }
};

/// Keys as they are stored.
inline constexpr int ctrl_a = 18 + 65 * 65536;
inline constexpr int ctrl_b = 18 + 66 * 65536;

/// A popup with a command and its key, a separator, and a lonely accelerator.
inline void fill_menu(TestMenu& menu)
{
    menu.AppendPopup(1, 0, VQ_TEXT("&File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+A"), VQ_TEXT("open"), 0);
    menu.AppendSeparator(3, 1);
    menu.AppendLonelyAccel(4, 18, 0x42, VQ_TEXT("lonely"));
}

inline Stored::Children items_of_ids(std::initializer_list<unsigned> ids)
{
    Stored::Children records;
    for (const unsigned id : ids)
        records.push_back(StoredRecord({{VQ_TEXT("Id"), id}, {VQ_TEXT("Type"), 2u}}));
    return records;
}

inline Stored item_with_key(unsigned id, int key)
{
    return StoredRecord({{VQ_TEXT("Id"), id}, {VQ_TEXT("Type"), 2u}, {VQ_TEXT("AccelKey0"), key}});
}

/// What the menu saves, as the form shows it.
template <class Form>
std::string saved(TestMenu& menu)
{
    typename Form::Container out;
    EXPECT_EQ(menu.Save(out), 0);
    return Form::Show(out);
}
