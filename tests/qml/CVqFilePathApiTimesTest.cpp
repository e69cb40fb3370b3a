#include "qml/CVqFilePathApi.h"
#include "tests/qml/FolderTree.h"

#include <QDateTime>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString g_format = u"yyyy-MM-dd HH:mm:ss.zzz"_s;

QString text_of(const statx_timestamp& time)
{
    const qint64 milliseconds = time.tv_sec * 1000 + time.tv_nsec / 1000000;
    return QDateTime::fromMSecsSinceEpoch(milliseconds).toString(g_format);
}

/// A file that was written last on 3 February 2001 at 04:05:06 and read last a day later.
class CVqFilePathApiTimes : public testing::Test
{
protected:
    CVqFilePathApiTimes()
    {
        QFile file(m_path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        const QDateTime time(QDate(2001, 2, 3), QTime(4, 5, 6));
        EXPECT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
        EXPECT_TRUE(file.setFileTime(time.addDays(1), QFileDevice::FileAccessTime));
    }

    struct statx SystemTimes() const
    {
        struct statx times = {};
        statx(AT_FDCWD, QFile::encodeName(m_path).constData(), 0, STATX_BTIME | STATX_CTIME, &times);
        return times;
    }

    /// What the system tells of the file's beginning; empty if it keeps no such time.
    QString Birth() const
    {
        const struct statx times = SystemTimes();
        return times.stx_mask & STATX_BTIME ? text_of(times.stx_btime) : QString();
    }

    /// Until the last change of the permissions was in another millisecond than the file's beginning.
    void ChangePermissions() const
    {
        const QString birth = Birth();
        for (int turn = 0; turn < 1000000 && text_of(SystemTimes().stx_ctime) == birth; ++turn)
            chmod(QFile::encodeName(m_path).constData(), turn % 2 ? 0600 : 0640);
    }

    QString CallWithoutFormat(const char* operation, const QString& path)
    {
        QString text = u"not called"_s;
        QMetaObject::invokeMethod(&m_api, operation, Qt::DirectConnection, qReturnArg(text), path);
        return text;
    }

    CVqFilePathApi m_api;
    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"file"_s);
};

}

TEST_F(CVqFilePathApiTimes, TimeOfTheLastChangeIsWrittenInTheFormat)
{
    EXPECT_EQ(m_api.modifyTime(m_path, u"d.M.yy 'at' hh:mm:ss"_s), u"3.2.01 at 04:05:06"_s);
}

TEST_F(CVqFilePathApiTimes, NamesOfMonthsAreEnglishWhateverTheLocale)
{
    const QLocale former;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

    const QString text = m_api.modifyTime(m_path, u"dddd, MMMM"_s);

    QLocale::setDefault(former);
    EXPECT_EQ(text, u"Saturday, February"_s);
}

TEST_F(CVqFilePathApiTimes, EmptyFormatGivesAnEmptyText)
{
    EXPECT_EQ(m_api.modifyTime(m_path, QString()), QString());
}

TEST_F(CVqFilePathApiTimes, CallThroughTheMetaObjectMayLeaveTheFormatOut)
{
    EXPECT_EQ(CallWithoutFormat("modifyTime", m_path), u"2001-02-03 04:05"_s);
}

TEST_F(CVqFilePathApiTimes, TimeOfTheBeginningIsNotThatOfAnyLaterAccess)
{
    ChangePermissions();

    EXPECT_EQ(m_api.creationTime(m_path, g_format), Birth());
}

TEST_F(CVqFilePathApiTimes, TimeOfTheBeginningMayBeAskedForWithoutAFormatToo)
{
    EXPECT_EQ(CallWithoutFormat("creationTime", m_path), Birth().left(16));
}

TEST_F(CVqFilePathApiTimes, FolderHasTimesToo)
{
    EXPECT_EQ(m_api.modifyTime(m_folder.path(), u"'year' yy"_s).left(5), u"year "_s);
}

TEST_F(CVqFilePathApiTimes, MissingFileHasNoTimesWhateverTheFormat)
{
    const QString missing = m_folder.filePath(u"missing"_s);

    EXPECT_EQ(m_api.creationTime(missing, u"yyyy"_s), QString());
    EXPECT_EQ(m_api.creationTime(missing, u"'text'"_s), QString());
    EXPECT_EQ(m_api.modifyTime(missing, u"'text'"_s), QString());
    EXPECT_EQ(CallWithoutFormat("creationTime", missing), QString());
    EXPECT_EQ(CallWithoutFormat("modifyTime", missing), QString());
}

TEST_F(CVqFilePathApiTimes, EmptyPathHasNoTimes)
{
    EXPECT_EQ(m_api.creationTime(QString(), u"'text'"_s), QString());
    EXPECT_EQ(m_api.modifyTime(QString(), u"'text'"_s), QString());
}
