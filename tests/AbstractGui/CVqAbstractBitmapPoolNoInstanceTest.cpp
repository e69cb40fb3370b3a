#include "AbstractGui/CVqAbstractBitmapPool.h"
#include "system/CVqStringA.h"
#include "system/CVqStringW.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

/// Shows which pool is registered.
class AnyPool final : public CVqAbstractBitmapPool
{
public:
    using CVqAbstractBitmapPool::instance;
};

struct NoPoolRow
{
    const char* name;
    bool (*holds)();
};

void PrintTo(const NoPoolRow& row, std::ostream* out)
{
    *out << row.name;
}

using Pool = CVqAbstractBitmapPool;

bool source_fails()
{
    CVqStringW file(VQ_TEXT("a"));
    CVqStringW resource(VQ_TEXT("b"));
    return Pool::GetImageSource(1, file, resource) == -12 && file == VQ_TEXT("a") && resource == VQ_TEXT("b");
}

bool module_name_fails()
{
    vq_wchar buffer[] = VQ_TEXT("a");
    return Pool::GetDefaultModuleFileName(buffer, 2) == -12 && buffer[0] == VQ_TEXT('a');
}

bool load_fails()
{
    CVqStringA target;
    return Pool::LoadSVG(target, VQ_TEXT("missing.svg")) == -12;
}

bool size_stays()
{
    vq_uint32 width = 5;
    vq_uint32 height = 6;
    Pool::GetImageSize(1, width, height);
    return width == 5 && height == 6;
}

bool replace_fails()
{
    CVqStringW name(VQ_TEXT("a"));
    return Pool::ReplaceDebug(name) == -12 && name == VQ_TEXT("a");
}

bool nothing_is_drawn()
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage before = image.copy();
    QPainter painter(&image);
    Pool::DrawOptimalImage(&painter, 1, 0, 0, 4, 4, true, true);
    painter.end();
    return image == before;
}

bool add_pixmap_fails()
{
    QPixmap pixmap(1, 1);
    return Pool::AddImage(&pixmap, VQ_TEXT("a")) == -12;
}

const NoPoolRow no_pool_rows[] = {
    {"GetImageSource", source_fails},
    {"GetDefaultModuleFileName", module_name_fails},
    {"AddImageOfPixmap", add_pixmap_fails},
    {"AddImageOfFile", [] { return Pool::AddImage(VQ_TEXT("a")) == -12; }},
    {"AddImageOfSource", [] { return Pool::AddImage(VQ_TEXT("a"), nullptr, nullptr) == -12; }},
    {"AddImageSVG", [] { return Pool::AddImageSVG(VQ_TEXT("a"), "<svg/>") == -1; }},
    {"LoadSVG", load_fails},
    {"ReplaceImageSVG", [] { return Pool::ReplaceImageSVG(VQ_TEXT("a"), "<svg/>") == -1; }},
    {"CreateBitmapFromSVG", [] { return Pool::CreateBitmapFromSVG("<svg/>", 1, 1, true, 1) == 0; }},
    {"GetImageSize", size_stays},
    {"ReplaceDebug", replace_fails},
    {"GetImage", [] { return Pool::GetImage(VQ_TEXT("a")) == -1; }},
    {"GetIcon", [] { return Pool::GetIcon(1).isNull(); }},
    {"GetPixmap", [] { return Pool::GetPixmap(1, 4, 4).isNull(); }},
    {"GetPixmapFromSVG", [] { return Pool::GetPixmapFromSVG("<svg/>", 4, 4).isNull(); }},
    {"DrawOptimalImage", nothing_is_drawn},
    {"Instance", [] { return AnyPool::instance(nullptr) == nullptr; }},
};

}

// A pool cannot be taken back, so this is asked in a process that never had one.
class CVqAbstractBitmapPoolNoInstance : public testing::TestWithParam<NoPoolRow>
{ };

TEST_P(CVqAbstractBitmapPoolNoInstance, GivesItsOwnFailureValue)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");

    EXPECT_EXIT(std::_Exit(GetParam().holds() ? 0 : 1), testing::ExitedWithCode(0), "");
}

INSTANTIATE_TEST_SUITE_P(Rows, CVqAbstractBitmapPoolNoInstance, testing::ValuesIn(no_pool_rows),
                         [](const auto& row) { return std::string(row.param.name); });
