#pragma once

#include "arbor_qml_support.h"
#include "tests/ResourceTree.h"
#include "tests/support/CaptureMessages.h"

#include <QTemporaryDir>

/// A test of FindQmlResource() outside the developer's mode, until it calls Develop(). Debug messages are
/// kept.
class ResourceLookup : public ::testing::Test
{
protected:
    ResourceLookup() { qunsetenv("ORV_DEVELOP_RESOURCES"); }
    ~ResourceLookup() override { qunsetenv("ORV_DEVELOP_RESOURCES"); }

    static void Develop(const char* value = "1") { qputenv("ORV_DEVELOP_RESOURCES", value); }

    /// The address of `rest` in the test's own folder of the module tile_assets.
    QUrl TileAddress(const QString& rest) const
    {
        return QUrl(QStringLiteral("qrc:///tile_assets/%1/%2").arg(m_tree.Own(), rest));
    }

    /// The address of `rest` in a module of the test's own, which has no row in the table.
    QUrl OwnAddress(const QString& rest) const
    {
        return QUrl(QStringLiteral("qrc:///%1/%2").arg(m_tree.Own(), rest));
    }

    /// `pattern` with the test's own folder for its %1, in the source tree.
    QString Source(const QString& pattern) const
    {
        return ResourceTree::InSourceTree(pattern.arg(m_tree.Own()));
    }

    /// The same beside the application.
    QString Beside(const QString& pattern) const
    {
        return ResourceTree::BesideApplication(pattern.arg(m_tree.Own()));
    }

    /// What a developer is told about `address`, once.
    static QStringList Missing(const QString& address)
    {
        return {QStringLiteral("Resource '%1' not in qrc file!\n").arg(address)};
    }

    /// An empty file `name` in `folder`, which goes with the test.
    static QString FileIn(const QTemporaryDir& folder, const QString& name)
    {
        EXPECT_TRUE(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
        return folder.filePath(name);
    }

    const CaptureMessages m_debug{QtDebugMsg};
    ResourceTree m_tree;
};
