#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

/// Files of one test in the two places that resources are looked for: a made-up source tree, and the folders
/// beside the test program. Tests run beside each other, so each path that is given here has the folder Own()
/// in it. What was written goes when the object does.
class ResourceTree
{
public:
    ResourceTree() : m_own(QString::fromLatin1(testing::UnitTest::GetInstance()->current_test_info()->name()))
    { }

    ~ResourceTree()
    {
        for (const QString& folder : std::as_const(m_folders))
            QDir(folder).removeRecursively();
    }

    ResourceTree(const ResourceTree&) = delete;
    ResourceTree& operator=(const ResourceTree&) = delete;

    /// A folder's name that no other test has.
    const QString& Own() const { return m_own; }

    static QString Root() { return QStringLiteral(ARBOR_TEST_TREE "/"); }

    static QString InSourceTree(const QString& path) { return Root() + path; }

    /// The way to it leads through "..", as the application takes it.
    static QString BesideApplication(const QString& path)
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/../../") + path;
    }

    /// Makes an empty file and the folders above it.
    void Write(const QString& file)
    {
        const QString own = QLatin1Char('/') + m_own + QLatin1Char('/');
        ASSERT_TRUE(file.contains(own)) << file.toStdString();
        m_folders += file.left(file.indexOf(own) + own.size());
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    }

private:
    const QString m_own;
    QStringList m_folders;
};
