#pragma once

#include "quick_backend/images/CVqPoolImages.h"

#include <QIconEngine>

#include <memory>

class CVqImagePainter;

/// An icon that draws an image of the pool in whatever size, mode and device pixel ratio it is asked for.
class CVqPoolIconEngine : public QIconEngine
{
public:
    CVqPoolIconEngine(const SVqPoolEntry& entry, std::shared_ptr<CVqImagePainter> painter);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    bool isNull() override { return false; }

private:
    const SVqPoolEntry m_entry;
    const std::shared_ptr<CVqImagePainter> m_painter;
};
