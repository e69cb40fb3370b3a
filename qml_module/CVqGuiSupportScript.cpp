#include "qml_module/CVqGuiSupportScript.h"

#include "qml/CVqGuiSupport.h"

namespace {

template <typename Value, typename... Parts>
QList<Value> list_of(const std::tuple<Parts...>& tuple)
{
    return std::apply([](auto... part) { return QList<Value>{static_cast<Value>(part)...}; }, tuple);
}

}

CVqGuiSupportScript::CVqGuiSupportScript(QObject* support)
    : QObject(support), m_support(*static_cast<CVqGuiSupport*>(support))
{ }

QList<double> CVqGuiSupportScript::HSVFromRGB(uchar red, uchar green, uchar blue)
{
    return list_of<double>(m_support.HSVFromRGB(red, green, blue));
}

QList<double> CVqGuiSupportScript::HSLFromRGB(uchar red, uchar green, uchar blue)
{
    return list_of<double>(m_support.HSLFromRGB(red, green, blue));
}

QList<int> CVqGuiSupportScript::RGBFromHSV(float hue, float saturation, float value)
{
    return list_of<int>(m_support.RGBFromHSV(hue, saturation, value));
}

QList<int> CVqGuiSupportScript::RGBFromHSL(float hue, float saturation, float lightness)
{
    return list_of<int>(m_support.RGBFromHSL(hue, saturation, lightness));
}
