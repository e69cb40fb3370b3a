#pragma once

#include "arbor_quick_backend_export.h"
#include "quick_backend/toolbar/CVqQuickControl.h"

#include <QFont>

#include <optional>

/// A button with an image, a text or both; checked or not; with or without a drop-down arrow.
///
/// It shows the image of its current state, or, without one, the text. After SetTextBesideImage() it shows
/// both, with the text where SetTextAlign() says. Its size by itself follows from that: an image is 24
/// logical pixels a side, a text as large as the application's font draws it, all times the zoom.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickButton : public CVqQuickControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QuickButton)
    QML_UNCREATABLE("Buttons are made by their toolbar.")
    Q_PROPERTY(bool showsText READ ShowsText NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool showsImage READ ShowsImage NOTIFY lookChanged FINAL)

public:
    /// Measures in logical pixels at zoom 1; the looks keep to them.
    static constexpr int ImageSide = 24;
    static constexpr int Padding = 5;     ///< Around the content.
    static constexpr int Gap = 5;         ///< Between image and text.
    static constexpr int ArrowWidth = 14; ///< Of a drop-down arrow, at the side of the rest.

    CVqQuickButton();

    /// What of the current state there is to be shown.
    bool ShowsText() const;
    bool ShowsImage() const;

    /// Whether a text stands beside an image; false by itself: it is then the name for screen readers.
    bool IsTextBesideImage() const { return m_text_beside_image; }
    void SetTextBesideImage(bool beside);

    CVqSizeBase<int> NaturalSize() const override;

protected:
    explicit CVqQuickButton(Kind kind);

private:
    /// The text that was measured last, and how.
    struct SMeasured
    {
        CVqStringW m_text;
        QFont m_font;
        CVqSizeBase<int> m_size;
    };

    ARBOR_QUICK_BACKEND_NO_EXPORT CVqSizeBase<int> text_size() const;
    ARBOR_QUICK_BACKEND_NO_EXPORT CVqSizeBase<int> content_size() const;

    mutable std::optional<SMeasured> m_measured;
    bool m_text_beside_image = false;
};
