#include "qml/CVqFilePathApi.h"
#include "tests/qml/ChildProcess.h"
#include "tests/qml/FolderTree.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <fcntl.h>
#include <thread>

using namespace Qt::StringLiterals;

// Whether a folder can be written to on a disk that is full or read-only, and beside somebody else who
// writes.

namespace {

const std::string no_disk = "no disk: ";

/// On a small file system in memory, mounted in a child process.
class CVqFilePathApiDisks : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.path() + u'/' + name; }

    /// The text that `work` gives where the disk is mounted.
    std::string OnDisk(const char* options, const std::function<std::string()>& work) const
    {
        return in_child([&] {
            if (!mount_memory_disk(QFile::encodeName(m_folder.path()).constData(), options))
                return no_disk + std::strerror(errno);
            return work();
        });
    }

    /// The answer about `name`, and ", a trace" if the disk is not as it was before.
    std::string AnswerAndTrace(const QString& name) const
    {
        const std::vector<std::string> before = tree_below(m_folder.path());
        const std::string answer = yes_or_no(CVqFilePathApi::isWritable(Path(name)));
        return tree_below(m_folder.path()) == before ? answer : answer + ", a trace";
    }

    /// True if there is room for no more bytes.
    bool FillWithBytes() const
    {
        QFile file(Path(u"bytes"_s));
        if (!file.open(QFile::WriteOnly | QFile::Unbuffered))
            return false;
        const QByteArray page(4096, 'x');
        for (int pages = 0; pages < 1000; ++pages) {
            if (file.write(page) != page.size())
                return true;
        }
        return false;
    }

private:
    const QTemporaryDir m_folder;
};

}

TEST_F(CVqFilePathApiDisks, DiskWithRoomIsWritable)
{
    const std::string answer = OnDisk("size=64k", [this] { return AnswerAndTrace(u"new/b/c"_s); });

    if (answer.starts_with(no_disk))
        GTEST_SKIP() << answer;
    EXPECT_EQ(answer, "yes");
}

TEST_F(CVqFilePathApiDisks, DiskWithRoomForAnotherNameButForNoBytesIsWritable)
{
    const std::string answer = OnDisk("size=64k", [this] {
        return (FillWithBytes() ? "full, " : "not full, ") + AnswerAndTrace(QString());
    });

    if (answer.starts_with(no_disk))
        GTEST_SKIP() << answer;
    EXPECT_EQ(answer, "full, yes");
}

TEST_F(CVqFilePathApiDisks, DiskWithoutRoomForAnotherNameIsNotWritable)
{
    // One name is the disk's own folder.
    const std::string answer = OnDisk("nr_inodes=1", [this] { return AnswerAndTrace(QString()); });

    if (answer.starts_with(no_disk))
        GTEST_SKIP() << answer;
    EXPECT_EQ(answer, "no");
}

TEST_F(CVqFilePathApiDisks, LevelsGoWhereThereIsNoRoomForAllOfThem)
{
    const std::string answer = OnDisk("nr_inodes=3", [this] { return AnswerAndTrace(u"new/b/c"_s); });

    if (answer.starts_with(no_disk))
        GTEST_SKIP() << answer;
    EXPECT_EQ(answer, "no");
}

TEST_F(CVqFilePathApiDisks, LevelsGoWhereThereIsNoRoomForTheFileInThem)
{
    const std::string answer = OnDisk("nr_inodes=4", [this] { return AnswerAndTrace(u"new/b/c"_s); });

    if (answer.starts_with(no_disk))
        GTEST_SKIP() << answer;
    EXPECT_EQ(answer, "no");
}

TEST_F(CVqFilePathApiDisks, RoomForLevelsAndFileIsEnough)
{
    const std::string answer = OnDisk("nr_inodes=5", [this] { return AnswerAndTrace(u"new/b/c"_s); });

    if (answer.starts_with(no_disk))
        GTEST_SKIP() << answer;
    EXPECT_EQ(answer, "yes");
}

TEST_F(CVqFilePathApiDisks, ReadOnlyDiskIsNotWritable)
{
    const std::string answer = OnDisk("size=64k", [this] {
        const QByteArray folder = QFile::encodeName(Path(QString()));
        const bool is_read_only
            = mount("tmpfs", folder.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
        return (is_read_only ? "" : "not read-only, ") + AnswerAndTrace(QString()) + ", "
            + AnswerAndTrace(u"new/b"_s);
    });

    if (answer.starts_with(no_disk))
        GTEST_SKIP() << answer;
    EXPECT_EQ(answer, "no, no");
}

TEST_F(CVqFilePathApiDisks, FirstLevelOfAPathMayBeMissingToo)
{
    const std::string answer = OnDisk("size=64k", [this]() -> std::string {
        if (chroot(QFile::encodeName(Path(QString())).constData()) != 0)
            return no_disk + std::strerror(errno);
        QDir::setCurrent(u"/"_s);
        const std::string writable = yes_or_no(CVqFilePathApi::isWritable(u"/new/b"_s));
        return QDir(u"/"_s).isEmpty() ? writable : writable + ", a trace";
    });

    if (answer.starts_with(no_disk))
        GTEST_SKIP() << answer;
    EXPECT_EQ(answer, "yes");
}

TEST_F(CVqFilePathApiDisks, FoldersThatSomebodyElseMakesMeanwhileDoNoHarm)
{
    const auto folder
        = [this](int call) { return Path(QString::number(call) + u"/b/c/d/e/f/g/h/i/j/k/l"_s); };
    std::atomic<int> current = 0;
    std::atomic<bool> is_over = false;
    std::thread somebody([&] {
        while (!is_over)
            QDir().mkpath(folder(current));
    });

    int refused = 0;
    for (int call = 0; call < 300; ++call) {
        current = call;
        refused += !CVqFilePathApi::isWritable(folder(call));
    }
    is_over = true;
    somebody.join();

    EXPECT_EQ(refused, 0);
}

TEST_F(CVqFilePathApiDisks, WhatSomebodyElsePutsThereMeanwhileStays)
{
    const QByteArray kept = QFile::encodeName(Path(u"new/b/kept"_s));
    std::atomic<bool> is_kept = false;
    std::atomic<bool> is_over = false;
    std::thread somebody([&] {
        while (!is_kept && !is_over) {
            const int file = open(kept.constData(), O_CREAT | O_EXCL | O_WRONLY, 0600);
            is_kept = file >= 0;
            close(file);
        }
    });

    // Somebody needs a moment in which the folder is there; ten would do.
    for (int call = 0; call < 1000000 && !is_kept; ++call)
        CVqFilePathApi::isWritable(Path(u"new/b"_s));
    is_over = true;
    somebody.join();

    ASSERT_TRUE(is_kept);
    EXPECT_TRUE(QFileInfo(QFile::decodeName(kept)).isFile());
}
