#include "quick_backend/images/VqRasterFormat.h"

#include <QtEndian>

namespace {

bool is_whole_png(const QByteArray& bytes)
{
    constexpr qsizetype frame = 12; // length, type and checksum
    qsizetype at = 8;
    while (bytes.size() - at >= frame) {
        const quint32 length = qFromBigEndian<quint32>(bytes.constData() + at);
        if (length > quint64(bytes.size() - at - frame))
            return false;
        if (bytes.sliced(at + 4, 4) == "IEND")
            return true;
        at += frame + length;
    }
    return false;
}

bool has_no_length(uchar marker)
{
    constexpr uchar stuffed = 0;
    constexpr uchar fill = 0xFF;
    constexpr uchar temporary = 1;
    return marker == stuffed || marker == fill || marker == temporary || (marker >= 0xD0 && marker <= 0xD8);
}

// Pictures within a segment, such as a camera's preview, have ends of their own, so segments are stepped
// over. Between them only coded pixels have bytes, in which a marker's first byte never stands alone.
bool is_whole_jpeg(const QByteArray& bytes)
{
    constexpr uchar end_of_image = 0xD9;
    qsizetype at = bytes.indexOf('\xFF', 2);
    while (at >= 0 && at + 1 < bytes.size()) {
        const uchar marker = uchar(bytes[at + 1]);
        if (marker == end_of_image)
            return true;
        qsizetype next = at + (marker == 0xFF ? 1 : 2);
        if (!has_no_length(marker)) {
            if (bytes.size() - next < 2)
                return false;
            next += qFromBigEndian<quint16>(bytes.constData() + next);
        }
        at = next < bytes.size() ? bytes.indexOf('\xFF', next) : -1;
    }
    return false;
}

bool is_whole_webp(const QByteArray& bytes)
{
    constexpr quint64 head = 8; // in front of what the length counts
    return qFromLittleEndian<quint32>(bytes.constData() + 4) + head <= quint64(bytes.size());
}

}

QByteArray VqRasterFormat(const QByteArray& bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return "png";
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    if (bytes.size() >= 12 && bytes.startsWith("RIFF") && bytes.sliced(8, 4) == "WEBP")
        return "webp";
    return {};
}

bool VqIsWholeRaster(const QByteArray& bytes, const QByteArray& format)
{
    if (format == "png")
        return is_whole_png(bytes);
    return format == "jpeg" ? is_whole_jpeg(bytes) : is_whole_webp(bytes);
}
