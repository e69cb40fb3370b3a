#include "tests/support/ExpectMessage.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

using namespace Qt::Literals::StringLiterals;

int offscreen_program(int argc, char** argv);

namespace {

class OffscreenProgram : public ::testing::Test
{
protected:
    int Run(const QByteArray& qml)
    {
        QFile file(m_folder.filePath(u"page.qml"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(qml);
        file.close();
        QByteArray page = file.fileName().toLocal8Bit();
        QByteArray picture = m_folder.filePath(u"page.png"_s).toLocal8Bit();
        char name[] = "offscreen_program";
        std::array<char*, 4> arguments{name, page.data(), picture.data(), nullptr};
        delete QCoreApplication::instance();
        return offscreen_program(3, arguments.data());
    }

    QTemporaryDir m_folder;
};

}

TEST_F(OffscreenProgram, DrawsAFileIntoAPicture)
{
    const int code = Run("import QtQuick\nRectangle { width: 30; height: 20; color: \"red\" }\n");

    const QImage picture(m_folder.filePath(u"page.png"_s));
    EXPECT_EQ(code, 0);
    EXPECT_EQ(picture.size(), QSize(30, 20));
    EXPECT_EQ(picture.pixelColor(29, 19), QColor(Qt::red));
}

TEST_F(OffscreenProgram, TellsWhatIsWrongWithAFile)
{
    const ExpectMessage wrong(QtInfoMsg, u"page.qml:3:5: Cannot assign to non-existent property \"wdith\""_s,
                              ExpectMessage::Match::Contains);

    EXPECT_EQ(Run("import QtQuick\nItem {\n    wdith: 3\n}\n"), 2);
}
