#include "gallery/Commands.h"

#include "gallery/ViewState.h"
#include "gallery/picture/Document.h"
#include "gallery/picture/PictureFilters.h"
#include "gallery/picture/PictureTones.h"

#include <QPainter>
#include <QTransform>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_selection_step = 20; // picture pixels

/// Adjustments and filters: the command's name, and the name of what it does.
struct Effect
{
    QString command;
    QString effect;
};

}

Commands::Commands(Document& document, ViewState& view, QObject* parent)
    : QObject(parent), m_document(document), m_view(view)
{
    add_file_commands();
    add_edit_commands();
    add_image_commands();
    add_select_commands();
    add_adjust_commands();
    add_filter_commands();
    add_layer_commands();
    add_view_commands();
    add_zoom_commands();
    add_color_commands();
}

bool Commands::Run(const QString& command, bool checked)
{
    const qsizetype open = command.indexOf(u'(');
    const QString name = open < 0 ? command : command.left(open);
    const QString arguments = open < 0 ? QString() : command.mid(open + 1).chopped(1);
    const auto action = m_actions.constFind(name);
    if (action == m_actions.constEnd())
        return false;
    m_checked = checked;
    (*action)(arguments);
    m_view.Tell();
    return true;
}

bool Commands::IsIdle(const QString& command) const
{
    if (command == u"EditUndo"_s)
        return !m_document.CanUndo();
    if (command == u"EditRedo"_s)
        return !m_document.CanRedo();
    return (command == u"FilterRepeat"_s || command == u"FilterShowLast"_s) && m_last_filter.isEmpty();
}

void Commands::add_file_commands()
{
    m_actions[u"FileNew"_s] = [this](const QString&) { m_document.Open(u"untitled"_s); };
    m_actions[u"FileSample"_s] = [this](const QString& name) { m_document.Open(name); };
    m_actions[u"FileRevert"_s] = [this](const QString&) { m_document.Open(m_document.Name()); };
    m_actions[u"FileQuit"_s] = [this](const QString&) { Q_EMIT QuitRequested(); };
    m_actions[u"FileBatchResize"_s] = [this](const QString&) { Q_EMIT PageRequested(u"ResizePage"_s); };
}

void Commands::add_edit_commands()
{
    m_actions[u"EditUndo"_s] = [this](const QString& how) {
        while (m_document.Undo() && how == u"all"_s) { }
    };
    m_actions[u"EditShortcuts"_s] = [this](const QString&) { Q_EMIT PageRequested(u"KeysPage"_s); };
    m_actions[u"EditRedo"_s] = [this](const QString&) { m_document.Redo(); };
    m_actions[u"EditCopy"_s] = [this](const QString&) { m_clipboard = m_document.Selected(); };
    m_actions[u"EditCut"_s] = [this](const QString&) {
        m_clipboard = m_document.Selected();
        fill(m_view.background);
    };
    m_actions[u"EditPaste"_s] = [this](const QString&) { paste(); };
    m_actions[u"EditClear"_s] = [this](const QString&) { fill(m_view.background); };
    m_actions[u"EditFill"_s] = [this](const QString& which) {
        fill(which == u"foreground"_s ? m_view.foreground : m_view.background);
    };
}

void Commands::add_image_commands()
{
    m_actions[u"ImageRotate"_s]
        = [this](const QString& degrees) { transform(QTransform().rotate(degrees.toInt())); };
    m_actions[u"ImageFlip"_s] = [this](const QString& axis) {
        transform(axis == u"horizontal"_s ? QTransform::fromScale(-1, 1) : QTransform::fromScale(1, -1));
    };
    m_actions[u"ImageCrop"_s] = [this](const QString&) {
        m_document.Change(m_document.Selected());
        m_document.SetSelection({});
    };
    m_actions[u"ImageDuplicate"_s] = [this](const QString&) { m_clipboard = m_document.Image(); };
}

void Commands::add_select_commands()
{
    const auto grow
        = [this](int by) { m_document.SetSelection(m_document.Selection().adjusted(-by, -by, by, by)); };
    m_actions[u"SelectAll"_s]
        = [this](const QString&) { m_document.SetSelection(m_document.Image().rect()); };
    m_actions[u"SelectNone"_s] = [this](const QString&) { m_document.SetSelection({}); };
    m_actions[u"SelectGrow"_s] = [grow](const QString&) { grow(g_selection_step); };
    m_actions[u"SelectShrink"_s] = [grow](const QString&) { grow(-g_selection_step); };
}

void Commands::add_adjust_commands()
{
    const Effect adjustments[] = {
        {u"AdjustInvert"_s, u"invert"_s},         {u"AdjustGray"_s, u"gray"_s},
        {u"AdjustSepia"_s, u"sepia"_s},           {u"AdjustThreshold"_s, u"threshold"_s},
        {u"AdjustPosterize"_s, u"posterize"_s},   {u"AdjustBrightness"_s, u"brightness"_s},
        {u"AdjustContrast"_s, u"contrast"_s},     {u"AdjustTemperature"_s, u"temperature"_s},
        {u"AdjustSaturation"_s, u"saturation"_s},
    };
    for (const auto& [command, effect] : adjustments)
        m_actions[command] = [this, name = effect](const QString& amount) {
            m_document.Change(AdjustTones(m_document.Image(), name, amount.toInt()));
        };
    m_actions[u"AdjustAutoLevels"_s]
        = [this](const QString&) { m_document.Change(AutoLevels(m_document.Image())); };
    m_actions[u"FilterSolarize"_s]
        = [this](const QString&) { m_document.Change(AdjustTones(m_document.Image(), u"solarize"_s, 0)); };
}

void Commands::add_filter_commands()
{
    const Effect effects[] = {
        {u"FilterBlur"_s, u"blur"_s},       {u"FilterPixelate"_s, u"pixelate"_s},
        {u"FilterSharpen"_s, u"sharpen"_s}, {u"FilterEdges"_s, u"edges"_s},
        {u"FilterEmboss"_s, u"emboss"_s},   {u"FilterGrain"_s, u"grain"_s},
        {u"FilterWave"_s, u"wave"_s},       {u"FilterVignette"_s, u"vignette"_s},
    };
    for (const auto& [command, effect] : effects)
        m_actions[command] = [this, name = effect](const QString& amount) { filter(name, amount.toInt()); };
    m_actions[u"FilterRepeat"_s] = [this](const QString&) { filter(m_last_filter, m_last_amount); };
}

void Commands::add_layer_commands()
{
    m_actions[u"LayerVisible"_s] = [this](const QString&) { m_document.SetLayerVisible(m_checked); };
    m_actions[u"LayerBlend"_s] = [this](const QString& mode) { m_document.SetLayerMode(mode); };
    m_actions[u"LayerOpacity"_s]
        = [this](const QString& percent) { m_document.SetLayerOpacity(percent.toInt()); };
    m_actions[u"LayerFlatten"_s] = [this](const QString&) { m_document.Change(m_document.Shown()); };
}

void Commands::filter(const QString& name, int amount)
{
    m_last_filter = name;
    m_last_amount = amount;
    m_document.Change(ApplyFilter(m_document.Image(), name, amount));
}

void Commands::fill(const QColor& color)
{
    QImage image = m_document.Image();
    const QRect selection = m_document.Selection();
    QPainter(&image).fillRect(selection.isEmpty() ? image.rect() : selection, color);
    m_document.Change(image);
}

void Commands::paste()
{
    QImage image = m_document.Image();
    QRect target = m_clipboard.rect();
    target.moveCenter(image.rect().center());
    QPainter(&image).drawImage(target.topLeft(), m_clipboard);
    m_document.Change(image);
    m_document.SetSelection(target);
}

void Commands::transform(const QTransform& how)
{
    m_document.Change(m_document.Image().transformed(how));
}

}
