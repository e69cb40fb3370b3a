#include "gallery/resize/ResizeCommand.h"

#include "gallery/resize/ResizeConsole.h"
#include "tests/gallery/resize/ImageFolder.h"

using namespace Qt::StringLiterals;

namespace {

/// Runs the command on a folder, with a console that writes down what it gets.
class ResizeCommand : public testing::Test
{
protected:
    ResizeCommand()
    {
        m_console.out = [this](const QString& text) { m_out += text; };
        m_console.err = [this](const QString& text) { m_err += text; };
        m_console.interrupted = [] { return 0; };
        m_console.elapsed = [] { return 1000.0; };
    }

    int Run(int width = 10)
    {
        return Gallery::RunResizeCommand({m_folder.In(), m_folder.Out(), width}, m_console);
    }

    /// A signal comes when the command asks for the `ask`th time.
    void InterruptAt(int ask, int number)
    {
        m_console.interrupted = [ask, number, asked = 0]() mutable { return ++asked >= ask ? number : 0; };
    }

    ImageFolder m_folder;
    Gallery::ResizeConsole m_console;
    QString m_out;
    QString m_err;
};

}

TEST_F(ResizeCommand, WithoutATerminalEachImageIsALine)
{
    m_folder.ManyImages(2, {20, 20});

    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(m_out, u"1/2 000.png\n2/2 001.png\nImages resized: 2 of 2.\n"_s);
    EXPECT_EQ(m_err, QString());
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}

TEST_F(ResizeCommand, InATerminalABarIsDrawnAndCleared)
{
    m_console.columns = [] { return 30; };
    m_folder.ManyImages(2, {20, 20});

    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(m_out,
              u"\r  0%  0/2\x1b[K"
              u"\r  0%  0/2  000.png\x1b[K"
              u"\r 50%  1/2  about 1 s left\x1b[K"
              u"\r100%  2/2  001.png\x1b[K"
              u"\r\x1b[KImages resized: 2 of 2.\n"_s);
}

TEST_F(ResizeCommand, ShortWorkDrawsNoBar)
{
    m_console.columns = [] { return 30; };
    m_console.elapsed = [] { return 0.0; };
    m_folder.ManyImages(2, {20, 20});

    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(m_out, u"Images resized: 2 of 2.\n"_s);
}

TEST_F(ResizeCommand, WhatFailedIsToldWithItsReason)
{
    m_folder.ManyImages(1, {20, 20});
    m_folder.Write(u"text.png"_s, "text");

    EXPECT_EQ(Run(), 1);
    EXPECT_TRUE(m_out.endsWith(u"Images resized: 1 of 2. Failed: 1.\n"_s)) << m_out.toStdString();
    EXPECT_EQ(m_err, u"text.png: it is no image, whatever its name says\n"_s);
}

TEST_F(ResizeCommand, AJobThatCannotBeDoneIsOneSentence)
{
    EXPECT_EQ(Run(0), 2);
    EXPECT_EQ(m_out, QString());
    EXPECT_EQ(m_err, u"A width of 0 pixels leaves nothing: 1 is the smallest.\n"_s);
}

TEST_F(ResizeCommand, AFolderWithoutImagesIsToldAndNoFailure)
{
    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(m_out, u"There are no images in %1.\n"_s.arg(m_folder.In()));
}

TEST_F(ResizeCommand, ASignalEndsItBetweenTwoImages)
{
    m_folder.ManyImages(5, {20, 20});
    InterruptAt(3, 2);

    EXPECT_EQ(Run(), 130);
    EXPECT_TRUE(m_out.endsWith(u"Cancelled. Images resized: 2 of 5.\n"_s)) << m_out.toStdString();
    EXPECT_EQ(m_folder.OutNames(), (QStringList{u"000.png"_s, u"001.png"_s}));
    EXPECT_TRUE(m_folder.OutIsWhole(10));
}

TEST_F(ResizeCommand, TheExitCodeHasTheNumberOfTheSignal)
{
    m_folder.ManyImages(2, {20, 20});
    InterruptAt(1, 15);

    EXPECT_EQ(Run(), 143);
}
