#pragma once

#include <QIcon>
#include <QObject>
#include <QRgb>

#include <array>
#include <atomic>

/// The colours that stencils take from the application's palette, and when they change. Made on the GUI
/// thread.
class CVqImageInks : public QObject
{
    Q_OBJECT

public:
    CVqImageInks();

    /// Any thread.
    QRgb Ink(QIcon::Mode mode) const { return m_inks[std::size_t(mode)]; }

Q_SIGNALS:
    /// Emitted on the GUI thread, when Ink() tells the new ones.
    void changed();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void Read();

    std::array<std::atomic<QRgb>, 4> m_inks;
};
