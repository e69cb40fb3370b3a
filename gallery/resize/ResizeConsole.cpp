#include "gallery/resize/ResizeConsole.h"

#include <QElapsedTimer>

#include <cstdio>

#ifdef Q_OS_UNIX
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace Gallery {

namespace {

void write(FILE* stream, const QString& text)
{
    std::fputs(text.toUtf8().constData(), stream);
    std::fflush(stream);
}

#ifdef Q_OS_UNIX

constexpr int g_usual_columns = 80; // of a terminal that does not tell

bool is_terminal()
{
    const QByteArray kind = qgetenv("TERM");
    return isatty(STDOUT_FILENO) && !kind.isEmpty() && kind != "dumb";
}

int columns()
{
    winsize size = {};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : g_usual_columns;
}

#else

bool is_terminal()
{
    return false;
}

int columns()
{
    return 0;
}

#endif

}

ResizeConsole StandardConsole()
{
    ResizeConsole console;
    console.out = [](const QString& text) { write(stdout, text); };
    console.err = [](const QString& text) { write(stderr, text); };
    if (is_terminal())
        console.columns = columns;
    QElapsedTimer timer;
    timer.start();
    console.elapsed = [timer] { return double(timer.nsecsElapsed()) / 1e6; };
    return console;
}

}
