#pragma once

#include <QString>

namespace Gallery {

/// Where menus are kept between two runs, and how.
struct MenuHome
{
    QString folder;                          ///< Empty: they are not kept, and the factory menu shows.
    QString language = QStringLiteral("en"); ///< Of this run, such as "de".
    bool is_written = true;                  ///< False: the folder is read and stays as it is.
};

}
