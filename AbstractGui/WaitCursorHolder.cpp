#include "AbstractGui/WaitCursorHolder.h"

Support::WaitCursorHolder::WaitCursorHolder() : CursorHolder(Qt::WaitCursor) { }

Support::WaitCursorHolder::~WaitCursorHolder() = default;
