#pragma once

#include "AbstractGui/CursorHolder.h"

namespace Support {

/// A CursorHolder that shows the wait cursor.
class ARBOR_QML_SUPPORT_EXPORT WaitCursorHolder : private CursorHolder
{
public:
    WaitCursorHolder();
    ~WaitCursorHolder();
};

}
