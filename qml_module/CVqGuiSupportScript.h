#pragma once

#include <QList>
#include <QObject>

class CVqGuiSupport;

/// The conversions of CVqGuiSupport whose results are tuples, which script cannot take apart: here they are
/// lists. In QML they stand in for the operations of the same names, arguments and values.
///
///     const [hue, saturation, lightness] = GuiSupport.HSLFromRGB(255, 128, 0);
class CVqGuiSupportScript : public QObject
{
    Q_OBJECT

public:
    /// `support` is the CVqGuiSupport that computes; it owns this object.
    explicit CVqGuiSupportScript(QObject* support);

    // The meta-object of an extension knows types by their names alone, so these are Qt's names.
    Q_INVOKABLE QList<double> HSVFromRGB(uchar red, uchar green, uchar blue);
    Q_INVOKABLE QList<double> HSLFromRGB(uchar red, uchar green, uchar blue);
    Q_INVOKABLE QList<int> RGBFromHSV(float hue, float saturation, float value);
    Q_INVOKABLE QList<int> RGBFromHSL(float hue, float saturation, float lightness);

private:
    CVqGuiSupport& m_support;
};
