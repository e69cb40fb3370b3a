#include "tests/support/PictureCompare.h"

#include <QFile>
#include <QRegularExpression>

#include <gmock/gmock.h>

using namespace Qt::Literals::StringLiterals;
using testing::HasSubstr;

namespace {

// Each pixel has a colour of its own.
QImage make_picture(QSize size, QImage::Format format = QImage::Format_ARGB32_Premultiplied)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 10, y * 10, 200));
    return image.convertToFormat(format);
}

std::string failure_of(const QImage& picture, const QImage& expected)
{
    const auto result = EqualPictures(picture, expected);
    return result ? "they are equal" : result.message();
}

// The paths that a failure names, the picture's first.
QStringList kept_files(const std::string& failure)
{
    QStringList files;
    static const QRegularExpression kept(u"is kept as (\\S+\\.png)"_s);
    for (const auto& match : kept.globalMatch(QString::fromStdString(failure)))
        files << match.captured(1);
    return files;
}

}

TEST(PictureCompare, EqualPicturesAreEqual)
{
    EXPECT_TRUE(EqualPictures(make_picture({4, 3}), make_picture({4, 3})));
}

TEST(PictureCompare, NullPicturesAreEqual)
{
    EXPECT_TRUE(EqualPictures(QImage(), QImage()));
}

TEST(PictureCompare, TheStorageDoesNotCount)
{
    // 5 pixels of 3 bytes leave unused bytes at the end of each line.
    EXPECT_TRUE(EqualPictures(make_picture({5, 2}, QImage::Format_RGB888), make_picture({5, 2})));
}

TEST(PictureCompare, PlainColoursAreComparedAsPremultipliedOnes)
{
    QImage plain(1, 1, QImage::Format_ARGB32);
    plain.fill(qRgba(255, 0, 0, 128));
    QImage premultiplied(1, 1, QImage::Format_ARGB32_Premultiplied);
    premultiplied.fill(uint(qRgba(128, 0, 0, 128)));

    EXPECT_TRUE(EqualPictures(plain, premultiplied));
}

TEST(PictureCompare, AnotherSizeIsToldWithBoth)
{
    EXPECT_THAT(failure_of(make_picture({3, 2}), make_picture({2, 3})),
                HasSubstr("the picture is 3 x 2 pixels, expected 2 x 3 pixels"));
}

TEST(PictureCompare, ANullPictureIsTold)
{
    EXPECT_THAT(failure_of(QImage(), make_picture({2, 3})),
                HasSubstr("the picture is null, expected 2 x 3 pixels"));
}

TEST(PictureCompare, APictureWhereNoneIsExpectedIsTold)
{
    EXPECT_THAT(failure_of(make_picture({2, 3}), QImage()),
                HasSubstr("the picture is 2 x 3 pixels, expected null"));
}

TEST(PictureCompare, TheFirstDifferentPixelIsToldWithBothColoursAndTheCount)
{
    QImage picture = make_picture({4, 3});
    picture.setPixelColor(2, 1, QColor(1, 2, 3));
    picture.setPixelColor(0, 2, QColor(4, 5, 6));

    EXPECT_THAT(failure_of(picture, make_picture({4, 3})),
                HasSubstr("pixel (2, 1) is #ff010203, expected #ff140ac8; 2 of 12 pixels differ"));
}

TEST(PictureCompare, ADifferenceOfOneInTheAlphaChannelIsADifference)
{
    QImage picture(1, 1, QImage::Format_ARGB32_Premultiplied);
    picture.fill(uint(qRgba(0, 0, 0, 254)));
    QImage expected = picture;
    expected.fill(uint(qRgba(0, 0, 0, 255)));

    EXPECT_THAT(failure_of(picture, expected),
                HasSubstr("pixel (0, 0) is #fe000000, expected #ff000000; 1 of 1"));
}

TEST(PictureCompare, BothPicturesAreKeptWhereTheFailureSays)
{
    QImage picture = make_picture({4, 3});
    picture.setPixelColor(2, 1, QColor(1, 2, 3));

    const QStringList files = kept_files(failure_of(picture, make_picture({4, 3})));

    ASSERT_EQ(files.size(), 2);
    EXPECT_TRUE(EqualPictures(QImage(files[0]), picture));
    EXPECT_TRUE(EqualPictures(QImage(files[1]), make_picture({4, 3})));
}

TEST(PictureCompare, FilesLieInAFolderOfTheRunningTest)
{
    const QStringList files = kept_files(failure_of(make_picture({4, 3}), make_picture({3, 4})));

    ASSERT_EQ(files.size(), 2);
    EXPECT_THAT(files[0].toStdString(), HasSubstr("PictureCompare.FilesLieInAFolderOfTheRunningTest/"));
}

TEST(PictureCompare, AnotherFailureKeepsItsOwnFiles)
{
    const QStringList first = kept_files(failure_of(make_picture({1, 1}), make_picture({1, 2})));
    const QStringList second = kept_files(failure_of(make_picture({1, 3}), make_picture({1, 2})));

    ASSERT_EQ(first.size(), 2);
    EXPECT_NE(first[0], second.value(0));
    EXPECT_EQ(QImage(first[0]).size(), QSize(1, 1));
}

TEST(PictureCompare, AFolderThatCannotBeWrittenIsTold)
{
    QFile blocker(QString::fromStdString(testing::TempDir()) + u"/arbor_pictures_blocker"_s);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    const QByteArray former = qgetenv("TEST_TMPDIR");
    qputenv("TEST_TMPDIR", blocker.fileName().toLocal8Bit());

    const std::string failure = failure_of(make_picture({1, 1}), make_picture({1, 2}));

    former.isNull() ? qunsetenv("TEST_TMPDIR") : qputenv("TEST_TMPDIR", former);
    blocker.remove();
    EXPECT_THAT(failure, HasSubstr("the picture could not be kept as"));
}
