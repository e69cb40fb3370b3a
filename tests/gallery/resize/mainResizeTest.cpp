#include "tests/gallery/resize/ImageFolder.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_run = 60000; // ms

/// The program itself, where there is no display.
class ArborGalleryResize : public testing::Test
{
protected:
    ArborGalleryResize()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(name);
        environment.insert(u"TERM"_s, u"xterm"_s);
        m_process.setProcessEnvironment(environment);
    }

    void Start(const QString& width = u"10"_s, const QStringList& more = {})
    {
        m_process.start(QStringLiteral(ARBOR_GALLERY_PROGRAM),
                        QStringList{u"--resize"_s, m_folder.In(), m_folder.Out(), u"--width"_s, width}
                            + more);
    }

    int Finish()
    {
        EXPECT_TRUE(m_process.waitForFinished(g_longest_run)) << m_process.errorString().toStdString();
        EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
        return m_process.exitCode();
    }

    QString Out() { return QString::fromUtf8(m_process.readAllStandardOutput()); }
    QString Errors() { return QString::fromUtf8(m_process.readAllStandardError()); }

    ImageFolder m_folder;
    QProcess m_process;
};

}

TEST_F(ArborGalleryResize, AllDoneIsZero)
{
    m_folder.ManyImages(2, {20, 20});

    Start();

    EXPECT_EQ(Finish(), 0);
    EXPECT_EQ(Out(), u"1/2 000.png\n2/2 001.png\nImages resized: 2 of 2.\n"_s);
    EXPECT_EQ(Errors(), QString());
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}

TEST_F(ArborGalleryResize, SomeFailedIsOneWithNothingButTheReasons)
{
    m_folder.Write(u"cut.png"_s, ImageBytes(RedAndBlue({100, 100}), "png").chopped(100));

    Start();

    EXPECT_EQ(Finish(), 1);
    EXPECT_EQ(Errors(), u"cut.png: it is cut off\n"_s);
}

TEST_F(ArborGalleryResize, BadArgumentsAreTwo)
{
    Start(u"0"_s);

    EXPECT_EQ(Finish(), 2);
    EXPECT_EQ(Out(), QString());
    EXPECT_EQ(Errors(), u"A width of 0 pixels leaves nothing: 1 is the smallest.\n"_s);
}

TEST_F(ArborGalleryResize, ALocaleTranslatesItsWords)
{
    m_folder.ManyImages(1, {20, 20});

    Start(u"10"_s, {u"--locale"_s, u"de"_s});

    EXPECT_EQ(Finish(), 0);
    EXPECT_EQ(Out(), u"1/1 000.png\nSkalierte Bilder: 1 von 1.\n"_s);
}

TEST_F(ArborGalleryResize, AnImageLargerThanReadersUsuallyTakeIsRead)
{
    {
        QImage image(16384, 4200, QImage::Format_RGB32);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(m_folder.In(u"a.png"_s)));
    }

    Start();

    EXPECT_EQ(Finish(), 0) << Errors().toStdString();
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}
