#include "tests/gallery/resize/ImageFolder.h"

#include <QProcess>

#ifdef Q_OS_UNIX

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_run = 60000; // ms

/// A terminal without a screen; what is written to it is read on a thread, as programs wait otherwise.
class PseudoTerminal
{
public:
    explicit PseudoTerminal(unsigned short columns) : m_terminal(posix_openpt(O_RDWR | O_NOCTTY))
    {
        EXPECT_EQ(grantpt(m_terminal), 0);
        EXPECT_EQ(unlockpt(m_terminal), 0);
        const winsize size = {24, columns, 0, 0};
        EXPECT_EQ(ioctl(m_terminal, TIOCSWINSZ, &size), 0);
    }
    ~PseudoTerminal()
    {
        if (m_reader.joinable())
            m_reader.join();
        close(m_terminal);
    }

    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    QString Path() const { return QString::fromLocal8Bit(ptsname(m_terminal)); }

    /// Reads until the last program that writes to it has ended.
    void Read()
    {
        m_reader = std::thread([this] {
            char bytes[4096];
            for (ssize_t size; (size = read(m_terminal, bytes, sizeof bytes)) > 0;)
                m_text.append(bytes, size);
        });
    }

    QString Text()
    {
        m_reader.join();
        return QString::fromUtf8(m_text);
    }

private:
    const int m_terminal;
    std::thread m_reader;
    QByteArray m_text;
};

class ArborGalleryResizeTerminal : public testing::Test
{
protected:
    void Start()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TERM"_s, u"xterm"_s);
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(ARBOR_GALLERY_PROGRAM),
                        {u"--resize"_s, m_folder.In(), m_folder.Out(), u"--width"_s, u"10"_s});
        EXPECT_TRUE(m_process.waitForStarted(g_longest_run));
    }

    int Finish()
    {
        EXPECT_TRUE(m_process.waitForFinished(g_longest_run)) << m_process.errorString().toStdString();
        EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
        return m_process.exitCode();
    }

    ImageFolder m_folder;
    QProcess m_process;
};

}

TEST_F(ArborGalleryResizeTerminal, ABarIsDrawnInOneLineOfItsWidth)
{
    PseudoTerminal terminal(60);
    m_folder.ManyImages(60, {1600, 1200});
    m_process.setStandardOutputFile(terminal.Path());

    Start();
    terminal.Read();

    EXPECT_EQ(Finish(), 0);
    const QString text = terminal.Text();
    EXPECT_TRUE(text.contains(u"100%  60/60"_s)) << text.toStdString();
    EXPECT_TRUE(text.endsWith(u"\r\x1b[KImages resized: 60 of 60.\r\n"_s)) << text.toStdString();
    EXPECT_EQ(text.count(u'\n'), 1);
    for (const QString& line : text.split(u'\r'))
        EXPECT_LE(QString(line).remove(u"\x1b[K"_s).remove(u'\n').size(), 59) << line.toStdString();
}

TEST_F(ArborGalleryResizeTerminal, AnInterruptLeavesWholeImagesOnly)
{
    m_folder.ManyImages(900, {1600, 1200});

    Start();
    ASSERT_TRUE(m_process.waitForReadyRead(g_longest_run));
    ASSERT_EQ(kill(static_cast<pid_t>(m_process.processId()), SIGINT), 0);

    EXPECT_EQ(Finish(), 130);
    EXPECT_TRUE(m_process.readAllStandardOutput().contains("\nCancelled. Images resized: "));
    EXPECT_LT(m_folder.OutNames().size(), 900);
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}

#endif
