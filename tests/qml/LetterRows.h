#pragma once

#include "tests/qml/NamedRows.h"

/// A list model of rows with names of one letter, such as "abc" for three rows.
class LetterRows : public NamedRows
{
public:
    explicit LetterRows(const QString& letters)
    {
        for (const QChar letter : letters)
            rows += Row(letter, 0);
    }

    /// The names; '-' stands for a row that has not been filled.
    std::string Letters() const
    {
        std::string letters;
        for (const std::string& name : TextsOf(*this, Name))
            letters += name.empty() ? "-" : name;
        return letters;
    }
};
