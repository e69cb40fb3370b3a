#pragma once

#include "arbor_qml_support_export.h"
#include "system/VqText.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <functional>
#include <utility>

/// Registration of QML types at a moment of the application's own choosing. The library registers nothing by
/// itself: a module hands in what registers its types, and whoever owns start-up runs all of it.
///
///     Quick::Register::AddRegistrator([] { qmlRegisterType<CVqGuiSupport>("Shop", 1, 0, "GuiSupport"); });
///     Quick::Register::Init(); // once the process is ready, before the first engine
///
/// There is no lock: all of it runs on one thread, that of start-up.
namespace Quick::Register {

/// Keeps a copy of `registrator` behind the others, for good; it is not called here. An empty one is kept as
/// it is. May be called from the static initialisers of a module that is loaded after this one, and from a
/// registrator, which Init() then still reaches.
ARBOR_QML_SUPPORT_EXPORT void AddRegistrator(std::function<void()> registrator);

/// Calls all registrators in the order in which they were added. A second call runs each a second time.
///
/// Throws std::bad_function_call on reaching an empty one, and whatever a registrator throws. The later ones
/// then do not run; all are kept, and the next call begins with the first.
ARBOR_QML_SUPPORT_EXPORT void Init();

namespace detail {

/// A place for registration code to report to; does nothing.
ARBOR_QML_SUPPORT_EXPORT void TraceQmlRegistration(int, int, QString, QString);

}

}

/// A row of the table by which FindQmlResource() maps addresses of compiled resources to the source tree. A
/// module adds its row with a static object:
///
///     const ResourcePrefix shop(u"/shop/"_s, u"branch9/src/shop/Resources/"_s);
///
/// The object itself holds nothing: destroying, copying or assigning it does not touch the table. Rows live
/// as long as the library. There is no lock: rows are added while modules are loaded, later on the GUI thread
/// only.
class ARBOR_QML_SUPPORT_EXPORT ResourcePrefix
{
public:
    /// `prefix` is the beginning of a path as it stands in a "qrc:" address, with a slash at both ends.
    /// `path` is the folder for it, with a slash at its end: seen from the root of the source tree, or
    /// absolute for a module of another tree. A row with the same `prefix` keeps its place and gets the new
    /// `path`; otherwise a row is added at the end. Neither text is checked.
    ResourcePrefix(QString prefix, QString path);

    ResourcePrefix(const ResourcePrefix&) = default;
    ResourcePrefix(ResourcePrefix&&) = default;
    /// Do nothing.
    ResourcePrefix& operator=(ResourcePrefix&&) noexcept;
    ResourcePrefix& operator=(const ResourcePrefix&);

    /// Takes the first row, in the order of the table, with whose prefix `path` begins, and replaces that
    /// prefix by the row's folder: wherever it occurs in `path`, not only at the beginning. Case counts.
    /// False: no row fits, and `path` stays as it was.
    static bool replacePath(QString& path);

protected:
    /// Prefix and folder of each row. The earlier row wins. The library's own rows are "/tile_assets/" and
    /// "/arbor_qml_support/".
    static QList<std::pair<QString, QString>> resourcePrefixes;
};

/// The address to load for `url`: a local file where one of the places below has it, otherwise `url` itself.
///
/// Usually the only places are `folders`: the first of them that has a file of the name that `url` ends with.
/// A relative folder is seen from the current one. This holds for addresses of any scheme.
///
/// With the environment variable "ORV_DEVELOP_RESOURCES" set, to anything, even to nothing, the file that a
/// resource was compiled from is asked for first, so that an edited file shows without a new build. The
/// places are then, in this order:
///
/// 1. the path of `url`, mapped by ResourcePrefix::replacePath(), in the source tree of the library's build;
/// 2. if `folders` is empty and `url` is "qrc:///NAME/REST": "NAME/Resources/REST" and then "NAME/REST" in
///    "../../branch9/src/", and the same two in "../../Quillon/src/", seen from the application's folder;
/// 3. the file name in `folders`, as above.
///
/// The address of a file has the path as it was put together: ".." in it is not resolved.
///
/// In that mode each call with an address that begins with "qrc:///" and is in no compiled resource is told
/// on the debug stream: "Resource 'qrc:///NAME/REST' not in qrc file!" and a line end.
///
/// The variable is read at each call. Never fails. GUI thread.
ARBOR_QML_SUPPORT_EXPORT QUrl FindQmlResource(const QUrl& url, QList<QString> folders);

/// The name that the system has for windows of Qt Quick, where it names kinds of windows; elsewhere a name of
/// the library's own. Zero-terminated in an area of 256 units that the library owns; never null, and always
/// the same text at the same address. GUI thread.
ARBOR_QML_SUPPORT_EXPORT const vq_wchar* QmlWinClassName();
