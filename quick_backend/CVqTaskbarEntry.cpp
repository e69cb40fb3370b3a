#include "quick_backend/CVqTaskbarEntry.h"

#include <QDBusConnection>
#include <QFileInfo>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Asked first, since a look for a bus that nobody started may start one.
bool has_session_bus()
{
    const QString runtime_dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")
        || (!runtime_dir.isEmpty() && QFileInfo::exists(runtime_dir + "/bus"_L1));
}

void send_to_session_bus(const QDBusMessage& message)
{
    if (has_session_bus())
        QDBusConnection::sessionBus().send(message);
}

QString entry_of(const QString& desktop_file)
{
    return desktop_file.isEmpty() ? QString() : "application://"_L1 + desktop_file + ".desktop"_L1;
}

}

CVqTaskbarEntry::CVqTaskbarEntry(const QString& desktop_file, Send send)
    : m_entry(entry_of(desktop_file)), m_send(send ? std::move(send) : send_to_session_bus)
{ }

CVqTaskbarEntry::~CVqTaskbarEntry()
{
    if (m_percent >= 0)
        Update(false, 0);
}

void CVqTaskbarEntry::Show(double fraction)
{
    const int percent = int(fraction * 100);
    if (m_entry.isEmpty() || percent == m_percent)
        return;
    m_percent = percent;
    Update(true, percent / 100.0);
}

void CVqTaskbarEntry::Update(bool visible, double fraction) const
{
    QDBusMessage message = QDBusMessage::createSignal(u"/com/canonical/unity/launcherentry/1"_s,
                                                      u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
    message << m_entry << QVariantMap{{u"progress"_s, fraction}, {u"progress-visible"_s, visible}};
    m_send(message);
}
