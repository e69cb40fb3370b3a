#include "AbstractGui/CVqMnemonicSearch.h"

#include <algorithm>
#include <utility>

CVqMnemonicSearch::CVqMnemonicSearch(std::vector<TextView> candidates) : m_candidates(std::move(candidates))
{ }

CVqMnemonicSearch::Text CVqMnemonicSearch::Run()
{
    m_limit = std::min(m_candidates.size(), count_letters());
    m_steps = 0;
    m_used.reset();
    m_current.assign(m_limit, 0);
    m_best.clear();
    if (serve(0))
        keep_if_longer(m_reached);
    return m_best;
}

std::size_t CVqMnemonicSearch::count_letters()
{
    m_used.reset();
    for (const TextView letters : m_candidates)
        for (const vq_wchar letter : letters)
            m_used.set(letter);
    return m_used.count();
}

/// Serves the labels from `index` on; those before it hold their letters. True when the limit or the end of
/// the budget was reached.
bool CVqMnemonicSearch::serve(std::size_t index)
{
    if (m_steps++ >= StepBudget || index == m_limit) {
        m_reached = index;
        return true;
    }
    for (const vq_wchar letter : m_candidates[index]) {
        if (m_used.test(letter))
            continue;
        m_current[index] = letter;
        m_used.set(letter);
        if (serve(index + 1))
            return true;
        m_used.reset(letter);
    }
    keep_if_longer(index);
    return false;
}

void CVqMnemonicSearch::keep_if_longer(std::size_t length)
{
    if (length > m_best.size())
        m_best.assign(m_current, 0, length);
}
