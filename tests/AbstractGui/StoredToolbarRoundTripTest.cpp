#include "tests/AbstractGui/StoredToolbars.h"

#include <array>
#include <random>
#include <string>
#include <vector>

// Random toolbars go through either form into another toolbar. What comes back is worked out here:
//
// - buttons of any kind as buttons, in their order, with their name and the texts of their states;
// - separators as separators, without their name;
// - lost in both forms: a button without a name, which becomes a separator;
// - lost in the lightweight form: a button called "Separator", which becomes one;
// - lost in a tree from index 100 on: the last digit of the index goes before the name, which makes a button
//   of a separator.

namespace {

constexpr unsigned g_toolbars = 40;

struct Entry
{
    bool separator;
    std::string name;
    std::vector<std::string> texts; // one a state
};

using Entries = std::vector<Entry>;

std::vector<std::string> random_texts(std::mt19937& random)
{
    std::vector<std::string> texts(1 + random() % 4);
    for (std::string& text : texts)
        text = random() % 3 == 0 ? "" : "text " + std::to_string(random() % 100);
    return texts;
}

/// Equal seeds give equal toolbars on every platform.
Entries random_entries(unsigned seed)
{
    static constexpr std::array<const char*, 8> names{"open",
                                                      "save",
                                                      "",
                                                      "Separator",
                                                      "\xC3\xA4\xF0\x9F\x98\x80",
                                                      "a00",
                                                      "ToolbarName",
                                                      "a name that is longer than the others"};
    std::mt19937 random(seed);
    Entries entries(random() % (seed % 4 == 0 ? 140 : 20));
    for (Entry& entry : entries) {
        entry.separator = random() % 4 == 0;
        entry.name = names[random() % names.size()];
        entry.texts = random_texts(random);
    }
    return entries;
}

vq_uint64 add_entry(TestButtonToolbar& bar, const Entry& entry, unsigned kind)
{
    const CVqStringW name = CVqStringW(entry.name.c_str());
    if (entry.separator)
        return bar.AppendSeparator(name);
    if (kind == 0)
        return bar.AddTextButton(name);
    if (kind == 1)
        return bar.AddGeneralControl(bar.Bar().Make("general"), name);
    return bar.AddButton(name);
}

void fill(TestButtonToolbar& bar, const Entries& entries)
{
    for (const Entry& entry : entries) {
        const vq_uint64 id = add_entry(bar, entry, entry.texts.size() % 3);
        bar.SetStatesCountOnButton(id, static_cast<unsigned>(entry.texts.size()));
        for (unsigned state = 0; state < entry.texts.size(); ++state) {
            const CVqStringW text = CVqStringW(entry.texts[state].c_str());
            bar.SetTextsOnButton(id, state, text, text, text);
        }
    }
}

/// One line an entry, such as "open: [text 5][]" or "separator".
std::string line_of(const Entry& entry)
{
    if (entry.separator)
        return "separator\n";
    std::string line = entry.name + ": ";
    for (const std::string& text : entry.texts)
        line += "[" + text + "]";
    return line + "\n";
}

Entry after(const LiteForm&, Entry entry, std::size_t)
{
    entry.separator = entry.separator || entry.name.empty() || entry.name == "Separator";
    return entry;
}

Entry after(const TreeForm&, Entry entry, std::size_t index)
{
    if (index < 100) {
        entry.separator = entry.separator || entry.name.empty();
        return entry;
    }
    const std::string digit = std::to_string(index % 10);
    entry.name = entry.separator ? digit : digit + entry.name;
    entry.separator = false;
    return entry;
}

template <class Form>
std::string expected(const Entries& entries)
{
    std::string lines;
    for (std::size_t index = 0; index < entries.size(); ++index)
        lines += line_of(after(Form(), entries[index], index));
    return lines;
}

std::string shown(TestButtonToolbar& bar)
{
    std::string lines;
    for (unsigned index = 0; index < static_cast<unsigned>(bar.GetButtonsCount()); ++index) {
        const vq_uint64 id = bar.GetButtonID(index, false);
        Entry entry{bar.IsIDSeparator(id), bar.Control(id).Name(), {}};
        unsigned count = 0;
        bar.GetStatesCountOnButton(id, count);
        for (unsigned state = 0; state < count; ++state) {
            CVqStringW text;
            bar.GetTextOnButton(id, state, text);
            entry.texts.push_back(text.ToQString().toStdString());
        }
        lines += line_of(entry);
    }
    return lines;
}

template <class Form>
class StoredToolbarRoundTrip : public testing::Test
{
protected:
    TestBitmapPool& m_pool = TestBitmapPool::Fresh();
};

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(StoredToolbarRoundTrip, Forms, FormName);

}

TYPED_TEST(StoredToolbarRoundTrip, RandomToolbarsComeBackAsTold)
{
    for (unsigned seed = 0; seed < g_toolbars; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const Entries entries = random_entries(seed);
        TestButtonToolbar bar;
        TestButtonToolbar loaded;
        typename TypeParam::Container stored;
        fill(bar, entries);

        save_toolbar(bar, stored);
        EXPECT_EQ(load_toolbar(loaded, stored), 0);

        ASSERT_EQ(shown(loaded), expected<TypeParam>(entries));
    }
}

TYPED_TEST(StoredToolbarRoundTrip, ToolbarOfLessThanHundredControlsIsSavedAlikeOnceItWasLoaded)
{
    for (unsigned seed = 1; seed < g_toolbars; seed += 2) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestButtonToolbar bar;
        typename TypeParam::Container once;
        typename TypeParam::Container twice;
        fill(bar, random_entries(seed));
        save_toolbar(bar, once);
        load_toolbar(bar, once);
        save_toolbar(bar, once = {});

        load_toolbar(bar, once);
        save_toolbar(bar, twice);

        ASSERT_EQ(TypeParam::Show(twice), TypeParam::Show(once));
    }
}

TEST(StoredToolbarTrees, SavedTwiceTheyAreEqual)
{
    TestBitmapPool::Fresh();
    for (unsigned seed = 0; seed < g_toolbars; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TestButtonToolbar bar;
        CVqVariant first;
        CVqVariant second;
        fill(bar, random_entries(seed));

        bar.Save(first, nullptr);
        bar.Save(second, nullptr);

        ASSERT_TRUE(CVqAbstractButtonToolbar::IsEqual(first, second));
    }
}
