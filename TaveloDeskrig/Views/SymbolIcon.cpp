#include "SymbolIcon.h"

#include "Symbols.h"

#include <QPainter>

#include <cmath>

namespace Tavelo
{

namespace
{

/// Symbols leave a sixth of their square empty.
constexpr qreal squareOfSize = 1.2;

} // namespace

SymbolIcon::SymbolIcon(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void SymbolIcon::setSymbol(const QString &symbol)
{
    if (m_symbol == symbol)
        return;
    m_symbol = symbol;
    update();
    Q_EMIT symbolChanged();
}

void SymbolIcon::setSize(qreal size)
{
    if (m_size == size)
        return;
    m_size = size;
    const qreal side = std::round(squareOfSize * size);
    setImplicitSize(side, side);
    update();
    Q_EMIT sizeChanged();
}

void SymbolIcon::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

void SymbolIcon::paint(QPainter *painter)
{
    const qreal side = implicitWidth();
    painter->translate(std::floor((width() - side) / 2), std::floor((height() - side) / 2));
    painter->scale(side, side);
    painter->fillPath(Symbols::outline(m_symbol), m_color);
}

} // namespace Tavelo
