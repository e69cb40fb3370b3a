#pragma once

#include "gallery/menu/MenuBuilder.h"
#include "gallery/toolbar/ToolbarBuilder.h"
#include "gallery/toolbar/ToolbarFile.h"
#include "quick_backend/CVqQuickBitmapPool.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickControl.h"
#include "tests/gallery/RealMenu.h"

#include <gtest/gtest.h>

/// Two toolbars on the real menu. First: Open with its popup, a separator, an item, the radio button 100 % as
/// text, the toggle Grid. Second, upright: the tools Brush and Crop.
inline Gallery::ToolbarDocument SmallToolbars()
{
    Gallery::ToolbarFile file;
    EXPECT_TRUE(file.Parse(R"x({ "format": 1, "toolbars": [
        { "name": "first", "text": "First", "controls": [
            { "command": "FileOpen", "popup": 1009 },
            { "type": "separator" },
            { "type": "item", "name": "zoom", "text": "Zoom Slider", "file": "ZoomSlider" },
            { "type": "text", "command": "ViewZoom(100)"
},
            { "command": "ViewGrid" } ]
},
        { "name": "second", "text": "Second", "vertical": true, "controls": [
            { "command": "Tool(brush)" },
            { "command": "Tool(crop)", "image": "copy" } ] } ]
})x",
                           QStringLiteral("t.json")))
        << file.Error().toStdString();
    return file.Document();
}

/// A toolbar as tests look at it.
class Looked
{
public:
    explicit Looked(CVqQuickButtonToolbar& bar) : m_bar(bar) { }

    CVqQuickControl* At(int index) { return dynamic_cast<CVqQuickControl*>(m_bar.ControlFromId(Id(index))); }
    vq_uint64 Id(int index) { return m_bar.GetButtonID(static_cast<unsigned>(index), false); }
    CVqQuickControl* Named(const QString& name)
    {
        return dynamic_cast<CVqQuickControl*>(m_bar.ControlFromId(IdOf(name)));
    }
    vq_uint64 IdOf(const QString& name) { return m_bar.FindButton(name.toStdU16String().c_str()); }

    /// Names of the controls, "|" for a separator, in their order.
    QStringList Names()
    {
        QStringList names;
        for (int i = 0; i < m_bar.GetButtonsCount(); ++i)
            names << (m_bar.IsIDSeparator(Id(i)) ? QStringLiteral("|") : At(i)->Name());
        return names;
    }

private:
    CVqQuickButtonToolbar& m_bar;
};

/// The real menu, and empty toolbars beside it.
class ToolbarSet : public testing::Test
{
protected:
    ToolbarSet() { Gallery::MenuBuilder(m_menu).Build(RealMenu()); }

    CVqQuickBitmapPool m_pool;
    CVqQuickMenu m_menu;
    const Gallery::ToolbarDocument m_document = SmallToolbars();
    Gallery::ToolbarBuilder m_builder{m_menu, m_document};
    CVqQuickButtonToolbar m_first{VQ_TEXT("first")};
    CVqQuickButtonToolbar m_second{VQ_TEXT("second"), EToolbarType::Main, EOrientation::Vertical};
};
