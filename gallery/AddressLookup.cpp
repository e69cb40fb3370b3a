#include "gallery/AddressLookup.h"

#include "arbor_qml_support.h"
#include "gallery/live/LiveAddresses.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Gallery {

void AddressLookup::SetAddress(const QString& address)
{
    if (address == m_address)
        return;
    m_address = address;
    m_found = address.isEmpty() ? QUrl() : FindQmlResource(QUrl(address), {});
    Q_EMIT Changed();
}

QString AddressLookup::Result() const
{
    return m_found.isLocalFile() ? m_found.toLocalFile() : m_found.toString();
}

AddressLookup::Place AddressLookup::GetPlace() const
{
    if (m_found.isLocalFile())
        return QFileInfo::exists(m_found.toLocalFile()) ? OnDisk : Nothing;
    return m_found.scheme() == u"qrc"_s && QFileInfo::exists(u':' + m_found.path()) ? Compiled : Nothing;
}

bool AddressLookup::IsDeveloping()
{
    return qEnvironmentVariableIsSet("ORV_DEVELOP_RESOURCES");
}

QString AddressLookup::SourceFolder()
{
    return LiveFolders().value(0);
}

}
