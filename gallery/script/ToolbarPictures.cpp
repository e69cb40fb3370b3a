#include "gallery/script/ToolbarPictures.h"

#include "gallery/Session.h"
#include "gallery/script/Screenshots.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"

#include <QDir>
#include <QGuiApplication>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// One look of the window.
struct View
{
    QString name;
    int width;
    bool picker;
    bool customised;
};

class Camera
{
public:
    Camera(Session& session, QQuickWindow& window, const QString& folder)
        : m_session(session), m_window(window), m_folder(folder), m_size(window.size())
    { }

    /// Puts everything back.
    ~Camera()
    {
        SetLook(false, Qt::LeftToRight);
        m_window.resize(m_size);
    }

    Camera(const Camera&) = delete;
    Camera& operator=(const Camera&) = delete;

    void SetLook(bool dark, Qt::LayoutDirection direction)
    {
        QGuiApplication::setLayoutDirection(direction);
        m_session.View()->dark = dark;
        m_session.View()->Tell();
    }

    /// Whether the picture could be written.
    bool Take(const View& view, const QString& suffix)
    {
        m_window.resize(view.width, m_size.height());
        WaitForFrame(m_window);
        open(view, true);
        WaitForFrame(m_window);
        m_file = QDir(m_folder).filePath(view.name + suffix + u".png"_s);
        const bool done = QDir().mkpath(m_folder) && m_window.grabWindow().save(m_file);
        open(view, false);
        return done;
    }

    const QString& File() const { return m_file; }

private:
    void open(const View& view, bool opened)
    {
        CVqQuickToolbarSetup& setup = *m_session.GetToolbars()->Setup();
        if (view.customised)
            opened ? setup.begin() : setup.cancel();
        const CVqQuickButtonToolbar* bar = m_session.GetToolbars()->Bars().value(0);
        CVqQuickPicker* picker = bar ? bar->Toolbar().Picker() : nullptr;
        if (view.picker && picker)
            picker->SetOpened(opened);
    }

    Session& m_session;
    QQuickWindow& m_window;
    const QString m_folder;
    const QSize m_size;
    QString m_file;
};

QList<View> views()
{
    return {{u"narrow"_s, 640, true, false},
            {u"middle"_s, 900, false, false},
            {u"wide"_s, 1440, false, false},
            {u"customise"_s, 1180, false, true}};
}

}

QString TakeToolbarPictures(Session& session, QQuickWindow& window, const QString& folder)
{
    Camera camera(session, window, folder);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
        for (const bool dark : {false, true}) {
            const QString suffix
                = QString(dark ? u"-dark"_s : u""_s) + (direction == Qt::RightToLeft ? u"-rtl"_s : u""_s);
            camera.SetLook(dark, direction);
            for (const View& view : views())
                if (!camera.Take(view, suffix))
                    return u"%1 cannot be written."_s.arg(camera.File());
        }
    return {};
}

}
