#include "arbor_qml_support.h"
#include "gallery/GalleryModule.h"
#include "gallery/Options.h"
#include "gallery/Pages.h"
#include "gallery/Session.h"
#include "gallery/Translations.h"
#include "gallery/live/LiveAddresses.h"
#include "gallery/live/LiveReload.h"
#include "gallery/menu/MenuFile.h"
#include "gallery/render/PagePictures.h"
#include "gallery/render/PageRenderer.h"
#include "gallery/resize/Interrupts.h"
#include "gallery/resize/ResizeCommand.h"
#include "gallery/resize/ResizeConsole.h"
#include "gallery/script/KeyScript.h"
#include "gallery/script/Screenshots.h"
#include "gallery/script/ToolbarPictures.h"
#include "gallery/script/Tour.h"
#include "gallery/storage/PrintMenus.h"
#include "quick_backend/CVqQuickBitmapPool.h"

#include <QFont>
#include <QGuiApplication>
#include <QImageReader>
#include <QLoggingCategory>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_cannot_write = 1;
constexpr int g_bad_file = 2;
constexpr int g_text_size = 13;      // logical pixels
constexpr int g_image_memory = 1024; // MiB; four bytes for each pixel of the largest image

void print(const QString& line, FILE* to = stdout)
{
    std::fprintf(to, "%s\n", line.toUtf8().constData());
    std::fflush(to);
}

Gallery::OptionsResult read_options(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"arbor_gallery"_s); // also that of the user's data folder
    return Gallery::ParseOptions(QCoreApplication::arguments());
}

int take_pictures(Gallery::Session& session, QQuickWindow& window, const QString& folder)
{
    Gallery::Screenshots pictures(session, window, folder);
    if (pictures.TakeAll())
        return 0;
    print(pictures.Error(), stderr);
    return g_cannot_write;
}

void run_steps(Gallery::Session& session, QQuickWindow& window, const QList<Gallery::ScriptStep>& steps)
{
    Gallery::KeyScript script(session, window);
    for (const Gallery::ScriptStep& step : steps)
        print(script.Do(step));
    script.CloseAll();
}

int take_toolbar_pictures(Gallery::Session& session, QQuickWindow& window, const QString& folder)
{
    const QString error = Gallery::TakeToolbarPictures(session, window, folder);
    if (error.isEmpty())
        return 0;
    print(error, stderr);
    return g_cannot_write;
}

int run_tour(Gallery::Session& session, QQuickWindow& window, const QString& folder)
{
    int code = take_pictures(session, window, folder);
    if (code == 0)
        code = take_toolbar_pictures(session, window, folder + u"/toolbars"_s);
    QList<Gallery::ScriptStep> steps;
    for (const QString& name : Gallery::TourKeys(*session.Menu()))
        if (const auto key = Gallery::ParseKeyPress(name))
            steps << *key;
    run_steps(session, window, steps);
    return code;
}

int run_script(Gallery::Session& session, QQuickWindow& window, const Gallery::Options& options)
{
    Gallery::WaitForFrame(window);
    run_steps(session, window, options.keys);
    const int code = options.screenshots.isEmpty() ? 0 : take_pictures(session, window, options.screenshots);
    if (code != 0 || options.demo.isEmpty())
        return code;
    return run_tour(session, window, options.demo);
}

/// What draws pages without a window. A session of its own: a second canvas would zoom the window's one.
struct Easel
{
    Easel(const Gallery::Options& options, const Gallery::MenuDocument& document)
        : translations(options.locale), session(document)
    {
        engine.addUrlInterceptor(&addresses);
    }

    const Gallery::Translations translations;
    Gallery::Session session;
    Gallery::LiveAddresses addresses;
    QQmlEngine engine;
    Gallery::PageRenderer renderer{engine};
};

int render(const Gallery::Options& options, const Gallery::MenuDocument& document)
{
    Easel easel(options, document);
    if (easel.renderer.Render(options.render))
        return 0;
    print(easel.renderer.Errors().join(u'\n'), stderr);
    return g_bad_file;
}

int take_page_pictures(const Gallery::Options& options, const Gallery::MenuDocument& document)
{
    Easel easel(options, document);
    const QString error
        = Gallery::TakePagePictures(easel.renderer, easel.session, options.demo + u"/pages"_s);
    if (error.isEmpty())
        return 0;
    print(error, stderr);
    return g_cannot_write;
}

/// Needs no display. The application is a graphical one for the formats that draw text.
int resize(int& argc, char** argv, const Gallery::Options& options)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QLoggingCategory::setFilterRules(u"qt.gui.imageio*=false"_s); // failures have reasons of their own
    const Gallery::Translations translations(options.locale);
    const Gallery::Interrupts interrupts;
    Gallery::ResizeConsole console = Gallery::StandardConsole();
    console.interrupted = &Gallery::Interrupts::Caught;
    return Gallery::RunResizeCommand(options.resize, console);
}

int print_stored(const QString& file)
{
    const Gallery::PrintedMenus printed = Gallery::PrintMenus(file);
    print(printed.error.isEmpty() ? printed.text : printed.error, printed.error.isEmpty() ? stdout : stderr);
    return printed.error.isEmpty() ? 0 : g_bad_file;
}

int print_keys(int& argc, char** argv, const Gallery::Options& options, const Gallery::MenuDocument& document)
{
    const QCoreApplication application(argc, argv);
    const Gallery::Translations translations(options.locale);
    QString notice;
    print(Gallery::PrintKeys(document, options.Home(), notice).join(u'\n'));
    if (!notice.isEmpty())
        print(notice, stderr);
    return 0;
}

/// The notice of a session stands in its window, and here for who looks at the terminal.
void print_notices(const Gallery::Session& session)
{
    const auto tell = [&session] {
        if (!session.Notice().isEmpty())
            print(session.Notice(), stderr);
    };
    QObject::connect(&session, &Gallery::Session::NoticeChanged, &session, tell);
    tell();
}

int run(const Gallery::Options& options, const Gallery::MenuDocument& document,
        const Gallery::ToolbarDocument& toolbars)
{
    const Gallery::Translations translations(options.locale);
    CVqQuickBitmapPool pool; // before the menus that show its images
    Gallery::Session session(document, options.Home(), toolbars);
    print_notices(session);
    session.SetPage(options.page);
    Gallery::LiveAddresses addresses;
    QQmlApplicationEngine engine;
    engine.addUrlInterceptor(&addresses);
    pool.AddImageProvider(engine);
    const Gallery::LiveReload live(Gallery::LiveFolders());
    QObject::connect(&live, &Gallery::LiveReload::Changed, &session, &Gallery::Session::AskReload);
    engine.load(Gallery::GalleryUrl(u"Main.qml"_s));
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (!window)
        return g_cannot_write;
    window->requestActivate();
    if (options.IsScript())
        return run_script(session, *window, options);
    QObject::connect(&session, &Gallery::Session::QuitRequested, qApp, &QGuiApplication::quit,
                     Qt::QueuedConnection);
    return QGuiApplication::exec();
}

/// Reads a menu or toolbar file, or that of the factory; tells what is wrong with it.
template <class File>
bool load(File& file, const QString& name, const QString& factory)
{
    if (file.Load(name.isEmpty() ? factory : name))
        return true;
    print(file.Error(), stderr);
    return false;
}

/// What the application needs before there is a window.
void prepare(const Gallery::Options& options)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(g_text_size);
    QGuiApplication::setFont(font);
    if (options.rtl)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    if (!options.qml.isEmpty())
        Gallery::ReadQmlFrom(options.qml);
    Gallery::AddRegistrators();
    Quick::Register::Init();
}

}

int main(int argc, char** argv)
{
    const Gallery::OptionsResult result = read_options(argc, argv);
    if (result.exit_code >= 0) {
        print(result.message, result.exit_code == 0 ? stdout : stderr);
        return result.exit_code;
    }
    QImageReader::setAllocationLimit(g_image_memory);
    if (!result.options.print_stored.isEmpty())
        return print_stored(result.options.print_stored);
    if (!result.options.resize.in.isEmpty())
        return resize(argc, argv, result.options);
    Gallery::MenuFile file;
    Gallery::ToolbarFile toolbars;
    if (!load(file, result.options.menus, u":/gallery/menus.json"_s)
        || !load(toolbars, result.options.toolbars, u":/gallery/toolbars.json"_s))
        return g_bad_file;
    if (result.options.print_keys)
        return print_keys(argc, argv, result.options, file.Document());
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL); // what pages are drawn with
    const QGuiApplication application(argc, argv);
    prepare(result.options);
    if (!result.options.render.file.isEmpty())
        return render(result.options, file.Document());
    const int code = run(result.options, file.Document(), toolbars.Document());
    if (code != 0 || result.options.demo.isEmpty())
        return code;
    return take_page_pictures(result.options, file.Document());
}
