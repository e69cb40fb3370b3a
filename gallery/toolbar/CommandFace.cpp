#include "gallery/toolbar/CommandFace.h"

#include "AbstractGui/CVqAbstractMenu.h"
#include "gallery/menu/MenuPath.h"

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr vq_uint32 g_any_type = 9;
constexpr vq_uint32 g_any_status = 0xFF00;

CVqMenuItem* first_entry(CVqAbstractMenu& menu, const QString& command)
{
    vq_uint32 id = 0;
    vq_uint32 count = 1;
    if (command.isEmpty()
        || menu.FindItemsByCommand(command.toStdU16String().c_str(), g_any_type, g_any_status, &id, count)
            != 0)
        return nullptr;
    return menu.Manipulators().find_item(id, menu.getRootMenuItem());
}

QString without_dots(const QString& label)
{
    return label.endsWith(u"..."_s) ? label.chopped(3).trimmed() : label;
}

/// The label of the popup in which `item` lies; empty for one that opens from the bar.
QString popup_label(CVqAbstractMenu& menu, const CVqMenuItem& item)
{
    const CVqMenuItem* popup = item.parentItem();
    const bool is_deep = popup && popup->parentItem() && popup->parentItem() != menu.getRootMenuItem();
    return is_deep ? PlainLabel(menu, popup->id()) : QString();
}

QString arguments_of(const QString& command)
{
    return command.section(u'(', 1).chopped(1);
}

}

CommandFace FaceOf(CVqAbstractMenu& menu, const QString& command)
{
    const CVqMenuItem* item = first_entry(menu, command);
    if (!item)
        return {};
    CommandFace face{true, PlainLabel(menu, item->id()), {}, -1};
    const QString popup = popup_label(menu, *item);
    const QString own = face.text.isEmpty() ? arguments_of(command) : without_dots(face.text);
    const bool says_it_itself = popup.isEmpty() || own.contains(popup);
    face.tip = says_it_itself ? own : u"%1: %2"_s.arg(popup, own);
    if (face.text.isEmpty())
        face.text = face.tip;
    menu.GetIdBitmap(item->id(), face.image);
    return face;
}

}
