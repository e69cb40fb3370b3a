#include "gallery/resize/ImageEnd.h"

#include <QtEndian>

namespace Gallery {

namespace {

constexpr uchar g_jpeg_end = 0xD9;
constexpr qsizetype g_bmp_file_header = 14; // bytes
constexpr qsizetype g_bmp_headers = 54;     // with the one behind it, which very old files have shorter
constexpr quint32 g_bmp_info = 40;
constexpr qsizetype g_gif_header = 13;
constexpr qsizetype g_gif_picture = 10; // bytes before the colours of a picture
constexpr qsizetype g_png_start = 8;    // bytes before the first chunk
constexpr qsizetype g_png_around = 12;  // length, name and check sum of a chunk

/// Markers without a length behind them: a plain 0xFF of the image data, restarts, the start.
bool stands_alone(uchar marker)
{
    return marker <= 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

/// Segments are stepped over by their length, as a preview in one of them has an end of its own.
bool is_whole_jpeg(QByteArrayView bytes)
{
    for (qsizetype at = 0; (at = bytes.indexOf('\xFF', at)) >= 0;) {
        if (at + 1 >= bytes.size())
            return false;
        const auto marker = static_cast<uchar>(bytes[at + 1]);
        if (marker == g_jpeg_end)
            return true;
        if (marker == 0xFF)
            ++at; // filling
        else if (stands_alone(marker))
            at += 2;
        else if (at + 3 < bytes.size())
            at += 2 + qFromBigEndian<quint16>(bytes.data() + at + 2);
        else
            return false;
    }
    return false;
}

bool is_whole_png(QByteArrayView bytes)
{
    for (qsizetype at = g_png_start; at + g_png_around <= bytes.size();) {
        const auto size = qsizetype(qFromBigEndian<quint32>(bytes.data() + at));
        if (size > bytes.size() - at - g_png_around)
            return false;
        if (bytes.sliced(at + 4, 4) == QByteArrayView("IEND"))
            return true;
        at += g_png_around + size;
    }
    return false;
}

/// The bytes of the pixels alone, as the header tells; 0 for what it does not tell.
qint64 bmp_pixels(const char* header)
{
    const qint64 width = qFromLittleEndian<qint32>(header + 18);
    const qint64 height = qAbs(qint64(qFromLittleEndian<qint32>(header + 22)));
    const qint64 depth = qFromLittleEndian<quint16>(header + 28);
    const auto compression = qFromLittleEndian<quint32>(header + 30);
    const bool is_plain = compression == 0 || compression == 3;
    return is_plain ? (width * depth + 31) / 32 * 4 * height : qFromLittleEndian<quint32>(header + 34);
}

bool is_whole_bmp(QByteArrayView bytes)
{
    if (bytes.size() < g_bmp_file_header + 4)
        return false;
    if (qFromLittleEndian<quint32>(bytes.data() + g_bmp_file_header) < g_bmp_info)
        return true; // tells too little
    if (bytes.size() < g_bmp_headers)
        return false;
    const qint64 start = qFromLittleEndian<quint32>(bytes.data() + 10);
    return bmp_pixels(bytes.data()) <= bytes.size() - start;
}

/// The size of a table of colours that `flags` announce.
qsizetype gif_colors(char flags)
{
    return flags & 0x80 ? 3 * (qsizetype(2) << (flags & 7)) : 0;
}

/// The place behind the pieces that begin at `at`; past the end when the last one is missing.
qsizetype behind_gif_pieces(QByteArrayView bytes, qsizetype at)
{
    while (at < bytes.size() && bytes[at] != '\0')
        at += 1 + static_cast<uchar>(bytes[at]);
    return at + 1;
}

bool is_whole_gif(QByteArrayView bytes)
{
    if (bytes.size() < g_gif_header)
        return false;
    qsizetype at = g_gif_header + gif_colors(bytes[10]);
    while (at + g_gif_picture <= bytes.size() && bytes[at] == '!') // notes before the picture
        at = behind_gif_pieces(bytes, at + 2);
    if (at + g_gif_picture > bytes.size() || bytes[at] != ',')
        return false;
    const qsizetype colors = gif_colors(bytes[at + g_gif_picture - 1]);
    return behind_gif_pieces(bytes, at + g_gif_picture + colors + 1) <= bytes.size();
}

}

bool HasImageEnd(const QByteArray& format)
{
    return format == "bmp" || format == "gif" || format == "jpeg" || format == "png";
}

bool IsWholeImage(QByteArrayView bytes, const QByteArray& format)
{
    if (format == "bmp")
        return is_whole_bmp(bytes);
    if (format == "gif")
        return is_whole_gif(bytes);
    return format == "png" ? is_whole_png(bytes) : is_whole_jpeg(bytes);
}

}
