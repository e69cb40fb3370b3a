#include "gallery/GalleryModule.h"
#include "gallery/KeyScript.h"
#include "gallery/MenuFile.h"
#include "gallery/Options.h"
#include "gallery/Screenshots.h"
#include "gallery/Session.h"
#include "gallery/Tour.h"
#include "gallery/Translations.h"

#include <QFont>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int g_cannot_write = 1;
constexpr int g_bad_file = 2;
constexpr int g_text_size = 13; // logical pixels

void print(const QString& line, FILE* to = stdout)
{
    std::fprintf(to, "%s\n", line.toUtf8().constData());
    std::fflush(to);
}

Gallery::OptionsResult read_options(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
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

void press_keys(Gallery::Session& session, QQuickWindow& window, const QList<Gallery::KeyPress>& keys)
{
    Gallery::KeyScript script(session, window);
    for (const Gallery::KeyPress& key : keys)
        print(script.Press(key));
    script.CloseAll();
}

int run_tour(Gallery::Session& session, QQuickWindow& window, const QString& folder)
{
    const int code = take_pictures(session, window, folder);
    QList<Gallery::KeyPress> keys;
    for (const QString& name : Gallery::TourKeys(*session.Menu()))
        if (const auto key = Gallery::ParseKeyPress(name))
            keys << *key;
    press_keys(session, window, keys);
    return code;
}

int run_script(Gallery::Session& session, QQuickWindow& window, const Gallery::Options& options)
{
    Gallery::WaitForFrame(window);
    press_keys(session, window, options.keys);
    const int code = options.screenshots.isEmpty() ? 0 : take_pictures(session, window, options.screenshots);
    if (code != 0 || options.demo.isEmpty())
        return code;
    return run_tour(session, window, options.demo);
}

int run(const Gallery::Options& options, const Gallery::MenuDocument& document)
{
    Gallery::KeepQmlModule();
    const Gallery::Translations translations(options.locale);
    Gallery::Session session(document);
    QQmlApplicationEngine engine;
    engine.setInitialProperties({{u"session"_s, QVariant::fromValue(&session)}});
    engine.loadFromModule("K7.Arbor.Gallery", "Main");
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

}

int main(int argc, char** argv)
{
    const Gallery::OptionsResult result = read_options(argc, argv);
    if (result.exit_code >= 0) {
        print(result.message, result.exit_code == 0 ? stdout : stderr);
        return result.exit_code;
    }
    Gallery::MenuFile file;
    if (!file.Load(result.options.menus.isEmpty() ? u":/gallery/menus.json"_s : result.options.menus)) {
        print(file.Error(), stderr);
        return g_bad_file;
    }
    const QGuiApplication application(argc, argv);
    QFont font = QGuiApplication::font();
    font.setPixelSize(g_text_size);
    QGuiApplication::setFont(font);
    return run(result.options, file.Document());
}
