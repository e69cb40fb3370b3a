#pragma once

#include "arbor_qml_support_export.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

#include <QIcon>
#include <QPixmap>

class CVqStringA;
class CVqStringW;
class QPainter;

/// The process-wide store of images. An image is named by an index that the pool hands out: 0 or above, and
/// -1 means none.
///
/// Callers use the static operations, which pass everything on to the one registered pool and give the value
/// that is told for each when there is none. The library holds no pool of its own: a concrete pool derives,
/// overrides the virtual operations and registers itself. It is not owned here and has to outlive its use.
/// Register and use on the GUI thread; nothing is locked.
///
///     class Pool final : public CVqAbstractBitmapPool
///     {
///     public:
///         Pool() { instance(this); }
///         ...
///     };
class ARBOR_QML_SUPPORT_EXPORT CVqAbstractBitmapPool
{
public:
    // Sources of images: -12 without a pool ----------------------------------------------------------

    /// Where an image came from: its file, and the name of a resource or an empty text. 0 on success.
    static int GetImageSource(vq_uint32 index, CVqStringW& file, CVqStringW& resource);

    /// Writes the file name of the module that images come from by default into `buffer`, which has room for
    /// `size` units, the terminator included. 0 on success.
    static int GetDefaultModuleFileName(vq_wchar* buffer, int size);

    /// Puts the name of a debugging build's file in place of `name` where the pool knows one. 0 on success.
    static int ReplaceDebug(CVqStringW& name);

    // Adding images: the index, or a negative code ---------------------------------------------------

    /// A ready pixmap under a name; -12 without a pool.
    static int AddImage(QPixmap* pixmap, const vq_wchar* name);

    /// An image by one name; -12 without a pool.
    static int AddImage(const vq_wchar* file);

    /// An image by its source; `module` and `resource` may be null. -12 without a pool. What the texts are is
    /// up to the pool: stored menus and controls hand in both texts of GetImageSource() and null, toolbars
    /// the two that they were given and null.
    static int AddImage(const vq_wchar* file, const vq_wchar* module, const vq_wchar* resource);

    /// A scalable image by its text under a name, new or in place of the one there; -1 without a pool.
    static int AddImageSVG(const vq_wchar* name, const char* svg);
    static int ReplaceImageSVG(const vq_wchar* name, const char* svg);

    /// Reads the text of a scalable image up to its first zero byte, with line ends as "\n". -13 when the
    /// file cannot be opened, with `target` left as it is; -12 without a pool.
    static int LoadSVG(CVqStringA& target, const vq_wchar* file);

    // Using images -----------------------------------------------------------------------------------

    /// The index of a name, or -1.
    static int GetImage(const vq_wchar* name);

    /// The natural size in pixels. Without a pool both stay as they are.
    static void GetImageSize(vq_uint32 index, vq_uint32& width, vq_uint32& height);

    /// The image as Qt's object; a null icon or pixmap without a pool. Sizes are in pixels.
    static QIcon GetIcon(vq_uint32 index);
    static QPixmap GetPixmap(vq_uint32 index, int width, int height);
    static QPixmap GetPixmapFromSVG(const char* svg, int width, int height);

    /// A native bitmap's handle, which the caller owns, or 0. `flag` and `value` are the pool's own.
    static vq_uint64 CreateBitmapFromSVG(const char* svg, vq_uint32 width, vq_uint32 height, bool flag,
                                         vq_uint32 value);

    /// Draws the image into a rectangle in the painter's units. `flag1` and `flag2` are the pool's own.
    static void DrawOptimalImage(QPainter* painter, vq_uint32 index, int x, int y, int width, int height,
                                 bool flag1, bool flag2);

protected:
    CVqAbstractBitmapPool() = default;
    CVqAbstractBitmapPool(const CVqAbstractBitmapPool&) = default;
    CVqAbstractBitmapPool& operator=(const CVqAbstractBitmapPool&) = default;

    // Pools are never deleted through this type.
    ~CVqAbstractBitmapPool() = default;

    /// Makes `pool` the registered one, unless it is null, and returns the one that is registered then. The
    /// concrete pool calls it; nothing does so by itself.
    static CVqAbstractBitmapPool* instance(CVqAbstractBitmapPool* pool);

    // For the concrete pool: each is reached by the static operation of the same name. What is not pure gives
    // -12, an empty object, or nothing, where nothing else is told. The order is part of the binary
    // interface.

    virtual int imageSource(vq_uint32 index, CVqStringW& file, CVqStringW& resource);
    virtual int defaultModuleFileName(vq_wchar* buffer, int size);
    virtual int addImage(QPixmap* pixmap, const vq_wchar* name);
    virtual int addImage(const vq_wchar* file);
    virtual int addImage(const vq_wchar* file, const vq_wchar* module, const vq_wchar* resource);
    virtual int addImageSVG(const vq_wchar* name, const char* svg) = 0;

    /// Reads a file, see LoadSVG().
    virtual int loadSVG(CVqStringA& target, const vq_wchar* file);
    virtual int replaceImageSVG(const vq_wchar* name, const char* svg) = 0;
    virtual vq_uint64 createBitmapFromSVG(const char* svg, vq_uint32 width, vq_uint32 height, bool flag,
                                          vq_uint32 value)
        = 0;
    virtual void imageSize(vq_uint32 index, vq_uint32& width, vq_uint32& height) = 0;
    virtual int replaceDebug(CVqStringW& name);
    virtual int getImage(const vq_wchar* name) = 0;
    virtual QIcon getIcon(vq_uint32 index);
    virtual QPixmap getPixmap(vq_uint32 index, int width, int height);
    virtual QPixmap getPixmapFromSVG(const char* svg, int width, int height);
    virtual void drawOptimalImage(QPainter* painter, vq_uint32 index, int x, int y, int width, int height,
                                  bool flag1, bool flag2);
};
