#pragma once

// QML: the types of the module K7.Arbor.Gallery. Session, Document and ViewState come from C++.

#include "gallery/CanvasItem.h"
#include "gallery/Session.h"

#include <QtQmlIntegration>

namespace Gallery {

struct CanvasType
{
    Q_GADGET
    QML_FOREIGN(Gallery::CanvasItem)
    QML_NAMED_ELEMENT(PictureArea)
};

struct SessionType
{
    Q_GADGET
    QML_FOREIGN(Gallery::Session)
    QML_NAMED_ELEMENT(Session)
    QML_UNCREATABLE("The program makes the one session.")
};

struct DocumentType
{
    Q_GADGET
    QML_FOREIGN(Gallery::Document)
    QML_NAMED_ELEMENT(Document)
    QML_UNCREATABLE("A session has one.")
};

struct ViewStateType
{
    Q_GADGET
    QML_FOREIGN(Gallery::ViewState)
    QML_NAMED_ELEMENT(ViewState)
    QML_UNCREATABLE("A session has one.")
};

}
