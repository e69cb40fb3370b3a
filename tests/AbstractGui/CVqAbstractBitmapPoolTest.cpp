#include "AbstractGui/CVqAbstractBitmapPool.h"

#include "system/CVqStringA.h"
#include "system/CVqStringW.h"
#include "tests/AbstractGui/TestBitmapPool.h"
#include "tests/support/VirtualSlot.h"

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

using testing::ElementsAre;

namespace {

/// Overrides only what it must; the rest is the base class.
class BarePool : public CVqAbstractBitmapPool
{
public:
    using CVqAbstractBitmapPool::addImage;
    using CVqAbstractBitmapPool::addImageSVG;
    using CVqAbstractBitmapPool::createBitmapFromSVG;
    using CVqAbstractBitmapPool::defaultModuleFileName;
    using CVqAbstractBitmapPool::drawOptimalImage;
    using CVqAbstractBitmapPool::getIcon;
    using CVqAbstractBitmapPool::getImage;
    using CVqAbstractBitmapPool::getPixmap;
    using CVqAbstractBitmapPool::getPixmapFromSVG;
    using CVqAbstractBitmapPool::imageSize;
    using CVqAbstractBitmapPool::imageSource;
    using CVqAbstractBitmapPool::instance;
    using CVqAbstractBitmapPool::loadSVG;
    using CVqAbstractBitmapPool::replaceDebug;
    using CVqAbstractBitmapPool::replaceImageSVG;

    virtual ~BarePool() = default;

    int addImageSVG(const vq_wchar*, const char*) override { return 1; }
    int replaceImageSVG(const vq_wchar*, const char*) override { return 2; }
    vq_uint64 createBitmapFromSVG(const char*, vq_uint32, vq_uint32, bool, vq_uint32) override { return 3; }
    void imageSize(vq_uint32, vq_uint32&, vq_uint32&) override { }
    int getImage(const vq_wchar*) override { return 4; }
};

/// Answers each operation with something of its own, and keeps what it was given.
class AnsweringPool final : public BarePool
{
public:
    int imageSource(vq_uint32 index, CVqStringW& file, CVqStringW& resource) override
    {
        file = VQ_TEXT("file");
        resource = VQ_TEXT("resource");
        return answer("imageSource " + std::to_string(index), 20);
    }

    int defaultModuleFileName(vq_wchar* buffer, int size) override
    {
        buffer[0] = VQ_TEXT('m');
        return answer("defaultModuleFileName " + std::to_string(size), 21);
    }

    int addImage(QPixmap* pixmap, const vq_wchar* name) override
    {
        return answer("addImage pixmap of width " + std::to_string(pixmap->width()), name[0]);
    }

    int addImage(const vq_wchar* file) override { return answer("addImage file", file[0]); }

    int addImage(const vq_wchar* file, const vq_wchar* module, const vq_wchar* resource) override
    {
        return answer("addImage source", file[0] + 1000 * module[0] + (resource ? 1 : 0));
    }

    int addImageSVG(const vq_wchar* name, const char* svg) override
    {
        return answer("addImageSVG", name[0] + 1000 * svg[0]);
    }

    int replaceImageSVG(const vq_wchar* name, const char* svg) override
    {
        return answer("replaceImageSVG", name[0] + 1000 * svg[0]);
    }

    vq_uint64 createBitmapFromSVG(const char* svg, vq_uint32 width, vq_uint32 height, bool flag,
                                  vq_uint32 value) override
    {
        return answer(svg, 0x100000000 * width + 1000 * height + (flag ? 100 : 0) + value);
    }

    void imageSize(vq_uint32 index, vq_uint32& width, vq_uint32& height) override
    {
        width = index + 1;
        height = index + 2;
    }

    int replaceDebug(CVqStringW& name) override
    {
        name += VQ_TEXT("d");
        return 22;
    }

    int getImage(const vq_wchar* name) override { return name[0]; }

    QIcon getIcon(vq_uint32 index) override { return QIcon(getPixmap(index, 1, 1)); }

    QPixmap getPixmap(vq_uint32 index, int width, int height) override
    {
        return answer("getPixmap " + std::to_string(index), QPixmap(width, height));
    }

    QPixmap getPixmapFromSVG(const char* svg, int width, int height) override
    {
        return answer(svg, QPixmap(width, height));
    }

    void drawOptimalImage(QPainter* painter, vq_uint32 index, int x, int y, int width, int height, bool flag1,
                          bool flag2) override
    {
        m_given.push_back("drawOptimalImage " + std::to_string(index));
        if (!flag1 && flag2)
            painter->fillRect(x, y, width, height, Qt::red);
    }

    std::vector<std::string> m_given;

private:
    template <class Result>
    Result answer(std::string call, Result result)
    {
        m_given.push_back(std::move(call));
        return result;
    }
};

/// Registers a pool of its own for one test.
class CVqAbstractBitmapPoolTest : public testing::Test
{
protected:
    ~CVqAbstractBitmapPoolTest() override { TestBitmapPool::Fresh(); }

    AnsweringPool& use_answering_pool()
    {
        BarePool::instance(&m_answering);
        return m_answering;
    }

    BarePool& use_bare_pool()
    {
        BarePool::instance(&m_bare);
        return m_bare;
    }

    AnsweringPool m_answering;
    BarePool m_bare;
    CVqStringW m_first{VQ_TEXT("first")};
    CVqStringW m_second{VQ_TEXT("second")};
};

using Pool = CVqAbstractBitmapPool;

CVqStringW write_file(const QTemporaryDir& folder, const QByteArray& content)
{
    const QString name = folder.filePath(QStringLiteral("image.svg"));
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return CVqStringW::FromQString(name);
}

struct LoadSVGRow
{
    const char* name;
    QByteArray content;
    const char* text;
};

void PrintTo(const LoadSVGRow& row, std::ostream* out)
{
    *out << row.name;
}

struct LoadSVGFailureRow
{
    const char* name;
    CVqStringW (*name_in)(const QTemporaryDir& folder);
};

void PrintTo(const LoadSVGFailureRow& row, std::ostream* out)
{
    *out << row.name;
}

}

class CVqAbstractBitmapPoolLoadSVG : public CVqAbstractBitmapPoolTest,
                                     public testing::WithParamInterface<LoadSVGRow>
{ };

class CVqAbstractBitmapPoolLoadSVGFailure : public CVqAbstractBitmapPoolTest,
                                            public testing::WithParamInterface<LoadSVGFailureRow>
{ };

TEST_F(CVqAbstractBitmapPoolTest, InstanceReplacesTheRegisteredPoolAndGivesIt)
{
    BarePool::instance(&m_bare);

    EXPECT_EQ(BarePool::instance(&m_answering), &m_answering);
}

TEST_F(CVqAbstractBitmapPoolTest, InstanceOfNullGivesTheRegisteredPoolAndLeavesIt)
{
    BarePool::instance(&m_bare);

    EXPECT_EQ(BarePool::instance(nullptr), &m_bare);
    EXPECT_EQ(BarePool::instance(nullptr), &m_bare);
}

TEST_F(CVqAbstractBitmapPoolTest, ConstructorRegistersNothing)
{
    use_bare_pool();

    const BarePool other;

    EXPECT_EQ(BarePool::instance(nullptr), &m_bare);
}

TEST_F(CVqAbstractBitmapPoolTest, CopyAndAssignmentRegisterNothing)
{
    use_bare_pool();

    BarePool copy(m_bare);
    copy = m_bare;

    EXPECT_EQ(BarePool::instance(nullptr), &m_bare);
}

TEST_F(CVqAbstractBitmapPoolTest, BaseFailsWhereItCannotAnswer)
{
    use_bare_pool();
    vq_wchar buffer[4] = {};
    QPixmap pixmap(1, 1);

    EXPECT_EQ(Pool::GetImageSource(1, m_first, m_second), -12);
    EXPECT_EQ(Pool::GetDefaultModuleFileName(buffer, 4), -12);
    EXPECT_EQ(Pool::AddImage(&pixmap, VQ_TEXT("a")), -12);
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("a")), -12);
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("a"), VQ_TEXT("b"), VQ_TEXT("c")), -12);
    EXPECT_EQ(Pool::ReplaceDebug(m_first), -12);
}

TEST_F(CVqAbstractBitmapPoolTest, BaseGivesEmptyImagesAndDrawsNothing)
{
    use_bare_pool();
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage before = image.copy();
    QPainter painter(&image);

    Pool::DrawOptimalImage(&painter, 1, 0, 0, 4, 4, false, false);
    painter.end();

    EXPECT_EQ(image, before);
    EXPECT_TRUE(Pool::GetIcon(1).isNull());
    EXPECT_TRUE(Pool::GetPixmap(1, 4, 4).isNull());
    EXPECT_TRUE(Pool::GetPixmapFromSVG("<svg/>", 4, 4).isNull());
}

TEST_F(CVqAbstractBitmapPoolTest, PureOperationsReachTheConcretePool)
{
    use_bare_pool();

    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT("a"), "<svg/>"), 1);
    EXPECT_EQ(Pool::ReplaceImageSVG(VQ_TEXT("a"), "<svg/>"), 2);
    EXPECT_EQ(Pool::CreateBitmapFromSVG("<svg/>", 1, 1, false, 0), 3u);
    EXPECT_EQ(Pool::GetImage(VQ_TEXT("a")), 4);
}

TEST_F(CVqAbstractBitmapPoolTest, SourcesArePassedOn)
{
    AnsweringPool& pool = use_answering_pool();
    vq_wchar buffer[7] = {};

    EXPECT_EQ(Pool::GetImageSource(11, m_first, m_second), 20);
    EXPECT_EQ(Pool::GetDefaultModuleFileName(buffer, 7), 21);
    EXPECT_EQ(Pool::ReplaceDebug(m_first), 22);

    EXPECT_EQ(m_first, VQ_TEXT("filed"));
    EXPECT_EQ(m_second, VQ_TEXT("resource"));
    EXPECT_EQ(buffer[0], VQ_TEXT('m'));
    EXPECT_THAT(pool.m_given, ElementsAre("imageSource 11", "defaultModuleFileName 7"));
}

TEST_F(CVqAbstractBitmapPoolTest, EachAddImageReachesItsOwnOverload)
{
    AnsweringPool& pool = use_answering_pool();
    QPixmap pixmap(3, 1);

    EXPECT_EQ(Pool::AddImage(&pixmap, VQ_TEXT("a")), 'a');
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("b")), 'b');
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("c"), VQ_TEXT("d"), nullptr), 'c' + 1000 * 'd');

    EXPECT_THAT(pool.m_given, ElementsAre("addImage pixmap of width 3", "addImage file", "addImage source"));
}

TEST_F(CVqAbstractBitmapPoolTest, ScalableImagesArePassedOn)
{
    AnsweringPool& pool = use_answering_pool();

    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT("a"), "x"), 'a' + 1000 * 'x');
    EXPECT_EQ(Pool::ReplaceImageSVG(VQ_TEXT("b"), "y"), 'b' + 1000 * 'y');
    EXPECT_EQ(Pool::CreateBitmapFromSVG("z", 2, 3, true, 4), 0x200000000 + 3104);
    EXPECT_EQ(Pool::GetPixmapFromSVG("w", 5, 6).size(), QSize(5, 6));

    EXPECT_THAT(pool.m_given, ElementsAre("addImageSVG", "replaceImageSVG", "z", "w"));
}

TEST_F(CVqAbstractBitmapPoolTest, ImagesArePassedOn)
{
    use_answering_pool();
    vq_uint32 width = 0;
    vq_uint32 height = 0;

    Pool::GetImageSize(7, width, height);

    EXPECT_EQ(width, 8u);
    EXPECT_EQ(height, 9u);
    EXPECT_EQ(Pool::GetImage(VQ_TEXT("q")), 'q');
    EXPECT_EQ(Pool::GetPixmap(1, 5, 6).size(), QSize(5, 6));
    EXPECT_FALSE(Pool::GetIcon(1).isNull());
}

TEST_F(CVqAbstractBitmapPoolTest, DrawingIsPassedOn)
{
    AnsweringPool& pool = use_answering_pool();
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::white);
    QImage expected = image.copy();
    for (int y = 2; y < 4; ++y)
        expected.setPixelColor(1, y, Qt::red);
    QPainter painter(&image);

    Pool::DrawOptimalImage(&painter, 9, 1, 2, 1, 2, false, true);
    painter.end();

    EXPECT_EQ(image, expected);
    EXPECT_THAT(pool.m_given, ElementsAre("drawOptimalImage 9"));
}

TEST_P(CVqAbstractBitmapPoolLoadSVG, GivesTheTextUpToItsFirstZero)
{
    use_bare_pool();
    const QTemporaryDir folder;
    CVqStringA target;
    target = "old";

    EXPECT_EQ(Pool::LoadSVG(target, write_file(folder, GetParam().content)), 0);

    EXPECT_EQ(target.View(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Files, CVqAbstractBitmapPoolLoadSVG,
                         testing::Values(LoadSVGRow{"WholeFile", "<svg>\nü</svg>\n", "<svg>\nü</svg>\n"},
                                         LoadSVGRow{"LineEndsOfText", "<svg>\r\n</svg>\r\n",
                                                    "<svg>\n</svg>\n"},
                                         LoadSVGRow{"ZeroByte", QByteArray("<svg/>\0tail", 11), "<svg/>"},
                                         LoadSVGRow{"EmptyFile", "", ""}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(CVqAbstractBitmapPoolLoadSVGFailure, GivesMinus13AndLeavesTheTarget)
{
    use_bare_pool();
    const QTemporaryDir folder;
    const CVqStringW name = GetParam().name_in(folder);
    CVqStringA target;
    target = "old";

    EXPECT_EQ(Pool::LoadSVG(target, name), -13);

    EXPECT_EQ(target.View(), "old");
}

INSTANTIATE_TEST_SUITE_P(Names, CVqAbstractBitmapPoolLoadSVGFailure,
                         testing::Values(LoadSVGFailureRow{"MissingFile",
                                                           [](const QTemporaryDir& folder) {
                                                               return CVqStringW::FromQString(folder.filePath(
                                                                   QStringLiteral("none.svg")));
                                                           }},
                                         LoadSVGFailureRow{"Folder",
                                                           [](const QTemporaryDir& folder) {
                                                               return CVqStringW::FromQString(folder.path());
                                                           }},
                                         LoadSVGFailureRow{
                                             "EmptyName", [](const QTemporaryDir&) { return CVqStringW(); }}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(CVqAbstractBitmapPoolTest, LoadSVGOfANullNameGivesMinus13)
{
    use_bare_pool();
    CVqStringA target;

    EXPECT_EQ(Pool::LoadSVG(target, nullptr), -13);
}

TEST(CVqAbstractBitmapPoolSlots, PoolHasNoFieldsButItsTable)
{
    EXPECT_EQ(sizeof(CVqAbstractBitmapPool), sizeof(void*));
}

TEST(CVqAbstractBitmapPoolSlots, OperationsStandInTheirOrder)
{
    using File = int (BarePool::*)(const vq_wchar*);
    using Pixmap = int (BarePool::*)(QPixmap*, const vq_wchar*);
    using Source = int (BarePool::*)(const vq_wchar*, const vq_wchar*, const vq_wchar*);

    EXPECT_EQ(VirtualSlot(&BarePool::imageSource), 0u);
    EXPECT_EQ(VirtualSlot(&BarePool::defaultModuleFileName), 1u);
    EXPECT_EQ(VirtualSlot(static_cast<Pixmap>(&BarePool::addImage)), 2u);
    EXPECT_EQ(VirtualSlot(static_cast<File>(&BarePool::addImage)), 3u);
    EXPECT_EQ(VirtualSlot(static_cast<Source>(&BarePool::addImage)), 4u);
    EXPECT_EQ(VirtualSlot(&BarePool::addImageSVG), 5u);
    EXPECT_EQ(VirtualSlot(&BarePool::loadSVG), 6u);
    EXPECT_EQ(VirtualSlot(&BarePool::replaceImageSVG), 7u);
    EXPECT_EQ(VirtualSlot(&BarePool::createBitmapFromSVG), 8u);
    EXPECT_EQ(VirtualSlot(&BarePool::imageSize), 9u);
    EXPECT_EQ(VirtualSlot(&BarePool::replaceDebug), 10u);
    EXPECT_EQ(VirtualSlot(&BarePool::getImage), 11u);
    EXPECT_EQ(VirtualSlot(&BarePool::getIcon), 12u);
    EXPECT_EQ(VirtualSlot(&BarePool::getPixmap), 13u);
    EXPECT_EQ(VirtualSlot(&BarePool::getPixmapFromSVG), 14u);
    EXPECT_EQ(VirtualSlot(&BarePool::drawOptimalImage), 15u);
}
