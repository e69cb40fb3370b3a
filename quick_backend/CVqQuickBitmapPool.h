#pragma once

#include "AbstractGui/CVqAbstractBitmapPool.h"
#include "arbor_quick_backend_export.h"

#include <QImage>
#include <QString>
#include <QtTypes>

#include <memory>

class QQmlEngine;
struct SVqFoundImage;

/// The image pool of an application that draws with Qt Quick: PNG, JPEG, WebP (where Qt's plug-in for it is
/// installed) and SVG, from files, compiled resources, resource modules and memory.
///
///     QGuiApplication app(argc, argv);
///     CVqQuickBitmapPool pool;                     // registers itself
///     QQmlApplicationEngine engine;
///     pool.AddImageProvider(engine);               // image://arbor/INDEX
///
///     CVqAbstractBitmapPool::AddImage(VQ_TEXT("k7_tile_assets.dll"), VQ_TEXT("OPEN"), nullptr);
///
/// **Indices** start at 1: a stored menu has no image 0. The same source gives the same index, however it is
/// written; an index stays for the life of the pool.
///
/// **Sources.** A file by its path. A compiled resource as ":/..." or "qrc:/...". An image of a resource
/// module by the file name of the module, with or without a folder, and the image's name, as in
/// ("k7_tile_assets.dll", "OPEN"); see AddModule(). Beside a file "name.png" also "name@2x.png" and
/// "name@3x.png" are taken where they are good: whatever is drawn comes from the one that needs the least
/// scaling.
///
/// **Codes** of adding an image: -1 for the name "NULL", which means none; -3 for an image of more than
/// 16,384 pixels a side, or of more memory than QImageReader::allocationLimit(); -9 for no name, no image, a
/// file of another kind or one that is cut, and an SVG that refers to anything outside of itself, or whose
/// references add more than 100,000 elements; -13 for what cannot be found or opened, an address in a network
/// too. An image that fails changes nothing. Nothing is ever fetched. By SVG text all these are -1.
///
/// **Colours.** An SVG that draws in one colour, whichever, is a stencil: it takes QPalette::WindowText of
/// the application's palette, that of the disabled group when disabled, and QPalette::HighlightedText when
/// selected. All other images keep their colours; disabled they are grey and half as opaque.
///
/// **Memory.** Of a file the pool keeps the bytes, and of what it drew as much as SetCacheLimit() says.
///
/// GUI thread only, apart from the provider. Pixmaps and icons stay good when the pool is gone; the static
/// operations then answer as they do without a pool.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickBitmapPool : public CVqAbstractBitmapPool
{
public:
    CVqQuickBitmapPool();
    virtual ~CVqQuickBitmapPool();
    Q_DISABLE_COPY_MOVE(CVqQuickBitmapPool)

    /// Serves the pool's images to the QML of `engine`, also those that are added later, under
    ///
    ///     image://arbor/INDEX[?state=normal|active|selected|disabled][&color=COLOUR][&revision=ANY]
    ///
    /// `color` takes the place of the palette's, for windows with a palette of their own: a name, "#rrggbb"
    /// or "#aarrggbb", encoded as in "?color=" + encodeURIComponent(palette.text). `revision` is not looked
    /// at: an Image loads again when it changes, as it has to for a replaced image and, without a `color`,
    /// for another palette. The source's size, which an Image can set, counts in logical pixels and is fitted
    /// into with the ratio kept; what is drawn has the window's device pixels.
    ///
    /// An unknown index and everything else give no image, and Qt's error.
    ///
    /// The engine owns the provider, which may outlive the pool; each engine wants a call of its own.
    void AddImageProvider(QQmlEngine& engine);

    /// Says where the images of the module file `name` are, "my_images.dll": in `root`, a folder of compiled
    /// resources such as ":/my_images", or of files. A later call for the same name takes effect for images
    /// that are added afterwards. Names are compared without case.
    ///
    /// Without a call the module "k7_NAME.dll" has its images in ":/NAME", whatever follows its last dot.
    ///
    /// In the folder the image "OPEN" is the file of that name, or of that name in lower case with .svg,
    /// .png, .webp, .jpg or .jpeg behind it.
    void AddModule(const QString& name, const QString& root);

    /// Bytes of drawn images that are kept at most; 64 MiB from the start. What was used least recently goes
    /// first.
    void SetCacheLimit(qsizetype bytes);
    qsizetype CacheLimit() const;
    qsizetype CachedBytes() const;

    /// The picture behind a handle of CreateBitmapFromSVG(), which is worth nothing afterwards; a null image
    /// for 0. Whoever makes a handle has to call this once: it is the only thing that frees the picture.
    static QImage TakeBitmap(vq_uint64 handle);

protected:
    /// The module's file name and the image's name; for other images the path, or the name that they were
    /// added under, and an empty text. -13 for an unknown index, with both left as they are.
    int imageSource(vq_uint32 index, CVqStringW& file, CVqStringW& resource) override;

    /// "k7_tile_assets.dll" in the folder of the executable. -9 without room for all of it: the buffer then
    /// holds an empty text, unless it has no room at all.
    int defaultModuleFileName(vq_wchar* buffer, int size) override;

    /// The pixmap is shared. A name that is in the pool keeps its image and gives its index. -9 for a null
    /// pixmap.
    int addImage(QPixmap* pixmap, const vq_wchar* name) override;

    /// A name that a pixmap or an SVG was added under, or a file.
    int addImage(const vq_wchar* file) override;

    /// (module, name, null), (name, module, null), (anything, module, name), or (file, null, null). A stored
    /// menu's name for a file below the default module's folder, which has the way to it behind it, is
    /// understood.
    int addImage(const vq_wchar* file, const vq_wchar* module, const vq_wchar* resource) override;

    /// A name that is in the pool keeps its image and gives its index.
    int addImageSVG(const vq_wchar* name, const char* svg) override;

    /// The image behind the name's index is another one from then on; -1 for an unknown name too, and the old
    /// one stays when the new one fails. Icons and pixmaps that were handed out keep the old one.
    int replaceImageSVG(const vq_wchar* name, const char* svg) override;

    /// A picture in QImage::Format_ARGB32_Premultiplied of that size, into which the image is fitted. With
    /// `flag` a stencil is drawn in the colour `value`, which holds red in its lowest byte, otherwise in its
    /// own. 0 for a bad text or a side of 0. Give the handle to TakeBitmap().
    vq_uint64 createBitmapFromSVG(const char* svg, vq_uint32 width, vq_uint32 height, bool flag,
                                  vq_uint32 value) override;

    /// Both stay as they are for an unknown index.
    void imageSize(vq_uint32 index, vq_uint32& width, vq_uint32& height) override;

    /// For a name that was put behind the default module's folder without a separator, as readers of stored
    /// menus do: the separator comes in, or the folder goes, where that names a module, an image of the pool
    /// or a file. So it does for a bare name. Every other name stays. 0 in all cases.
    int replaceDebug(CVqStringW& name) override;

    /// The index of a name that a pixmap or an SVG was added under, or of a file that was added; -1
    /// otherwise.
    int getImage(const vq_wchar* name) override;

    /// An icon that draws each size, mode and device pixel ratio as it is asked for; null for an unknown
    /// index.
    QIcon getIcon(vq_uint32 index) override;

    /// A pixmap of exactly that size in pixels, into which the image is fitted, with its ratio kept. A side
    /// of 0 or less follows from the other one; both give the natural size. Null for an unknown index and for
    /// more than 16,384 a side.
    QPixmap getPixmap(vq_uint32 index, int width, int height) override;
    QPixmap getPixmapFromSVG(const char* svg, int width, int height) override;

    /// `flag1`: fits the image into the rectangle, with its ratio kept, instead of filling it. `flag2`: draws
    /// it as disabled. Sharp under every scale of the painter.
    void drawOptimalImage(QPainter* painter, vq_uint32 index, int x, int y, int width, int height, bool flag1,
                          bool flag2) override;

private:
    struct SVqParts;

    ARBOR_QUICK_BACKEND_NO_EXPORT int AddFile(const SVqFoundImage& found);

    const std::unique_ptr<SVqParts> m_parts;
};
