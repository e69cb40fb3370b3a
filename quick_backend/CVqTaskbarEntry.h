#pragma once

#include <QDBusMessage>
#include <QString>

#include <functional>

/// The progress that the taskbar draws over the application's entry.
///
/// Desktops that follow the launcher interface of Unity show it: Plasma, Ubuntu's dock, Dash to Dock, Plank.
/// They find the entry by QGuiApplication::desktopFileName(). Without that name, or without a session bus,
/// nothing happens.
class CVqTaskbarEntry
{
public:
    using Send = std::function<void(const QDBusMessage& message)>;

    /// `send` gets the messages; empty sends them to the session bus. An empty `desktop_file` is no entry.
    explicit CVqTaskbarEntry(const QString& desktop_file, Send send = {});

    /// Takes the progress off the entry if it is there.
    ~CVqTaskbarEntry();

    CVqTaskbarEntry(const CVqTaskbarEntry&) = delete;
    CVqTaskbarEntry& operator=(const CVqTaskbarEntry&) = delete;

    /// `fraction` is 0 to 1. Sends only when the whole percentage is another one.
    void Show(double fraction);

private:
    void Update(bool visible, double fraction) const;

    const QString m_entry; // empty where there is none
    const Send m_send;
    int m_percent = -1; // the last one sent
};
