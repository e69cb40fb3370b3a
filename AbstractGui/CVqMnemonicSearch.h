#pragma once

#include "system/VqText.h"

#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Looks for one letter for each label of a popup such that no two labels share one.
///
/// Goes back on a letter when that leaves a later label without any, but takes no more than StepBudget
/// steps: then, as when no choice serves all, the first of the longest rows of letters so far counts.
class CVqMnemonicSearch
{
public:
    using Text = std::basic_string<vq_wchar>;
    using TextView = std::basic_string_view<vq_wchar>;

    static constexpr unsigned StepBudget = 1000;

    /// `candidates` has the letters that each label may take, without repetition, best first. Labels with
    /// few letters should stand first. The texts have to outlive the search.
    explicit CVqMnemonicSearch(std::vector<TextView> candidates);

    /// Returns one letter for each of the first labels, in their order; labels behind the end of the
    /// result are not served.
    Text Run();

private:
    std::size_t count_letters();
    bool serve(std::size_t index);
    void keep_if_longer(std::size_t length);

    std::vector<TextView> m_candidates;
    std::size_t m_limit = 0; // labels that can be served at most
    unsigned m_steps = 0;
    std::bitset<0x10000> m_used; // letters given to the labels before the one at hand
    Text m_current;              // the letters given, one for each label up to the limit
    std::size_t m_reached = 0;   // labels served when the search ended
    Text m_best;
};
