#pragma once

#include <QString>

class CVqVariant;

namespace Gallery {

/// A file of the user's data folder in which a tree is kept between two runs.
class TreeStore
{
public:
    enum class Found
    {
        Nothing,
        Tree,
        Damage, ///< Something is there, but it cannot be read.
    };

    /// The file `stem`.cbor in `folder`, which is made as soon as something is written.
    TreeStore(const QString& folder, const QString& stem);

    /// Reads the file; `tree` changes for Found::Tree only.
    Found Read(CVqVariant& tree) const;

    /// Writes the file, whole or not at all. Gives why that failed; empty after a success.
    QString Write(const CVqVariant& tree) const;

    /// Gives the file another name, such as "`stem`-damaged-1.cbor", so that it is not written over. The name
    /// without its folder, empty when that is not possible.
    QString SetAside() const;

private:
    QString m_folder;
    QString m_stem;
    QString m_file;
};

}
