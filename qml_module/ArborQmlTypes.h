#pragma once

// QML: the types of the module K7.Arbor. The classes are the library's, which registers nothing by itself.

#include "qml/CVqFilePathApi.h"
#include "qml/CVqGuiSupport.h"
#include "qml/CVqQtAbstractListModel.h"
#include "qml/CVqSortFilterProxyModel.h"
#include "qml_module/CVqGuiSupportScript.h"

#include <QtQmlIntegration>

struct VqGuiSupportType
{
    Q_GADGET
    QML_FOREIGN(CVqGuiSupport)
    QML_NAMED_ELEMENT(GuiSupport)
    QML_EXTENDED(CVqGuiSupportScript)
    QML_SINGLETON
};

struct VqFilePathApiType
{
    Q_GADGET
    QML_FOREIGN(CVqFilePathApi)
    QML_NAMED_ELEMENT(FilePathApi)
    QML_SINGLETON
};

struct VqAbstractListModelType
{
    Q_GADGET
    QML_FOREIGN(CVqQtAbstractListModel)
    QML_NAMED_ELEMENT(AbstractListModel)
    QML_UNCREATABLE("Its rows come from C++: use a model that derives from it.")
};

struct VqSortFilterProxyModelType
{
    Q_GADGET
    QML_FOREIGN(CVqSortFilterProxyModel)
    QML_NAMED_ELEMENT(SortFilterProxyModel)
};

// So that tools know what the names in signatures stand for.
#ifdef QML_USING
struct VqUint8Type
{
    Q_GADGET
    QML_FOREIGN(vq_uint8)
    QML_USING(uchar)
};

struct VqUint32Type
{
    Q_GADGET
    QML_FOREIGN(vq_uint32)
    QML_USING(uint)
};
#endif
