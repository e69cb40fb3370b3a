#pragma once

#include <QGuiApplication>
#include <QPalette>

/// The application's palette for the time of a scope: text of one colour, disabled and highlighted text of
/// others.
class PaletteForTest
{
public:
    PaletteForTest() { Set(qRgb(10, 20, 30), qRgb(120, 130, 140), qRgb(250, 240, 230)); }
    ~PaletteForTest() { QGuiApplication::setPalette(m_before); }

    PaletteForTest(const PaletteForTest&) = delete;
    PaletteForTest& operator=(const PaletteForTest&) = delete;

    void Set(QRgb text, QRgb disabled, QRgb highlighted)
    {
        QPalette palette;
        palette.setColor(QPalette::WindowText, QColor(text));
        palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(disabled));
        palette.setColor(QPalette::HighlightedText, QColor(highlighted));
        QGuiApplication::setPalette(palette);
    }

    static constexpr QRgb g_text = qRgb(10, 20, 30);
    static constexpr QRgb g_disabled = qRgb(120, 130, 140);
    static constexpr QRgb g_highlighted = qRgb(250, 240, 230);

private:
    const QPalette m_before = QGuiApplication::palette();
};
