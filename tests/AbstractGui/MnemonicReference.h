#pragma once

#include "system/VqText.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

/// The mnemonic rules once more, written for being checked by eye instead of for speed: every step copies
/// its texts. The tests hold the library against it.
namespace mnemonic_reference {

using Text = std::basic_string<vq_wchar>;

constexpr int found = 0;
constexpr int missing = -9;

inline int search(Text& current, Text& best, const std::vector<Text>& entries, std::size_t index,
                  std::size_t limit, unsigned budget, unsigned& counter)
{
    if (current.empty())
        counter = 0;
    const unsigned value = counter;
    counter = counter + 1;
    if (value == budget || index == limit)
        return found;
    int result = missing;
    for (const vq_wchar letter : entries[index]) {
        if (current.find(letter) != Text::npos)
            continue;
        Text copy = current + letter;
        result = search(copy, best, entries, index + 1, limit, budget, counter);
        if (result == found) {
            current = copy;
            break;
        }
    }
    if (current.size() > best.size())
        best = current;
    return result;
}

inline Text best_of(const std::vector<Text>& entries)
{
    Text alphabet;
    for (const Text& letters : entries)
        for (const vq_wchar letter : letters)
            if (alphabet.find(letter) == Text::npos)
                alphabet += letter;
    Text current;
    Text best;
    unsigned counter = 0;
    search(current, best, entries, 0, std::min(entries.size(), alphabet.size()), 1000, counter);
    return best;
}

inline Text without_marks(Text label)
{
    std::size_t position = label.find(VQ_TEXT('&'));
    while (position != Text::npos) {
        if (position + 1 < label.size() && label[position + 1] == VQ_TEXT('&'))
            position += 2;
        else
            label.erase(position, 1);
        position = label.find(VQ_TEXT('&'), position);
    }
    return label;
}

inline Text candidates_of(const Text& upper)
{
    Text candidates;
    std::size_t digits = 0;
    for (const vq_wchar c : upper) {
        const bool digit = c >= 48 && c <= 57;
        const bool letter = (c >= 97 && c <= 122) || (c >= 65 && c <= 90) || c >= 192;
        if ((!digit && !letter) || candidates.find(c) != Text::npos)
            continue;
        if (digit)
            candidates.insert(digits++, 1, c);
        else
            candidates += c;
    }
    return candidates;
}

}
