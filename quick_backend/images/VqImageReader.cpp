#include "quick_backend/images/VqImageReader.h"

#include "quick_backend/images/CVqRasterImage.h"
#include "quick_backend/images/CVqSvgImage.h"
#include "quick_backend/images/VqImageSizes.h"
#include "quick_backend/images/VqRasterFormat.h"
#include "quick_backend/images/VqRasterReader.h"
#include "quick_backend/images/VqSvgGuard.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int too_large = -3;
constexpr int no_image = -9;
constexpr int cannot_open = -13;

using Variant = CVqRasterImage::SVqVariant;

struct FileBytes
{
    QByteArray bytes;
    int code = 0;
};

bool is_too_large(QSize size)
{
    return std::max(size.width(), size.height()) > g_max_image_side;
}

// A device, which may never end, is no file.
FileBytes read_file(const QString& path)
{
    constexpr qint64 most_bytes = qint64(256) * 1024 * 1024;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {{}, cannot_open};
    if (file.size() > most_bytes)
        return {{}, too_large};
    return {file.readAll(), 0};
}

// The variant, or what its size says against it. All pixels are read once, to see that they are there.
std::optional<Variant> read_variant(const QByteArray& bytes, int& code)
{
    code = no_image;
    const QByteArray format = VqRasterFormat(bytes);
    if (format.isEmpty() || !VqIsWholeRaster(bytes, format))
        return {};
    code = VqCheckRasterSize(bytes, format);
    if (code < 0)
        return {};
    const QSize size = VqReadRaster(bytes, format).size();
    code = size.isEmpty() ? no_image : 0;
    if (code < 0)
        return {};
    return Variant{size, bytes, format, {}};
}

QString with_factor(const QString& path, int factor)
{
    const QFileInfo file(path);
    return file.path() + u'/' + file.completeBaseName() + u'@' + QString::number(factor) + "x."_L1
        + file.suffix();
}

// Larger ones of the same name that are no good are as if they were not there.
void add_larger_variants(const QString& path, std::vector<Variant>& variants)
{
    for (const int factor : {2, 3}) {
        int code = 0;
        auto variant = read_variant(read_file(with_factor(path, factor)).bytes, code);
        if (variant)
            variants.push_back(*std::move(variant));
    }
}

SVqReadImage read_raster(const QString& path, const QByteArray& bytes)
{
    int code = 0;
    auto variant = read_variant(bytes, code);
    if (!variant)
        return {nullptr, code};
    std::vector<Variant> variants;
    variants.push_back(*std::move(variant));
    add_larger_variants(path, variants);
    return {std::make_shared<CVqRasterImage>(std::move(variants))};
}

}

SVqReadImage VqReadImageFile(const QString& path)
{
    const FileBytes file = read_file(path);
    if (file.code < 0)
        return {nullptr, file.code};
    return VqRasterFormat(file.bytes).isEmpty() ? VqReadSvg(file.bytes) : read_raster(path, file.bytes);
}

SVqReadImage VqReadSvg(const QByteArray& text)
{
    if (!VqIsSelfContainedSvg(text))
        return {nullptr, no_image};
    auto image = std::make_shared<CVqSvgImage>(text);
    if (!image->IsValid())
        return {nullptr, no_image};
    if (is_too_large(image->Size()))
        return {nullptr, too_large};
    return {std::move(image)};
}

SVqReadImage VqReadPixmap(const QPixmap& pixmap)
{
    if (pixmap.isNull())
        return {nullptr, no_image};
    if (is_too_large(pixmap.size()))
        return {nullptr, too_large};
    std::vector<Variant> variants{{pixmap.size(), {}, {}, pixmap.toImage()}};
    variants.front().picture.setDevicePixelRatio(1);
    return {std::make_shared<CVqRasterImage>(std::move(variants))};
}
