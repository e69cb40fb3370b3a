#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QRect>

namespace Gallery {

/// The open picture: its pixels, one layer of light above them, a selection, and the steps to undo.
class Document : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ Name NOTIFY Changed)
    Q_PROPERTY(QSize size READ Size NOTIFY Changed)
    Q_PROPERTY(QString layerMode READ LayerMode NOTIFY Changed)
    Q_PROPERTY(int layerOpacity READ LayerOpacity NOTIFY Changed)
    Q_PROPERTY(bool layerVisible READ LayerVisible NOTIFY Changed)
    Q_PROPERTY(QList<qreal> histogram READ Histogram NOTIFY Changed)

public:
    /// Opens with the sample "lake".
    explicit Document(QObject* parent = nullptr);

    // Pixels -----------------------------------------------------------------------------------------

    /// Starts over with a sample, see DrawSample(). The steps are forgotten.
    void Open(const QString& sample);

    const QImage& Image() const { return m_image; }
    QSize Size() const { return m_image.size(); }
    const QString& Name() const { return m_name; }

    /// Replaces the pixels as one step that can be undone. The same pixels are no step.
    void Change(const QImage& image);

    /// The picture as it shows: the pixels with the layer above them.
    const QImage& Shown() const { return m_shown; }

    /// See LightnessHistogram().
    QList<qreal> Histogram() const { return m_histogram; }

    /// Copies of the pixels inside the selection, of all without one.
    QImage Selected() const;

    // Steps ------------------------------------------------------------------------------------------

    bool CanUndo() const { return !m_undo.isEmpty(); }
    bool CanRedo() const { return !m_redo.isEmpty(); }
    bool Undo();
    bool Redo();

    // Layer ------------------------------------------------------------------------------------------

    /// Blends the layer with the mode `name`. False for a mode that is not known; nothing changes then.
    bool SetLayerMode(const QString& name);
    void SetLayerOpacity(int percent);
    void SetLayerVisible(bool visible);
    const QString& LayerMode() const { return m_layer_mode; }
    int LayerOpacity() const { return m_layer_opacity; }
    bool LayerVisible() const { return m_layer_visible; }

    // Selection --------------------------------------------------------------------------------------

    /// In picture pixels; empty for none. Cut to the picture.
    void SetSelection(const QRect& selection);
    const QRect& Selection() const { return m_selection; }

Q_SIGNALS:
    void Changed();

private:
    void set_image(const QImage& image);
    void refresh();

    QString m_name;
    QImage m_image;
    QImage m_layer;
    QImage m_shown;
    QList<qreal> m_histogram;
    QList<QImage> m_undo; // newest last
    QList<QImage> m_redo; // next last
    QRect m_selection;
    QString m_layer_mode;
    int m_layer_opacity = 60; // percent
    bool m_layer_visible = true;
};

}
