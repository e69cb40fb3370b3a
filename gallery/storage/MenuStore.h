#pragma once

#include "gallery/storage/StoredMenu.h"

namespace Gallery {

/// The file in which the menus are kept between two runs.
class MenuStore
{
public:
    enum class Found
    {
        Nothing,
        Menus,
        Damage, ///< Something is there, but it cannot be read.
    };

    /// `folder` is made as soon as something is written.
    explicit MenuStore(const QString& folder);

    /// Reads the file; `stored` changes for Found::Menus only.
    Found Read(StoredMenu& stored) const;

    /// Writes the file, whole or not at all. Gives why that failed; empty after a success.
    QString Write(const StoredMenu& stored) const;

    /// Gives the file another name, so that it is not written over. The name without its folder, empty when
    /// that is not possible.
    QString SetAside() const;

private:
    QString m_folder;
    QString m_file;
};

}
