#pragma once

// QML: the types of the module K7.Arbor.Gallery that come from C++.

#include "gallery/AddressLookup.h"
#include "gallery/OffscreenPicture.h"
#include "gallery/PageHolder.h"
#include "gallery/Session.h"
#include "gallery/files/FileEdits.h"
#include "gallery/files/Folder.h"
#include "gallery/files/WriteCheck.h"
#include "gallery/keys/KeyCapture.h"
#include "gallery/lists/LayerListModel.h"
#include "gallery/picture/CanvasItem.h"
#include "gallery/resize/BatchResize.h"
#include "gallery/toolbar/Toolbars.h"

#include <QJSEngine>
#include <QtQmlIntegration>

namespace Gallery {

struct AddressLookupType
{
    Q_GADGET
    QML_FOREIGN(Gallery::AddressLookup)
    QML_NAMED_ELEMENT(AddressLookup)
};

struct BatchResizeType
{
    Q_GADGET
    QML_FOREIGN(Gallery::BatchResize)
    QML_NAMED_ELEMENT(BatchResize)
    QML_UNCREATABLE("A session has one.")
};

struct CanvasType
{
    Q_GADGET
    QML_FOREIGN(Gallery::CanvasItem)
    QML_NAMED_ELEMENT(PictureArea)
};

struct FileEditsType
{
    Q_GADGET
    QML_FOREIGN(Gallery::FileEdits)
    QML_NAMED_ELEMENT(FileEdits)
};

struct FolderType
{
    Q_GADGET
    QML_FOREIGN(Gallery::Folder)
    QML_NAMED_ELEMENT(Folder)
};

struct FolderModelType
{
    Q_GADGET
    QML_FOREIGN(Gallery::FolderModel)
    QML_NAMED_ELEMENT(FolderModel)
    QML_UNCREATABLE("A folder has one.")
};

struct KeyCaptureType
{
    Q_GADGET
    QML_FOREIGN(Gallery::KeyCapture)
    QML_NAMED_ELEMENT(KeyCapture)
};

struct KeyEditorType
{
    Q_GADGET
    QML_FOREIGN(Gallery::KeyEditor)
    QML_NAMED_ELEMENT(KeyEditor)
    QML_UNCREATABLE("A session has one.")
};

struct KeyListModelType
{
    Q_GADGET
    QML_FOREIGN(Gallery::KeyListModel)
    QML_NAMED_ELEMENT(KeyListModel)
    QML_UNCREATABLE("The key editor of a session has one.")
};

struct LayerListModelType
{
    Q_GADGET
    QML_FOREIGN(Gallery::LayerListModel)
    QML_NAMED_ELEMENT(LayerListModel)
};

struct OffscreenPictureType
{
    Q_GADGET
    QML_FOREIGN(Gallery::OffscreenPicture)
    QML_NAMED_ELEMENT(OffscreenPicture)
};

struct PageHolderType
{
    Q_GADGET
    QML_FOREIGN(Gallery::PageHolder)
    QML_NAMED_ELEMENT(PageHolder)
};

struct SessionType
{
    Q_GADGET
    QML_FOREIGN(Gallery::Session)
    QML_NAMED_ELEMENT(Session)
    QML_SINGLETON

public:
    /// The session of the program in each engine; it stays the program's own.
    static Gallery::Session* create(QQmlEngine*, QJSEngine*)
    {
        QJSEngine::setObjectOwnership(Gallery::Session::OfProgram(), QJSEngine::CppOwnership);
        return Gallery::Session::OfProgram();
    }
};

struct ToolbarsType
{
    Q_GADGET
    QML_FOREIGN(Gallery::Toolbars)
    QML_NAMED_ELEMENT(Toolbars)
    QML_UNCREATABLE("A session has some.")
};

struct WriteCheckType
{
    Q_GADGET
    QML_FOREIGN(Gallery::WriteCheck)
    QML_NAMED_ELEMENT(WriteCheck)
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
