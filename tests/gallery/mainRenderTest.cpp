#include "tests/gallery/PageFolder.h"
#include "tests/support/PictureCompare.h"

#include <QPainter>
#include <QProcess>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_longest_run = 100000; // ms

constexpr auto g_corners = R"(import QtQuick
Item {
    id: root
    property color first: "red"
    property int wide: 10
    width: 40; height: 20
    Rectangle { width: root.wide; height: 5; color: root.first }
    Rectangle { x: root.width - 10; width: 10; height: 5; color: "#0000ff" }
    Rectangle { y: root.height - 5; width: 10; height: 5; color: "#80ffffff" }
}
)";

struct Outcome
{
    int code = -1;
    QString errors;
};

/// Runs the program itself, on the display of the test.
Outcome run(const QStringList& arguments, const QString& scene_graph = u"rhi"_s)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QUICK_BACKEND"_s, scene_graph);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ARBOR_GALLERY_PROGRAM), arguments);
    EXPECT_TRUE(process.waitForFinished(g_longest_run)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}

QImage corners(const QSize& size, const QColor& first, int wide)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(0, 0, wide, 5, first);
    painter.fillRect(size.width() - 10, 0, 10, 5, QColor(0, 0, 255));
    painter.fillRect(0, size.height() - 5, 10, 5, QColor(255, 255, 255, 128));
    return image;
}

int colors_in(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    return static_cast<int>(colors.size());
}

class ArborGalleryRender : public testing::Test
{
protected:
    /// Draws page.qml with these arguments into out.png.
    Outcome Render(const QByteArray& qml, const QStringList& arguments = {})
    {
        return run(QStringList{u"--render"_s, m_folder.Page(qml).toLocalFile(), u"--out"_s, OutPath()}
                   + arguments);
    }

    QString OutPath() const { return m_folder.Path(u"out.png"_s); }
    QString PagePath() const { return m_folder.Path(u"page.qml"_s); }

    PageFolder m_folder;
};

}

TEST_F(ArborGalleryRender, APageIsDrawnInItsOwnSize)
{
    const Outcome result = Render(g_corners);

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, QString());
    EXPECT_TRUE(EqualPictures(QImage(OutPath()), corners({40, 20}, Qt::red, 10)));
}

TEST_F(ArborGalleryRender, APageIsDrawnInAGivenSizeWithValues)
{
    const Outcome result = Render(
        g_corners, {u"--size"_s, u"61x33"_s, u"--set"_s, u"first=#00ff00"_s, u"--set"_s, u"wide=20"_s});

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, QString());
    EXPECT_TRUE(EqualPictures(QImage(OutPath()), corners({61, 33}, QColor(0, 255, 0), 20)));
}

TEST_F(ArborGalleryRender, AQmlErrorHasALineWithFileLineAndText)
{
    const Outcome result = Render("import QtQuick\nItem {\n    wdith: 4\n}\n");

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, PagePath() + u":3: Cannot assign to non-existent property \"wdith\"\n"_s);
    EXPECT_FALSE(QFile::exists(OutPath()));
}

TEST_F(ArborGalleryRender, AMissingRequiredPropertyIsAnErrorWithFileAndLine)
{
    const Outcome result = Render("import QtQuick\nItem {\n    required property int number\n}\n");

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, PagePath() + u":3: Required property number was not initialized\n"_s);
}

TEST_F(ArborGalleryRender, WarningsOfTheCodeAreToldAndDoNotFail)
{
    const Outcome result = Render("import QtQuick\nItem {\n    width: 4; height: 4\n    x: nowhere.x\n}\n");

    EXPECT_EQ(result.code, 0);
    EXPECT_TRUE(result.errors.endsWith(u": ReferenceError: nowhere is not defined\n"_s))
        << result.errors.toStdString();
    EXPECT_EQ(QImage(OutPath()).size(), QSize(4, 4));
}

TEST_F(ArborGalleryRender, AnUnknownPropertyIsAnError)
{
    const Outcome result = Render(g_corners, {u"--set"_s, u"frist=red"_s});

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, u"The root has no property \"frist\".\n"_s);
}

TEST_F(ArborGalleryRender, AValueThatDoesNotFitIsAnError)
{
    const Outcome result = Render(g_corners, {u"--set"_s, u"wide=very"_s});

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, u"The property \"wide\" takes a whole number, not \"very\".\n"_s);
}

TEST_F(ArborGalleryRender, ARootThatIsNoItemIsAnError)
{
    const Outcome result = Render("import QtQml\nQtObject { }\n");

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, PagePath() + u": the root is no item, so there is nothing to draw.\n"_s);
}

TEST_F(ArborGalleryRender, AMissingFileIsAnError)
{
    const Outcome result = run({u"--render"_s, u"nowhere.qml"_s, u"--out"_s, OutPath()});

    EXPECT_EQ(result.code, 2);
    EXPECT_TRUE(
        result.errors.startsWith(u"nowhere.qml: there is no such file, and no such page; there are "_s))
        << result.errors.toStdString();
}

TEST_F(ArborGalleryRender, AnUnwritablePictureIsAnError)
{
    const QString out = m_folder.Path(u"nowhere/out.png"_s);

    const Outcome result = run({u"--render"_s, m_folder.Page(g_corners).toLocalFile(), u"--out"_s, out});

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors, out + u" cannot be written: No such file or directory.\n"_s);
}

TEST_F(ArborGalleryRender, AnUnfitSizeIsAnError)
{
    const Outcome none = Render(g_corners, {u"--size"_s, u"0x20"_s});
    const Outcome large = Render(g_corners, {u"--size"_s, u"16385x20"_s});

    EXPECT_EQ(none.code, 2);
    EXPECT_EQ(none.errors, u"A picture of 0x20 pixels is empty: each side has 1 at least.\n"_s);
    EXPECT_EQ(large.code, 2);
    EXPECT_EQ(large.errors, u"A picture of 16385x20 pixels is too large: each side has 16384 at most.\n"_s);
}

TEST_F(ArborGalleryRender, WithoutOpenGLThereIsOneSentence)
{
    const Outcome result
        = run({u"--render"_s, m_folder.Page(g_corners).toLocalFile(), u"--out"_s, OutPath()}, u"software"_s);

    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(
        result.errors,
        u"Pages are drawn with OpenGL, and there is none: it takes a display, and no other back end in QT_QUICK_BACKEND.\n"_s);
    EXPECT_FALSE(QFile::exists(OutPath()));
}

TEST_F(ArborGalleryRender, APageOfTheGalleryGoesByItsName)
{
    const Outcome result
        = run({u"--render"_s, u"ResourcesPage"_s, u"--out"_s, OutPath(), u"--size"_s, u"640x400"_s});

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, QString());
    EXPECT_EQ(QImage(OutPath()).size(), QSize(640, 400));
    EXPECT_GT(colors_in(QImage(OutPath())), 20);
}

TEST_F(ArborGalleryRender, ItsOwnPageIsComplete)
{
    const Outcome result = run({u"--render"_s, u"PicturePage"_s, u"--out"_s, OutPath()});

    EXPECT_EQ(result.errors, QString());
    EXPECT_GT(colors_in(QImage(OutPath())), 500);
}

TEST_F(ArborGalleryRender, ACompiledFileGoesByItsAddress)
{
    const Outcome result = run({u"--render"_s, u"qrc:///qt/qml/K7/Arbor/Gallery/FileIcon.qml"_s, u"--out"_s,
                                OutPath(), u"--set"_s, u"folder=true"_s, u"--set"_s, u"color=#ff0000"_s});

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, QString());
    EXPECT_EQ(QImage(OutPath()).size(), QSize(18, 18));
    EXPECT_GT(colors_in(QImage(OutPath())), 3);
}

TEST_F(ArborGalleryRender, TheTourDrawsThePagesBesideTheWindow)
{
    const Outcome result = run({u"--demo"_s, m_folder.Path(u"tour"_s)});

    EXPECT_EQ(result.code, 0) << result.errors.toStdString();
    for (const char* name : {"main", "pages/PicturePage", "pages/PicturePage-dark", "pages/ResourcesPage"})
        EXPECT_FALSE(QImage(m_folder.Path(u"tour/%1.png"_s.arg(QLatin1StringView(name)))).isNull()) << name;
}
