#include "gallery/render/RenderOptions.h"

#include <QCommandLineParser>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::RenderJob;
using Gallery::RenderValue;

namespace {

std::optional<RenderJob> read(const QStringList& arguments, QString& error)
{
    QCommandLineParser parser;
    for (const QString& other : {u"keys"_s, u"screenshots"_s, u"demo"_s, u"page"_s})
        parser.addOption({other, {}, u"value"_s});
    Gallery::DescribeRenderOptions(parser);
    EXPECT_TRUE(parser.parse(QStringList{u"arbor_gallery"_s} + arguments));
    return Gallery::ReadRenderJob(parser, error);
}

struct BadRow
{
    const char* name;
    QStringList arguments;
    const char* sentence;
};

}

TEST(RenderOptions, WithoutThemThereIsNothingToRender)
{
    QString error;

    const std::optional<RenderJob> job = read({u"--keys=F1"_s}, error);

    ASSERT_TRUE(job);
    EXPECT_EQ(job->file, QString());
}

TEST(RenderOptions, FileAndPictureAreEnough)
{
    QString error;

    const std::optional<RenderJob> job = read({u"--render"_s, u"a.qml"_s, u"--out"_s, u"a.png"_s}, error);

    ASSERT_TRUE(job) << error.toStdString();
    EXPECT_EQ(job->file, u"a.qml"_s);
    EXPECT_EQ(job->out, u"a.png"_s);
    EXPECT_FALSE(job->size.isValid());
    EXPECT_TRUE(job->values.isEmpty());
}

TEST(RenderOptions, SizeAndValuesAreTakenInTheirOrder)
{
    QString error;

    const std::optional<RenderJob> job = read({u"--render=a.qml"_s, u"--out=a.png"_s, u"--size=800x600"_s,
                                               u"--set"_s, u"text=a=b"_s, u"--set"_s, u"label="_s},
                                              error);

    ASSERT_TRUE(job) << error.toStdString();
    EXPECT_EQ(job->size, QSize(800, 600));
    EXPECT_EQ(job->values, (QList<RenderValue>{{u"text"_s, u"a=b"_s}, {u"label"_s, QString()}}));
}

class BadRenderOptions : public testing::TestWithParam<BadRow>
{ };

TEST_P(BadRenderOptions, AreToldInOneSentence)
{
    QString error;

    EXPECT_FALSE(read(GetParam().arguments, error));
    EXPECT_EQ(error, QString::fromLatin1(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    RenderOptions, BadRenderOptions,
    testing::Values(
        BadRow{"NoPicture", {u"--render=a.qml"_s}, "--render wants --out with the name of the picture."},
        BadRow{"NoFile", {u"--out=a.png"_s}, "--out goes with --render."},
        BadRow{"ASizeOfNothing", {u"--size=8x6"_s}, "--size goes with --render."},
        BadRow{"AValueOfNothing", {u"--set=a=b"_s}, "--set goes with --render."},
        BadRow{"KeysToo",
               {u"--render=a.qml"_s, u"--out=a.png"_s, u"--keys=F1"_s},
               "--render goes without --keys."},
        BadRow{"APageToo",
               {u"--render=a.qml"_s, u"--out=a.png"_s, u"--page=b"_s},
               "--render goes without --page."},
        BadRow{"AValueWithoutASign",
               {u"--render=a.qml"_s, u"--out=a.png"_s, u"--set=text"_s},
               "--set wants NAME=VALUE, not \"text\"."},
        BadRow{"AValueWithoutAName",
               {u"--render=a.qml"_s, u"--out=a.png"_s, u"--set==text"_s},
               "--set wants NAME=VALUE, not \"=text\"."},
        BadRow{"AnEmptySize",
               {u"--render=a.qml"_s, u"--out=a.png"_s, u"--size=0x6"_s},
               "A picture of 0x6 pixels is empty: each side has 1 at least."}),
    [](const auto& row) { return row.param.name; });

TEST(RenderOptions, AnExtensionWithoutAFormatIsRefused)
{
    QString error;

    EXPECT_FALSE(read({u"--render=a.qml"_s, u"--out=a.txt"_s}, error));
    EXPECT_TRUE(error.startsWith(u"a.txt has no extension of a picture: there are "_s))
        << error.toStdString();
}
