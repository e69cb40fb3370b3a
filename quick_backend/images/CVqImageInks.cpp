#include "quick_backend/images/CVqImageInks.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

CVqImageInks::CVqImageInks()
{
    Read();
    qGuiApp->installEventFilter(this);
}

bool CVqImageInks::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qGuiApp) {
        Read();
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
}

void CVqImageInks::Read()
{
    const QPalette palette = QGuiApplication::palette();
    const QRgb normal = palette.color(QPalette::Active, QPalette::WindowText).rgba();
    m_inks[QIcon::Normal] = normal;
    m_inks[QIcon::Active] = normal;
    m_inks[QIcon::Disabled] = palette.color(QPalette::Disabled, QPalette::WindowText).rgba();
    m_inks[QIcon::Selected] = palette.color(QPalette::Active, QPalette::HighlightedText).rgba();
}
