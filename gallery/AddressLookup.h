#pragma once

#include <QObject>
#include <QUrl>
#include <QVariantList>

namespace Gallery {

/// Where FindQmlResource() finds an address, for a page that shows it.
class AddressLookup : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString address READ Address WRITE SetAddress NOTIFY Changed)
    Q_PROPERTY(QString result READ Result NOTIFY Changed)
    Q_PROPERTY(Place place READ GetPlace NOTIFY Changed)
    Q_PROPERTY(bool developing READ IsDeveloping CONSTANT)
    Q_PROPERTY(QString sourceFolder READ SourceFolder CONSTANT)

public:
    using QObject::QObject;

    /// What lies at the end of a lookup.
    enum Place
    {
        Nothing,  ///< Neither a file nor a compiled resource.
        Compiled, ///< A resource that is compiled into the program or a library.
        OnDisk,   ///< A local file.
    };
    Q_ENUM(Place)

    const QString& Address() const { return m_address; }
    void SetAddress(const QString& address);

    /// What FindQmlResource() gives for the address: a local path, or an address; empty for an empty one.
    QString Result() const;
    Place GetPlace() const;

    /// Whether the developer's mode is on.
    static bool IsDeveloping();
    /// The folder that the gallery's own QML comes from; empty when it is compiled in.
    static QString SourceFolder();

Q_SIGNALS:
    void Changed();

private:
    QString m_address;
    QUrl m_found;
};

}
