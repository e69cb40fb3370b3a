#include "tests/gallery/DeveloperMode.h"

#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_wait = 60000; // ms

/// The program itself in the developer's mode, with the files of a copy, and what it prints.
class LiveProgram
{
public:
    explicit LiveProgram(const QmlCopy& copy)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"QT_QUICK_BACKEND"_s, u"software"_s);
        environment.insert(u"ORV_DEVELOP_RESOURCES"_s, QString());
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QStringLiteral(ARBOR_GALLERY_PROGRAM),
                        {u"--qml"_s, copy.Folder(), u"--data"_s, m_data.path()});
    }

    ~LiveProgram()
    {
        m_process.kill();
        m_process.waitForFinished(g_longest_wait);
    }

    /// Waits until the program has printed `text`; false when it has not in time.
    bool Prints(const QByteArray& text)
    {
        while (!m_printed.contains(text) && m_process.waitForReadyRead(g_longest_wait))
            m_printed += m_process.readAll();
        return m_printed.contains(text);
    }

    std::string Printed() const { return m_printed.toStdString(); }

    /// The exit code, once the program has ended by itself.
    int Code()
    {
        EXPECT_TRUE(m_process.waitForFinished(g_longest_wait));
        return m_process.exitCode();
    }

private:
    QTemporaryDir m_data;
    QProcess m_process;
    QByteArray m_printed;
};

QByteArray page_that_runs(const QByteArray& script)
{
    return "import QtQuick\nItem { Component.onCompleted: " + script + " }\n";
}

}

TEST(ArborGalleryLive, AnEditedPageShowsInTheRunningProgram)
{
    const QmlCopy copy;
    copy.Write(u"pages/PicturePage.qml"_s, page_that_runs("console.log('as it was')"));
    LiveProgram program(copy);
    ASSERT_TRUE(program.Prints("as it was")) << program.Printed();

    copy.WriteByRename(u"pages/PicturePage.qml"_s, page_that_runs("console.log('as it is')"));
    ASSERT_TRUE(program.Prints("as it is")) << program.Printed();
    copy.Write(u"pages/PicturePage.qml"_s, page_that_runs("Qt.quit()"));

    EXPECT_EQ(program.Code(), 0) << program.Printed();
}
