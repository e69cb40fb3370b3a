#pragma once

#include "tests/offscreen/Framed.h"

#include <QQuickItem>

/// A window whose frames a test counts and waits for, and all that it draws with.
class FramedWindow : public Framed<OffscreenQuickWindow>
{
public:
    explicit FramedWindow(QSize size = {})
    {
        if (!size.isNull() && size.isValid())
            resize(size);
    }
};
