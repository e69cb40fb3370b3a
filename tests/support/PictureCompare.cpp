#include "tests/support/PictureCompare.h"

#include <QDir>

#include <cstring>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Difference
{
    QPoint m_first;
    qint64 m_count = 0;
};

QString folder_of_running_test()
{
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    QString name = test
        ? u"%1.%2"_s.arg(QLatin1StringView(test->test_suite_name()), QLatin1StringView(test->name()))
        : u"outside"_s;
    name.replace(u'/', u'-');
    return u"%1/arbor_pictures/%2"_s.arg(QString::fromStdString(testing::TempDir()), name);
}

// Gives a sentence that tells where the file is.
std::string keep(const QImage& image, const QString& file_name)
{
    const QDir folder(folder_of_running_test());
    const QString path = QDir::cleanPath(folder.filePath(file_name));
    const bool is_kept = folder.mkpath(u"."_s) && image.save(path);
    return (is_kept ? "is kept as " : "could not be kept as ") + path.toStdString();
}

testing::AssertionResult failure(const std::string& what, const QImage& picture, const QImage& expected)
{
    static int number = 0;
    const QString stem = QString::number(++number);
    auto result = testing::AssertionFailure() << what;
    if (!picture.isNull())
        result << "\n    the picture " << keep(picture, stem + u"-picture.png"_s);
    if (!expected.isNull())
        result << "\n    the expected one " << keep(expected, stem + u"-expected.png"_s);
    return result;
}

std::string size_text(const QImage& image)
{
    if (image.isNull())
        return "null";
    return std::to_string(image.width()) + " x " + std::to_string(image.height()) + " pixels";
}

std::string pixel_text(const QImage& image, QPoint at)
{
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(at.y()));
    return u"#%1"_s.arg(line[at.x()], 8, 16, QLatin1Char('0')).toStdString();
}

void count_in_line(const QImage& left, const QImage& right, int y, Difference& difference)
{
    const auto* left_line = reinterpret_cast<const QRgb*>(left.constScanLine(y));
    const auto* right_line = reinterpret_cast<const QRgb*>(right.constScanLine(y));
    if (std::memcmp(left_line, right_line, sizeof(QRgb) * static_cast<std::size_t>(left.width())) == 0)
        return;

    for (int x = 0; x < left.width(); ++x) {
        if (left_line[x] != right_line[x] && difference.m_count++ == 0)
            difference.m_first = {x, y};
    }
}

Difference difference_of(const QImage& left, const QImage& right)
{
    Difference difference;
    for (int y = 0; y < left.height(); ++y)
        count_in_line(left, right, y, difference);
    return difference;
}

}

testing::AssertionResult EqualPictures(const QImage& picture, const QImage& expected)
{
    if (picture.isNull() != expected.isNull() || picture.size() != expected.size())
        return failure("the picture is " + size_text(picture) + ", expected " + size_text(expected), picture,
                       expected);

    const QImage left = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage right = expected.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const Difference difference = difference_of(left, right);
    if (difference.m_count == 0)
        return testing::AssertionSuccess();

    const QPoint first = difference.m_first;
    const qint64 all = qint64(left.width()) * left.height();
    return failure("pixel (" + std::to_string(first.x()) + ", " + std::to_string(first.y()) + ") is "
                       + pixel_text(left, first) + ", expected " + pixel_text(right, first) + "; "
                       + std::to_string(difference.m_count) + " of " + std::to_string(all) + " pixels differ",
                   picture, expected);
}
