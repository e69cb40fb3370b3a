// [snippet]
#include "offscreen/OffscreenQuickView.h"

#include <QGuiApplication>

// Draws the QML file argv[1] into the picture argv[2].
int main(int argc, char** argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL); // before the first window
    QGuiApplication app(argc, argv);

    OffscreenQuickView view;
    view.setColor(Qt::transparent); // otherwise white shows where no item is
    view.setSource(QUrl::fromLocalFile(app.arguments().value(1)));
    for (const QQmlError& error : view.errors())
        qInfo().noquote() << error.toString();
    if (!view.rootObject())
        return 2;
    return view.grab().save(app.arguments().value(2)) ? 0 : 1;
}
// [end]
