#include "AbstractGui/CursorHolder.h"

#include <QCursor>
#include <QGuiApplication>

Support::CursorHolder::CursorHolder(Qt::CursorShape shape)
{
    QGuiApplication::setOverrideCursor(QCursor(shape));
}

Support::CursorHolder::~CursorHolder()
{
    QGuiApplication::restoreOverrideCursor();
}
