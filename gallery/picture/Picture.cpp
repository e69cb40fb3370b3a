#include "gallery/picture/Picture.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_width = PictureSize.width();
constexpr int g_height = PictureSize.height();
constexpr int g_shore = 520; // row where the lake begins
constexpr QPointF g_sun{770, 388};

struct Ridge
{
    double base; // row around which the ridge swings
    double swing;
    double waves; // over the width
    double phase;
    QRgb color;
};

QImage ground(const QColor& color)
{
    QImage image(PictureSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

void draw_sky(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, g_shore);
    sky.setColorAt(0.0, QColor(0x20, 0x2f, 0x57));
    sky.setColorAt(0.35, QColor(0x4c, 0x59, 0x8c));
    sky.setColorAt(0.62, QColor(0xa8, 0x7f, 0x9c));
    sky.setColorAt(0.82, QColor(0xea, 0xa0, 0x86));
    sky.setColorAt(1.0, QColor(0xfb, 0xd7, 0xa5));
    painter.fillRect(0, 0, g_width, g_shore, sky);
}

void draw_stars(QPainter& painter)
{
    QRandomGenerator random(7);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 90; ++i) {
        const double y = 240 * random.generateDouble();
        const double size = 0.6 + 1.1 * random.generateDouble();
        painter.setBrush(QColor(255, 250, 235, static_cast<int>(190 * (1 - y / 240))));
        painter.drawEllipse(QPointF(g_width * random.generateDouble(), y), size, size);
    }
}

void draw_sun(QPainter& painter)
{
    QRadialGradient glow(g_sun, 420);
    glow.setColorAt(0.0, QColor(255, 240, 205, 215));
    glow.setColorAt(0.2, QColor(255, 214, 160, 110));
    glow.setColorAt(1.0, QColor(255, 190, 140, 0));
    painter.fillRect(0, 0, g_width, g_shore, glow);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xf4, 0xd8));
    painter.drawEllipse(g_sun, 38, 38);
}

void draw_clouds(QPainter& painter)
{
    QRandomGenerator random(21);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 26; ++i) {
        const QPointF at(g_width * random.generateDouble(), 210 + 150 * random.generateDouble());
        const double length = 60 + 190 * random.generateDouble();
        painter.setBrush(QColor(255, 196, 170, 26 + random.bounded(28)));
        painter.drawEllipse(at, length, 3 + 5 * random.generateDouble());
    }
}

double ridge_row(const Ridge& ridge, double x)
{
    const double t = 2 * std::numbers::pi * x / g_width * ridge.waves + ridge.phase;
    const double shape = 0.55 * std::sin(t) + 0.25 * std::sin(2.3 * t + 1.1) + 0.13 * std::sin(5.9 * t + 0.4)
        + 0.07 * std::sin(13.7 * t);
    return ridge.base - ridge.swing * shape;
}

void draw_ridge(QPainter& painter, const Ridge& ridge)
{
    QPainterPath path(QPointF(0, g_shore));
    for (int x = 0; x <= g_width; x += 3)
        path.lineTo(x, ridge_row(ridge, x));
    path.lineTo(g_width, g_shore);
    QLinearGradient mist(0, ridge.base - ridge.swing, 0, g_shore);
    mist.setColorAt(0, QColor::fromRgb(ridge.color));
    mist.setColorAt(1, QColor::fromRgb(ridge.color).lighter(132));
    painter.fillPath(path, mist);
}

void draw_ridges(QPainter& painter)
{
    static const Ridge ridges[] = {
        {372, 62, 1.3, 0.6, 0xffb68b9b},
        {412, 58, 1.7, 2.9, 0xff8f7391},
        {456, 46, 2.1, 4.4, 0xff5f5880},
        {496, 26, 2.6, 1.2, 0xff393f63},
    };
    for (const Ridge& ridge : ridges)
        draw_ridge(painter, ridge);
}

void draw_lake(QPainter& painter, const QImage& sky)
{
    const QImage mirror = sky.copy(0, 0, g_width, g_shore).mirrored(false, true);
    QRandomGenerator random(3);
    for (int row = g_shore; row < g_height; ++row) {
        const double depth = double(row - g_shore) / (g_height - g_shore);
        const double sway = (1 + 7 * depth) * std::sin(row * 0.9 + 3 * std::sin(row * 0.17));
        const int from = static_cast<int>((row - g_shore) * 1.35);
        painter.drawImage(QRectF(sway - 8, row, g_width + 16, 1), mirror, QRectF(0, from, g_width, 1));
    }
    QLinearGradient deep(0, g_shore, 0, g_height);
    deep.setColorAt(0, QColor(0x2c, 0x36, 0x60, 50));
    deep.setColorAt(1, QColor(0x14, 0x1d, 0x3d, 205));
    painter.fillRect(0, g_shore, g_width, g_height - g_shore, deep);
}

void draw_glitter(QPainter& painter)
{
    QRandomGenerator random(11);
    for (int i = 0; i < 150; ++i) {
        const double depth = random.generateDouble();
        const double spread = 24 + 130 * depth;
        const double x = g_sun.x() + spread * (random.generateDouble() + random.generateDouble() - 1);
        const double half = 3 + 17 * depth * random.generateDouble();
        painter.setPen(QPen(QColor(255, 226, 178, static_cast<int>(150 * (1 - 0.6 * depth))), 1.4));
        const double y = g_shore + 4 + 235 * depth;
        painter.drawLine(QPointF(x - half, y), QPointF(x + half, y));
    }
}

void draw_pine(QPainter& painter, QPointF foot, double height)
{
    QPainterPath path;
    for (int tier = 0; tier < 6; ++tier) {
        const double top = foot.y() - height * (1 - tier * 0.15);
        const double half = height * (0.045 + 0.034 * tier);
        path.moveTo(foot.x(), top);
        path.lineTo(foot.x() - half, top + height * 0.24);
        path.lineTo(foot.x() + half, top + height * 0.24);
        path.closeSubpath();
    }
    path.setFillRule(Qt::WindingFill);
    painter.fillPath(path, QColor(0x12, 0x18, 0x30));
    painter.fillRect(QRectF(foot.x() - 2, foot.y() - height * 0.1, 4, height * 0.12),
                     QColor(0x12, 0x18, 0x30));
}

void draw_shore(QPainter& painter)
{
    QRandomGenerator random(5);
    for (int i = 0; i < 11; ++i) {
        const double x = 8 + i * 27 + 10 * random.generateDouble();
        draw_pine(painter, QPointF(x, 690 + x * x / 2600), 130 + 130 * random.generateDouble() - x * 0.18);
    }
    QPainterPath bank(QPointF(0, 668));
    bank.cubicTo(160, 660, 300, 716, 470, 800);
    bank.lineTo(0, 800);
    painter.fillPath(bank, QColor(0x12, 0x18, 0x30));
}

QImage draw_lake_at_dawn()
{
    QImage image = ground(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw_sky(painter);
    draw_stars(painter);
    draw_sun(painter);
    draw_clouds(painter);
    draw_ridges(painter);
    draw_lake(painter, image.copy());
    draw_glitter(painter);
    draw_shore(painter);
    return image;
}

QImage draw_chart()
{
    QImage image = ground(QColor(0xf2, 0xf2, 0xf0));
    QPainter painter(&image);
    for (int row = 0; row < 6; ++row)
        for (int column = 0; column < 12; ++column) {
            const QColor color = row == 5 ? QColor::fromHsl(0, 0, 255 - 255 * column / 11)
                                          : QColor::fromHsl(column * 30, 60 + row * 42, 70 + row * 32);
            painter.fillRect(36 + column * 95, 46 + row * 120, 83, 108, color);
        }
    return image;
}

QImage draw_rings()
{
    QImage image = ground(QColor(0xf6, 0xf1, 0xe6));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 26; ++i) {
        painter.setPen(QPen(QColor::fromHsv((200 + i * 9) % 360, 150, 190), 9));
        painter.drawEllipse(QPointF(g_width / 2.0 + 60 * std::sin(i * 0.35), g_height / 2.0), i * 24, i * 24);
    }
    return image;
}

}

QImage DrawSample(const QString& name)
{
    if (name == u"lake"_s)
        return draw_lake_at_dawn();
    if (name == u"chart"_s)
        return draw_chart();
    if (name == u"rings"_s)
        return draw_rings();
    return ground(Qt::white);
}

QImage DrawLight()
{
    QImage image = ground(Qt::transparent);
    QPainter painter(&image);
    QRadialGradient light(QPointF(g_width * 0.78, g_height * 0.1), g_width * 0.62);
    light.setColorAt(0.0, QColor(255, 190, 110, 130));
    light.setColorAt(0.5, QColor(235, 120, 110, 60));
    light.setColorAt(1.0, QColor(120, 60, 120, 0));
    painter.fillRect(image.rect(), light);
    return image;
}

}
