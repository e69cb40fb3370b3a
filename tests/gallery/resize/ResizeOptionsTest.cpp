#include "gallery/resize/ResizeOptions.h"

#include <QCommandLineParser>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::ResizeJob;

namespace {

std::optional<ResizeJob> read(const QStringList& arguments, QString& error)
{
    QCommandLineParser parser;
    for (const QString& other : {u"keys"_s, u"render"_s, u"locale"_s})
        parser.addOption({other, {}, u"value"_s});
    Gallery::DescribeResizeOptions(parser);
    EXPECT_TRUE(parser.parse(QStringList{u"arbor_gallery"_s} + arguments));
    return Gallery::ReadResizeJob(parser, error);
}

struct BadRow
{
    const char* name;
    QStringList arguments;
    const char* sentence;
};

}

TEST(ResizeOptions, WithoutThemThereIsNothingToResize)
{
    QString error;

    const std::optional<ResizeJob> job = read({u"--keys=F1"_s}, error);

    ASSERT_TRUE(job);
    EXPECT_EQ(job->in, QString());
}

TEST(ResizeOptions, TwoFoldersAndAWidthAreAJob)
{
    QString error;

    const std::optional<ResizeJob> job
        = read({u"--resize"_s, u"photos"_s, u"small"_s, u"--width"_s, u"1600"_s, u"--locale=de"_s}, error);

    ASSERT_TRUE(job) << error.toStdString();
    EXPECT_EQ(job->in, u"photos"_s);
    EXPECT_EQ(job->out, u"small"_s);
    EXPECT_EQ(job->width, 1600);
}

class BadResizeOptions : public testing::TestWithParam<BadRow>
{ };

TEST_P(BadResizeOptions, AreToldInOneSentence)
{
    QString error;

    EXPECT_FALSE(read(GetParam().arguments, error));
    EXPECT_EQ(error, QString::fromLatin1(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    ResizeOptions, BadResizeOptions,
    testing::Values(
        BadRow{"ALooseWord", {u"photos"_s}, "\"photos\" is no option."},
        BadRow{"AWidthOfNothing", {u"--width=5"_s}, "--width goes with --resize."},
        BadRow{"NoTarget", {u"--resize=a"_s, u"--width=5"_s}, "--resize wants two folders: --resize IN OUT."},
        BadRow{"OneMore",
               {u"--resize=a"_s, u"b"_s, u"c"_s, u"--width=5"_s},
               "--resize wants two folders, and \"c\" is one more."},
        BadRow{"NoWidth", {u"--resize=a"_s, u"b"_s}, "--resize wants --width with a number of pixels."},
        BadRow{"AWordForAWidth",
               {u"--resize=a"_s, u"b"_s, u"--width=wide"_s},
               "\"wide\" is no width: it is a whole number of pixels."},
        BadRow{"KeysToo",
               {u"--resize=a"_s, u"b"_s, u"--width=5"_s, u"--keys=F1"_s},
               "--resize goes without --keys."}),
    [](const auto& row) { return row.param.name; });
