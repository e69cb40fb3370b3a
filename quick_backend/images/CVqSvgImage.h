#pragma once

#include "quick_backend/images/IVqPoolImage.h"

#include <QSvgRenderer>

#include <memory>
#include <mutex>
#include <optional>

/// An SVG. One that draws in one colour is a stencil: its colour is what it is drawn with.
///
/// Keeps the text, and what it was parsed into only until it is drawn: that takes many times the room, and
/// what was drawn is kept elsewhere.
class CVqSvgImage final : public IVqPoolImage
{
public:
    /// Takes the text as it is: VqIsSelfContainedSvg() has to be asked before.
    explicit CVqSvgImage(const QByteArray& text);

    /// Whether there is something to draw; without that no other operation may be called.
    bool IsValid() const { return !m_size.isEmpty(); }

    QSize Size() const override { return m_size; }
    QImage Draw(QSize pixels, const SVqImageLook& look) const override;

private:
    bool IsStencil(const QImage& drawn, QSvgRenderer& renderer) const;

    const QByteArray m_text;
    QSize m_size;
    mutable std::mutex m_lock;                        // of the two below
    mutable std::unique_ptr<QSvgRenderer> m_renderer; // for the first drawing
    mutable std::optional<bool> m_is_stencil;         // found out by the first drawing
};
