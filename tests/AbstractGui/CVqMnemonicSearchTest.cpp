#include "AbstractGui/CVqMnemonicSearch.h"

#include "tests/AbstractGui/MnemonicReference.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace {

using Text = CVqMnemonicSearch::Text;

Text run(const std::vector<Text>& candidates)
{
    return CVqMnemonicSearch({candidates.begin(), candidates.end()}).Run();
}

struct RandomRow
{
    const char* m_name;
    unsigned m_labels;
    unsigned m_letters;
    unsigned m_shortest;
    unsigned m_longest;
};

std::vector<Text> random_candidates(std::mt19937& random, const RandomRow& row)
{
    std::vector<Text> result(random() % row.m_labels + 1);
    for (Text& candidates : result) {
        const unsigned wanted = row.m_shortest + random() % (row.m_longest - row.m_shortest + 1);
        for (unsigned i = 0; i < wanted; ++i) {
            const auto letter = static_cast<vq_wchar>(VQ_TEXT('A') + random() % row.m_letters);
            if (candidates.find(letter) == Text::npos)
                candidates += letter;
        }
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const Text& a, const Text& b) { return a.size() < b.size(); });
    return result;
}

}

TEST(CVqMnemonicSearch, WithoutLabelsNothingIsFound)
{
    EXPECT_EQ(run({}), VQ_TEXT(""));
}

TEST(CVqMnemonicSearch, OneLabelTakesItsFirstLetter)
{
    EXPECT_EQ(run({VQ_TEXT("OPEN")}), VQ_TEXT("O"));
}

TEST(CVqMnemonicSearch, SecondLabelTakesALetterThatTheFirstLeft)
{
    EXPECT_EQ(run({VQ_TEXT("OPEN"), VQ_TEXT("OTHER")}), VQ_TEXT("OT"));
}

TEST(CVqMnemonicSearch, GoesBackWhenALaterLabelHasNoLetterLeft)
{
    // A and B leave nothing for the third label, so the second one moves on to C.
    EXPECT_EQ(run({VQ_TEXT("AB"), VQ_TEXT("BC"), VQ_TEXT("AB")}), VQ_TEXT("ACB"));
}

TEST(CVqMnemonicSearch, LabelWithoutLettersInFrontLeavesAllUnserved)
{
    EXPECT_EQ(run({VQ_TEXT(""), VQ_TEXT("A"), VQ_TEXT("B")}), VQ_TEXT(""));
}

TEST(CVqMnemonicSearch, ServesAsManyOfTheFirstLabelsAsPossible)
{
    // Three labels share two letters; X makes the limit three, so the third fails and two are kept.
    EXPECT_EQ(run({VQ_TEXT("AB"), VQ_TEXT("AB"), VQ_TEXT("AB"), VQ_TEXT("XAB")}), VQ_TEXT("AB"));
}

TEST(CVqMnemonicSearch, StopsWhenAllLettersAreGiven)
{
    EXPECT_EQ(run({VQ_TEXT("AB"), VQ_TEXT("AB"), VQ_TEXT("AB")}), VQ_TEXT("AB"));
}

TEST(CVqMnemonicSearch, KeepsTheFirstOfTheLongestWhenNothingServesAll)
{
    // Five labels over four letters; the sixth lifts the limit.
    std::vector<Text> candidates(5, VQ_TEXT("ABCD"));
    candidates.push_back(VQ_TEXT("ABCDZ"));

    EXPECT_EQ(run(candidates), VQ_TEXT("ABCD"));
}

TEST(CVqMnemonicSearch, BudgetBoundsAHopelessSearch)
{
    // 20 labels over 19 letters; the 21st lifts the limit. The first descent serves 19 labels and fails at
    // the 20th; nothing better exists, and 1000 steps don't suffice to know.
    Text letters;
    for (int i = 0; i < 19; ++i)
        letters += static_cast<vq_wchar>(VQ_TEXT('A') + i);
    std::vector<Text> candidates(20, letters);
    candidates.push_back(letters + VQ_TEXT('Z'));

    EXPECT_EQ(run(candidates), letters);
}

TEST(CVqMnemonicSearch, ServesAThousandLabelsAndNoMoreInOneDescent)
{
    std::vector<Text> candidates;
    for (int i = 0; i < 1500; ++i)
        candidates.emplace_back(1, static_cast<vq_wchar>(0x4E00 + i));

    const Text best = run(candidates);

    ASSERT_EQ(best.size(), 1000u);
    EXPECT_EQ(best[0], vq_wchar(0x4E00));
    EXPECT_EQ(best[999], vq_wchar(0x4E00 + 999));
}

TEST(CVqMnemonicSearch, SecondRunGivesTheSame)
{
    const std::vector<Text> candidates{VQ_TEXT("AB"), VQ_TEXT("BC"), VQ_TEXT("AB")};
    CVqMnemonicSearch search({candidates.begin(), candidates.end()});

    const Text first = search.Run();

    EXPECT_EQ(search.Run(), first);
}

TEST(CVqMnemonicSearch, HighestCodeUnitIsALetterLikeAnyOther)
{
    const Text last(1, vq_wchar(0xFFFF));

    EXPECT_EQ(run({last, last + VQ_TEXT('A')}), last + VQ_TEXT('A'));
}

class CVqMnemonicSearchRandom : public testing::TestWithParam<RandomRow>
{ };

TEST_P(CVqMnemonicSearchRandom, AgreesWithTheReference)
{
    std::mt19937 random(20'240'601);
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        const std::vector<Text> candidates = random_candidates(random, GetParam());

        const Text best = run(candidates);

        ASSERT_EQ(best, mnemonic_reference::best_of(candidates));
        ASSERT_EQ(std::set<vq_wchar>(best.begin(), best.end()).size(), best.size());
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqMnemonicSearchRandom,
                         testing::Values(RandomRow{"FewLetters", 12, 4, 1, 4},
                                         RandomRow{"Tight", 14, 14, 1, 3}, RandomRow{"Menu", 30, 26, 3, 12},
                                         RandomRow{"Crowded", 60, 26, 2, 8},
                                         RandomRow{"SomeWithoutLetters", 4, 6, 0, 4}),
                         [](const auto& row) { return std::string(row.param.m_name); });
