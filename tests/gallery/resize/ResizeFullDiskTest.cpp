#include "gallery/resize/ResizeImage.h"
#include "tests/gallery/resize/ImageFolder.h"

#ifdef Q_OS_UNIX

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// Lets files of this program become no longer than `bytes`, for the time of its scope.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }

    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before = {};
    void (*m_signal)(int);
};

class ResizeFullDisk : public testing::Test
{
protected:
    ResizeFullDisk() { m_folder.MakeOut(); }

    ImageFolder m_folder;
};

}

TEST_F(ResizeFullDisk, AnImageThatDoesNotFitLeavesNothing)
{
    const QString from = m_folder.Image(u"a.bmp"_s, {100, 100});
    QString error;
    {
        const FileSizeLimit limit(1000);
        error = Gallery::ResizeImage(from, m_folder.Out(u"a.bmp"_s), "bmp", 50);
    }

    EXPECT_TRUE(error.startsWith(u"it cannot be written: "_s)) << error.toStdString();
    EXPECT_EQ(m_folder.OutNames(), QStringList());
}

TEST_F(ResizeFullDisk, ACopyThatDoesNotFitLeavesWhatWasThere)
{
    const QString from = m_folder.Image(u"a.bmp"_s, {100, 100});
    ASSERT_TRUE(RedAndBlue({5, 5}).save(m_folder.Out(u"a.bmp"_s)));
    QString error;
    {
        const FileSizeLimit limit(1000);
        error = Gallery::ResizeImage(from, m_folder.Out(u"a.bmp"_s), "bmp", 100);
    }

    EXPECT_TRUE(error.startsWith(u"it cannot be written: "_s)) << error.toStdString();
    EXPECT_EQ(m_folder.OutNames(), QStringList{u"a.bmp"_s});
    EXPECT_TRUE(m_folder.OutIsWhole(5));
}

#endif
