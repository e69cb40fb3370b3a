#include "gallery/picture/Document.h"

#include "gallery/picture/Picture.h"
#include "gallery/picture/PictureTones.h"

#include <QHash>
#include <QPainter>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr qsizetype g_most_steps = 30;

const QHash<QString, QPainter::CompositionMode>& modes()
{
    static const QHash<QString, QPainter::CompositionMode> table = {
        {u"normal"_s, QPainter::CompositionMode_SourceOver},
        {u"behind"_s, QPainter::CompositionMode_DestinationOver},
        {u"erase"_s, QPainter::CompositionMode_DestinationOut},
        {u"xor"_s, QPainter::CompositionMode_Xor},
        {u"add"_s, QPainter::CompositionMode_Plus},
        {u"multiply"_s, QPainter::CompositionMode_Multiply},
        {u"screen"_s, QPainter::CompositionMode_Screen},
        {u"overlay"_s, QPainter::CompositionMode_Overlay},
        {u"darken"_s, QPainter::CompositionMode_Darken},
        {u"lighten"_s, QPainter::CompositionMode_Lighten},
        {u"colordodge"_s, QPainter::CompositionMode_ColorDodge},
        {u"colorburn"_s, QPainter::CompositionMode_ColorBurn},
        {u"hardlight"_s, QPainter::CompositionMode_HardLight},
        {u"softlight"_s, QPainter::CompositionMode_SoftLight},
        {u"difference"_s, QPainter::CompositionMode_Difference},
        {u"exclusion"_s, QPainter::CompositionMode_Exclusion},
    };
    return table;
}

}

Document::Document(QObject* parent) : QObject(parent), m_layer(DrawLight()), m_layer_mode(u"screen"_s)
{
    Open(u"lake"_s);
}

void Document::Open(const QString& sample)
{
    m_name = sample;
    m_undo.clear();
    m_redo.clear();
    m_selection = {};
    set_image(DrawSample(sample));
}

void Document::Change(const QImage& image)
{
    if (image == m_image)
        return;
    m_undo.append(m_image);
    if (m_undo.size() > g_most_steps)
        m_undo.removeFirst();
    m_redo.clear();
    set_image(image);
}

QImage Document::Selected() const
{
    return m_selection.isEmpty() ? m_image : m_image.copy(m_selection);
}

bool Document::Undo()
{
    if (!CanUndo())
        return false;
    m_redo.append(m_image);
    set_image(m_undo.takeLast());
    return true;
}

bool Document::Redo()
{
    if (!CanRedo())
        return false;
    m_undo.append(m_image);
    set_image(m_redo.takeLast());
    return true;
}

bool Document::SetLayerMode(const QString& name)
{
    if (!modes().contains(name))
        return false;
    m_layer_mode = name;
    refresh();
    return true;
}

void Document::SetLayerOpacity(int percent)
{
    m_layer_opacity = std::clamp(percent, 0, 100);
    refresh();
}

void Document::SetLayerVisible(bool visible)
{
    m_layer_visible = visible;
    refresh();
}

void Document::SetSelection(const QRect& selection)
{
    m_selection = selection & m_image.rect();
    Q_EMIT Changed();
}

void Document::set_image(const QImage& image)
{
    m_image = image;
    m_selection &= m_image.rect();
    refresh();
}

void Document::refresh()
{
    m_shown = m_image;
    if (m_layer_visible) {
        QPainter painter(&m_shown);
        painter.setOpacity(m_layer_opacity / 100.0);
        painter.setCompositionMode(modes().value(m_layer_mode));
        painter.drawImage(m_shown.rect(), m_layer);
    }
    m_histogram = LightnessHistogram(m_shown);
    Q_EMIT Changed();
}

}
