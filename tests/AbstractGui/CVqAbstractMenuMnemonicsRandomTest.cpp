#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/AbstractGui/MnemonicReference.h"
#include "tests/support/TestMenu.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using mnemonic_reference::Text;

struct Labelled
{
    vq_uint32 m_id;
    Text m_text;
    vq_wchar m_mnemonic = 0;
};

/// What the rules make of a popup's labels, worked out step by step on copies. Labels have no keys.
std::vector<Labelled> by_reference(std::vector<Labelled> labels)
{
    using namespace mnemonic_reference;
    struct Row
    {
        Labelled* m_label;
        Text m_plain;
        Text m_upper;
        Text m_candidates;
    };
    std::vector<Row> rows;
    for (Labelled& label : labels) {
        const Text plain = without_marks(label.m_text);
        CVqStringW upper(plain);
        upper.MakeUpper();
        const Text cut = Text(upper.View()).substr(0, Text(upper.View()).find(VQ_TEXT('\t')));
        rows.push_back({&label, plain, cut, candidates_of(cut)});
    }
    std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        return std::pair(a.m_candidates.size(), a.m_label->m_id)
            < std::pair(b.m_candidates.size(), b.m_label->m_id);
    });
    std::vector<Text> candidates;
    for (const Row& row : rows)
        candidates.push_back(row.m_candidates);
    Text best = best_of(candidates);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        Row& row = rows[i];
        std::size_t position = Text::npos;
        if (i < best.size()) {
            position = row.m_upper.find(best[i]);
        } else {
            for (const vq_wchar c : row.m_candidates) {
                if (best.find(c) != Text::npos || row.m_upper.find(c) == Text::npos)
                    continue;
                position = row.m_upper.find(c);
                best += c;
                break;
            }
        }
        row.m_label->m_mnemonic = 0;
        if (position != Text::npos) {
            row.m_label->m_mnemonic = row.m_plain[position];
            row.m_plain.insert(position, 1, VQ_TEXT('&'));
        }
        row.m_label->m_text = row.m_plain;
    }
    return labels;
}

Text random_label(std::mt19937& random, unsigned longest)
{
    static const Text units
        = VQ_TEXT("eeeeaaiioonnttssrrlldcbmpfgxyzEAINTS019  &&.\t\u00E4\u00C4\u00DF\u0416");
    Text label;
    for (unsigned length = random() % longest + 1; length > 0; --length)
        label += units[random() % units.size()];
    return label;
}

struct RandomRow
{
    const char* m_name;
    unsigned m_labels;
    unsigned m_longest;
    int m_rounds;
};

}

class CVqAbstractMenuMnemonicsRandom : public testing::TestWithParam<RandomRow>
{ };

TEST_P(CVqAbstractMenuMnemonicsRandom, PopupsAgreeWithTheReference)
{
    std::mt19937 random(7'041'776);
    for (int round = 0; round < GetParam().m_rounds; ++round) {
        SCOPED_TRACE(round);
        std::vector<Labelled> labels(random() % GetParam().m_labels + 1);
        for (std::size_t i = 0; i < labels.size(); ++i)
            labels[i] = {static_cast<vq_uint32>(1 + (i * 7919) % 10007),
                         random_label(random, GetParam().m_longest)};
        TestMenu menu(TestMenu::BackEnd::None);
        for (const Labelled& label : labels)
            menu.AppendMenuItem(label.m_id, 0, label.m_text.c_str(), VQ_TEXT(""), 0);

        ASSERT_EQ(menu.UpdateMnemonics(0, false), 0);

        const CVqMenuItem* item = menu.Root()->subItem();
        for (const Labelled& expected : by_reference(labels)) {
            ASSERT_EQ(TestMenu::Plain(item->text()), TestMenu::Plain(CVqStringW(expected.m_text)));
            ASSERT_EQ(item->mnemonic(), expected.m_mnemonic);
            item = item->nextItem();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractMenuMnemonicsRandom,
                         testing::Values(RandomRow{"ShortLabels", 12, 3, 400}, RandomRow{"Menu", 30, 16, 200},
                                         RandomRow{"Crowded", 120, 12, 60}),
                         [](const auto& row) { return std::string(row.param.m_name); });
