#pragma once

#include "gallery/toolbar/ToolbarEntry.h"

#include <QHash>
#include <QPointer>

class CVqQuickButtonToolbar;
class CVqQuickItemControl;
class CVqQuickMenu;

namespace Gallery {

/// Fills toolbars from a toolbar file.
///
/// Texts, tooltips and images of buttons are those of the menu's entry with the same command, in the language
/// that is installed. A command that the menu does not have gets no button, a popup that it does not have no
/// arrow. Each item of the file is made once. The toolbar that it lies on owns it, else the builder.
class ToolbarBuilder
{
public:
    /// `menu`, which is filled already, and `document` must outlive the builder.
    ToolbarBuilder(CVqQuickMenu& menu, const ToolbarDocument& document) : m_menu(menu), m_document(document)
    { }
    ~ToolbarBuilder();

    ToolbarBuilder(const ToolbarBuilder&) = delete;
    ToolbarBuilder& operator=(const ToolbarBuilder&) = delete;

    /// Puts the controls that the document has for the toolbar of that name in place of all others.
    void Build(CVqQuickButtonToolbar& bar);

    /// Makes a toolbar whole that was loaded from a record, which knows plain buttons only: items and text
    /// buttons come in place of the buttons of their names, texts and images are set anew, arrows too.
    void Dress(CVqQuickButtonToolbar& bar);

    /// Takes the items off `bar`, so that they outlive what is loaded into it. Dress() puts them back.
    void TakeItems(CVqQuickButtonToolbar& bar);

private:
    const ToolbarEntry* find(CVqQuickButtonToolbar& bar, vq_uint64 id) const;
    CVqQuickItemControl* item_of(const ToolbarEntry& entry);
    void dress(CVqQuickButtonToolbar& bar, vq_uint64 id);
    void put_item(CVqQuickButtonToolbar& bar, vq_uint64 id, const ToolbarEntry& entry);
    vq_uint64 put_text_button(CVqQuickButtonToolbar& bar, vq_uint64 id);
    void dress_button(CVqQuickButtonToolbar& bar, vq_uint64 id, const ToolbarEntry* entry);
    void set_image(CVqQuickButtonToolbar& bar, vq_uint64 id, const ToolbarEntry* entry, int image);
    void set_popup(CVqQuickButtonToolbar& bar, vq_uint64 id, const ToolbarEntry* entry);

    CVqQuickMenu& m_menu;
    const ToolbarDocument& m_document;
    QHash<QString, QPointer<CVqQuickItemControl>> m_items; // by name; a toolbar owns those that lie on it
};

}
