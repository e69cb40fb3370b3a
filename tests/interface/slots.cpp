// The classes whose virtual operations stand in a fixed order. Nobody runs this file: tools/list_slots asks a
// compiler for the table of each Slots<...>.
#include "AbstractGui/CVqAbstractBitmapPool.h"
#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/CVqAbstractControl.h"
#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/CVqAbstractToolbar.h"
#include "AbstractGui/CVqCursorPool.h"
#include "AbstractGui/CVqMenuItem.h"
#include "AbstractGui/IVqMenuBase.h"
#include "AbstractGui/IVqUIcontrol.h"
#include "AbstractGui/SVqToolbarButtonHiddenCallback.h"
#include "DelayedProgressWndBase.h"
#include "IVqProgressView.h"
#include "qml/CVqQtAbstractListModel.h"
#include "qml/CVqSortFilterProxyModel.h"

template <typename Class>
struct Slots : Class
{
    using Class::Class;
};

template struct Slots<CVqAbstractBitmapPool>;
template struct Slots<CVqAbstractButtonToolbar>;
template struct Slots<CVqAbstractControl>;
template struct Slots<CVqAbstractMenu>;
template struct Slots<CVqAbstractMenu::IVqVisitorData>;
template struct Slots<CVqAbstractMenu::SVqManipulators>;
template struct Slots<CVqAbstractToolbar>;
template struct Slots<CVqCursorPool>;
template struct Slots<CVqMenuItem>;
template struct Slots<CVqQtAbstractListModel>;
template struct Slots<CVqSortFilterProxyModel>;
template struct Slots<IVqMenuBase>;
template struct Slots<IVqProgressView>;
template struct Slots<IVqUIcontrol>;
template struct Slots<QmlSupport::CVqDelayedProgressWndBase>;
template struct Slots<SVqToolbarButtonHiddenCallback>;
