#include "quick_backend/toolbar/CVqQuickToolbarLooks.h"

CVqQuickToolbarLooks::CVqQuickToolbarLooks(QObject* parent) : QObject(parent) { }

QQmlComponent* CVqQuickToolbarLooks::Of(CVqQuickControl::Kind kind) const
{
    switch (kind) {
    case CVqQuickControl::Button:
        return m_button;
    case CVqQuickControl::TextButton:
        return m_text_button;
    case CVqQuickControl::Separator:
        return m_separator;
    case CVqQuickControl::Picker:
        return m_picker;
    case CVqQuickControl::General:
        return m_general;
    }
    return nullptr;
}
