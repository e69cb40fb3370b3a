#include "qml/CVqFilePathApi.h"
#include "tests/qml/FolderTree.h"

#include <QDateTime>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace {

/// A file that was written last on 3 February 2001 at 04:05:06.
class CVqFilePathApiTimes : public testing::Test
{
protected:
    CVqFilePathApiTimes()
    {
        QFile file(m_path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        const QDateTime time(QDate(2001, 2, 3), QTime(4, 5, 6));
        EXPECT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    /// What the system tells of the file's beginning, to the second; empty if it keeps no such time.
    QString Birth() const
    {
        struct statx info = {};
        statx(AT_FDCWD, QFile::encodeName(m_path).constData(), 0, STATX_BTIME, &info);
        if (!(info.stx_mask & STATX_BTIME))
            return {};
        return QDateTime::fromSecsSinceEpoch(info.stx_btime.tv_sec).toString(Qt::ISODate);
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

TEST_F(CVqFilePathApiTimes, TimeOfTheBeginningIsNotThatOfTheLastChange)
{
    EXPECT_EQ(m_api.creationTime(m_path, u"yyyy-MM-ddTHH:mm:ss"_s), Birth());
}

TEST_F(CVqFilePathApiTimes, TimeOfTheBeginningMayBeAskedForWithoutAFormatToo)
{
    EXPECT_EQ(CallWithoutFormat("creationTime", m_path), Birth().left(16).replace(u'T', u' '));
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
