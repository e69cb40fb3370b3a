#pragma once

#include <clocale>
#include <string>

/// Sets a category of the C library's locale for the time of its scope.
class ScopedLocale
{
public:
    ScopedLocale(int category, const char* name)
        : m_iCategory(category),
          m_strFormer(std::setlocale(category, nullptr)),
          m_bSet(std::setlocale(category, name) != nullptr)
    { }

    ~ScopedLocale() { std::setlocale(m_iCategory, m_strFormer.c_str()); }

    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;

    /// False where the machine has no such locale; then nothing was changed.
    bool IsSet() const { return m_bSet; }

private:
    int m_iCategory;
    std::string m_strFormer;
    bool m_bSet;
};
