#include "gallery/Commands.h"
#include "gallery/ViewState.h"
#include "gallery/picture/Document.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr qreal g_zoom_step = 1.25;
constexpr qreal g_pan_step = 40; // logical pixels
constexpr int g_widest_brush = 200;

QColor color_of(const QString& text)
{
    return QColor::fromString(text.trimmed());
}

}

void Commands::add_view_commands()
{
    add_switch(u"ViewGrid"_s, &ViewState::grid);
    add_switch(u"ViewGuides"_s, &ViewState::guides);
    add_switch(u"ViewRulers"_s, &ViewState::rulers);
    add_switch(u"SelectEdges"_s, &ViewState::edges);
    add_switch(u"ViewToolStrip"_s, &ViewState::tool_strip);
    m_actions[u"ViewToolbar"_s] = [this](const QString& name) {
        (name == u"main"_s ? m_view.main_bar : m_view.text_bar) = m_checked;
    };
    m_actions[u"ViewCustomiseToolbars"_s] = [this](const QString&) { Q_EMIT CustomiseRequested(); };
    add_switch(u"ViewSidePanel"_s, &ViewState::side_panel);
    add_switch(u"ViewStatusLine"_s, &ViewState::status_line);
    add_switch(u"ViewFullScreen"_s, &ViewState::full_screen);
    add_switch(u"ImageHistogram"_s, &ViewState::histogram);
    m_actions[u"ViewGridSize"_s]
        = [this](const QString& size) { m_view.grid_size = std::max(1, size.toInt()); };
    m_actions[u"ViewPalette"_s] = [this](const QString& name) { m_view.dark = name == u"dark"_s; };
    m_actions[u"ViewBeforeAfter"_s] = [this](const QString&) { m_view.original = !m_view.original; };
    m_actions[u"WindowPanel"_s] = [this](const QString& name) { switch_panel(name); };
    m_actions[u"Tool"_s] = [this](const QString& name) { m_view.tool = name; };
}

void Commands::add_zoom_commands()
{
    m_actions[u"ViewZoomIn"_s] = [this](const QString&) { zoom(m_view.scale * g_zoom_step); };
    m_actions[u"ViewZoomOut"_s] = [this](const QString&) { zoom(m_view.scale / g_zoom_step); };
    m_actions[u"ViewZoom"_s] = [this](const QString& percent) { zoom(percent.toDouble()); };
    m_actions[u"ViewZoomFit"_s] = [this](const QString&) {
        m_view.zoom = 0;
        m_view.pan = {};
    };
    m_actions[u"ViewCenter"_s] = [this](const QString&) { m_view.pan = {}; };
    m_actions[u"ViewPan"_s] = [this](const QString& direction) {
        const QPointF way(direction.section(u',', 0, 0).toInt(), direction.section(u',', 1, 1).toInt());
        m_view.pan -= way * g_pan_step;
    };
}

void Commands::add_color_commands()
{
    m_actions[u"ColorForeground"_s] = [this](const QString& color) { m_view.foreground = color_of(color); };
    m_actions[u"ColorPair"_s] = [this](const QString& colors) {
        m_view.foreground = color_of(colors.section(u',', 0, 0));
        m_view.background = color_of(colors.section(u',', 1, 1));
    };
    m_actions[u"ColorSwap"_s] = [this](const QString&) { std::swap(m_view.foreground, m_view.background); };
    m_actions[u"ColorDefault"_s] = [this](const QString&) {
        m_view.foreground = QColor(0x1b, 0x1b, 0x1f);
        m_view.background = Qt::white;
    };
    m_actions[u"BrushWidth"_s] = [this](const QString& width) { m_view.brush_width = width.toInt(); };
    m_actions[u"BrushSmaller"_s]
        = [this](const QString&) { m_view.brush_width = std::max(1, m_view.brush_width - 1); };
    m_actions[u"BrushLarger"_s]
        = [this](const QString&) { m_view.brush_width = std::min(g_widest_brush, m_view.brush_width + 1); };
}

void Commands::add_switch(const QString& name, bool ViewState::* member)
{
    m_actions[name] = [this, member](const QString&) { m_view.*member = m_checked; };
}

void Commands::zoom(qreal percent)
{
    m_view.zoom = std::clamp(percent, 2.0, 3200.0);
}

void Commands::switch_panel(const QString& name)
{
    if (name == u"layers"_s)
        m_view.layer_panel = m_checked;
    else if (name == u"colors"_s)
        m_view.color_panel = m_checked;
    else if (name == u"histogram"_s)
        m_view.histogram = m_checked;
}

}
