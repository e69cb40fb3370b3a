#pragma once

#include <QColor>
#include <QQuickItem>
#include <QSGSimpleRectNode>

/// A filled rectangle that counts how often it is polished and synchronised.
class ColourItem : public QQuickItem
{
public:
    ColourItem(QQuickItem* parent, QSizeF size, const QColor& colour) : QQuickItem(parent), m_colour(colour)
    {
        setFlag(ItemHasContents);
        setSize(size);
    }

    /// Changes the scene, and asks for a polish.
    void SetColour(const QColor& colour)
    {
        m_colour = colour;
        polish();
        update();
    }

    int Polishes() const { return m_polishes; }
    int Syncs() const { return m_syncs; }

protected:
    void updatePolish() override { ++m_polishes; }

    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData*) override
    {
        ++m_syncs;
        auto* node = static_cast<QSGSimpleRectNode*>(former);
        if (!node)
            node = new QSGSimpleRectNode;
        node->setRect(boundingRect());
        node->setColor(m_colour);
        return node;
    }

private:
    QColor m_colour;
    int m_polishes = 0;
    int m_syncs = 0;
};
