#include "gallery/toolbar/ToolbarBuilder.h"

#include "AbstractGui/VqControlCodes.h"
#include "gallery/menu/MenuBuilder.h"
#include "gallery/menu/MenuImage.h"
#include "gallery/toolbar/CommandFace.h"
#include "gallery/toolbar/ToolbarContent.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickItemControl.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"

namespace Gallery {

namespace {

std::u16string wide(const QString& text)
{
    return text.toStdU16String();
}

QList<vq_uint64> ids_on(CVqQuickButtonToolbar& bar)
{
    QList<vq_uint64> ids;
    for (int i = 0; i < bar.GetButtonsCount(); ++i)
        ids << bar.GetButtonID(static_cast<unsigned>(i), false);
    return ids;
}

CVqQuickControl::Kind kind_of(CVqQuickButtonToolbar& bar, vq_uint64 id)
{
    const auto* control = dynamic_cast<const CVqQuickControl*>(bar.ControlFromId(id));
    return control ? control->GetKind() : CVqQuickControl::Button;
}

QString command_of(CVqQuickButtonToolbar& bar, vq_uint64 id)
{
    CVqStringW command;
    bar.GetCommandOnButton(id, 0, command);
    return command.ToQString();
}

/// Buttons are known by their command: a name gets a number where it stands already.
bool stands_for(const ToolbarEntry& entry, const QString& name, const QString& command)
{
    switch (entry.type) {
    case ToolbarEntryType::Separator:
        return false;
    case ToolbarEntryType::Item:
        return entry.name == name;
    default:
        return entry.command == command;
    }
}

void append_plain(CVqQuickButtonToolbar& bar, const ToolbarEntry& entry)
{
    if (entry.type == ToolbarEntryType::Separator) {
        bar.AppendSeparator(nullptr);
        return;
    }
    const vq_uint64 id = bar.AddButton(wide(entry.name).c_str());
    bar.SetCommandOnButton(id, 0, wide(entry.command).c_str());
}

}

ToolbarBuilder::~ToolbarBuilder()
{
    for (const QPointer<CVqQuickItemControl>& item : std::as_const(m_items))
        if (item && !item->Item()) // on no toolbar
            delete item;
}

void ToolbarBuilder::Build(CVqQuickButtonToolbar& bar)
{
    TakeItems(bar);
    bar.RemoveAllControls();
    for (const ToolbarDescription& description : m_document.bars)
        if (description.name == bar.Name())
            for (const ToolbarEntry& entry : description.entries)
                append_plain(bar, entry);
    Dress(bar);
}

void ToolbarBuilder::Dress(CVqQuickButtonToolbar& bar)
{
    for (const vq_uint64 id : ids_on(bar))
        if (!bar.IsIDSeparator(id))
            dress(bar, id);
    bar.UpdateSeparators(true);
}

void ToolbarBuilder::TakeItems(CVqQuickButtonToolbar& bar)
{
    for (const vq_uint64 id : ids_on(bar))
        if (auto* item = dynamic_cast<CVqQuickItemControl*>(bar.ControlFromId(id)))
            bar.Toolbar().RemoveControl(*item);
}

const ToolbarEntry* ToolbarBuilder::find(CVqQuickButtonToolbar& bar, vq_uint64 id) const
{
    CVqStringW name;
    bar.GetButtonName(id, name);
    const QString command = command_of(bar, id);
    const ToolbarEntry* found = nullptr;
    for (const ToolbarDescription& description : m_document.bars)
        for (const ToolbarEntry& entry : description.entries)
            if (stands_for(entry, name.ToQString(), command) && (!found || description.name == bar.Name()))
                found = &entry;
    return found;
}

CVqQuickItemControl* ToolbarBuilder::item_of(const ToolbarEntry& entry)
{
    QPointer<CVqQuickItemControl>& item = m_items[entry.name];
    if (!item) {
        auto* content = new ToolbarContent(entry.file);
        item = new CVqQuickItemControl(content);
        QObject::connect(item, &CVqQuickControl::lookChanged, content,
                         [control = item.get(), content] { content->SetVertical(control->IsVertical()); });
    }
    return item;
}

void ToolbarBuilder::dress(CVqQuickButtonToolbar& bar, vq_uint64 id)
{
    const ToolbarEntry* entry = find(bar, id);
    if (entry && entry->type == ToolbarEntryType::Item) {
        put_item(bar, id, *entry);
        return;
    }
    const bool is_text = entry && entry->type == ToolbarEntryType::TextButton;
    if (is_text && kind_of(bar, id) == CVqQuickControl::Button && bar.GetBitmap(id, 0) < 0)
        id = put_text_button(bar, id);
    dress_button(bar, id, entry);
}

void ToolbarBuilder::put_item(CVqQuickButtonToolbar& bar, vq_uint64 id, const ToolbarEntry& entry)
{
    CVqQuickItemControl* item = item_of(entry);
    vq_uint64 item_id = id;
    if (bar.ControlFromId(id) != item) {
        const bool is_free = !item->Item();
        item_id = is_free ? bar.InsertGeneralControlBefore(id, item, wide(entry.name).c_str()) : 0;
        bar.RemoveButton(id);
    }
    const std::u16string text = wide(LocalLabel(entry.text));
    if (item_id != 0)
        bar.SetTextsOnButton(item_id, 0, text.c_str(), text.c_str(), VQ_TEXT(""));
}

// With all that the button's record holds. The new button's identifier.
vq_uint64 ToolbarBuilder::put_text_button(CVqQuickButtonToolbar& bar, vq_uint64 id)
{
    CVqVariant record;
    bar.ControlFromId(id)->Save(record);
    IVqUIcontrol* button = bar.CreateTextButton();
    button->Load(record);
    const vq_uint64 text_id = bar.InsertGeneralControlBefore(id, button, record.GetName());
    bar.RemoveButton(id);
    return text_id;
}

void ToolbarBuilder::dress_button(CVqQuickButtonToolbar& bar, vq_uint64 id, const ToolbarEntry* entry)
{
    const QString command = command_of(bar, id);
    const CommandFace face = FaceOf(m_menu, command);
    if (!face.found) {
        bar.RemoveButton(id);
        return;
    }
    const bool is_text = kind_of(bar, id) == CVqQuickControl::TextButton;
    bar.SetTextsOnButton(id, 0, wide(face.tip).c_str(), wide(is_text ? face.text : face.tip).c_str(),
                         wide(command).c_str());
    set_image(bar, id, entry, is_text ? -1 : face.image);
    set_popup(bar, id, entry);
}

void ToolbarBuilder::set_image(CVqQuickButtonToolbar& bar, vq_uint64 id, const ToolbarEntry* entry, int image)
{
    vq_int32 index = entry && !entry->image.isEmpty() ? AddMenuImage(entry->image) : image;
    bar.Set(id, vq_control_bitmap, 0, &index);
}

void ToolbarBuilder::set_popup(CVqQuickButtonToolbar& bar, vq_uint64 id, const ToolbarEntry* entry)
{
    vq_uint32 popup = entry ? entry->popup : 0;
    const CVqMenuItem* item
        = popup == 0 ? nullptr : m_menu.Manipulators().find_item(popup, m_menu.getRootMenuItem());
    if (!item || item->type() != CVqAbstractMenu::SensePopup)
        popup = 0;
    bar.Set(id, vq_control_value, 0, &popup);
}

}
