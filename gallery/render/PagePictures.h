#pragma once

#include <QString>

namespace Gallery {

class PageRenderer;
class Session;

/// Draws each page of the window, without the window, into `folder`, which is made when it is missing:
/// NAME.png in light colours, NAME-dark.png in dark ones. The session is light afterwards. Where there is no
/// OpenGL no picture is made, and a debug line says so. Empty: done; otherwise what is wrong, a line for each
/// error.
QString TakePagePictures(PageRenderer& renderer, Session& session, const QString& folder);

}
